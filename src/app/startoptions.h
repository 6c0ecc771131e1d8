#pragma once

#include "theme.h"

#include <QString>
#include <QStringList>

#include <optional>

/// What the window is told at its start.
struct StartOptions
{
    QString home;
    QString port;
    bool connects = false;
    QString screen; ///< a form's name; empty: none
    bool reads = false;
    bool showsLog = false;
    std::optional<ThemeChoice> theme; ///< for this start only; else as it was chosen in the window
};

/// The options of the command line. Ends the program after help, or after a complaint with code 2.
StartOptions startOptions(const QStringList &arguments);
