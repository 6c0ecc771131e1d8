#pragma once

#include "options.h"
#include "screen.h"

#include <memory>
#include <span>

/// A screen that the command line can run.
struct ScreenCommand
{
    QLatin1StringView command;
    QLatin1StringView help;
    bool hasKind = false;
    bool hasDecimals = false;
    std::unique_ptr<Screen> (*make)(Session &session);
    void (*apply)(Screen &screen, const ScreenOptions &options);
};

std::span<const ScreenCommand> screenCommands();
const ScreenCommand *screenByCommand(const QString &command);
