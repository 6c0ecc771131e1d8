#pragma once

#include "chipform.h"

/// The form of the display supply of the IP X.
class Acorn : public ChipForm
{
    Q_OBJECT

public:
    explicit Acorn(Session &session, QWidget *parent = nullptr);
};
