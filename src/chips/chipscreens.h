#pragma once

#include "chipscreen.h"

/// The port controller and its rails.
class TristarScreen : public ChipScreen
{
    Q_OBJECT

public:
    explicit TristarScreen(Session &session, QObject *parent = nullptr);
};

/// The charger.
class TigrisScreen : public ChipScreen
{
    Q_OBJECT

public:
    explicit TigrisScreen(Session &session, QObject *parent = nullptr);
};

/// The display supply of the IP X; other models have a Chestnut.
class AcornScreen : public ChipScreen
{
    Q_OBJECT

public:
    explicit AcornScreen(Session &session, QObject *parent = nullptr);
};
