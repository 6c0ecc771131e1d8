#pragma once

#include "exitcode.h"
#include "options.h"

#include <QString>

#include <variant>

/// What the command line asks for.
struct Arguments
{
    enum class Command
    {
        Ports,
        Detect,
        Send,
        Run,
        Judge,
        StoreInit,
        Sim
    };

    Command command = Command::Ports;
    CommonOptions common;
    ScreenOptions screen;
    QString text; ///< the command line to send, or the phone to simulate
};

/// The arguments, or the code to end with after help or a complaint was printed.
std::variant<Arguments, ExitCode> parseArguments(int argc, char **argv);
