#pragma once

#include "chipform.h"

/// The form of the port controller.
class Tristar : public ChipForm
{
    Q_OBJECT

public:
    explicit Tristar(Session &session, QWidget *parent = nullptr);
};
