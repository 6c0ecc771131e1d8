#pragma once

#include "chipform.h"

/// The form of the display supply of the models with an LCD panel.
class Chestnut : public ChipForm
{
    Q_OBJECT

public:
    explicit Chestnut(Session &session, QWidget *parent = nullptr);
};
