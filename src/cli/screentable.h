#pragma once

#include "screencommand.h"

#include <QList>

struct ScreenOptions;

/// Every screen that the command line can run.
QList<const ScreenCommand *> screenCommands();
const ScreenCommand *screenByCommand(const QString &command);

/// Gives a screen what the command line says, else the presets.
void giveOptions(Screen &screen, const ScreenOptions &options);
