#pragma once

#include "chipform.h"

/// The form of the charger.
class Tigris : public ChipForm
{
    Q_OBJECT

public:
    explicit Tigris(Session &session, QWidget *parent = nullptr);
};
