#pragma once

#include "consoleerrand.h"
#include "exitcode.h"
#include "options.h"
#include "surveyerrand.h"

#include <QString>

#include <variant>

struct StoreCommand;

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
        Store,
        Record,
        Compare,
        Survey,
        Sim
    };

    Command command = Command::Ports;
    CommonOptions common;
    ScreenOptions screen;
    ConsoleOptions console;
    SurveyOptions survey;
    const StoreCommand *storeCommand = nullptr;
    QString text;  ///< the command line to send, the phone to simulate, or the first word after a store command
    QString value; ///< the second one
    QString logFile;
};

/// The arguments, or the code to end with after help or a complaint was printed.
std::variant<Arguments, ExitCode> parseArguments(int argc, char **argv);
