#pragma once

#include "errand.h"

/// Connects and prints the phone's model.
class DetectErrand : public Errand
{
    Q_OBJECT

public:
    using Errand::Errand;
    void start() override;

protected:
    void connectedToPhone() override;
};
