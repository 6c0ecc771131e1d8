#pragma once

#include "exitcode.h"
#include "options.h"

#include <span>

/// A word of `prelt store` and what it does.
struct StoreCommand
{
    struct Argument
    {
        const char *name = nullptr; ///< nothing: none is taken
        const char *help = nullptr;
        bool required = true;
    };

    const char *name;
    const char *help;
    ExitCode (*run)(const CommonOptions &options, const QString &first, const QString &second);
    Argument first = {};
    Argument second = {};
};

std::span<const StoreCommand> storeCommands();

/// `prelt ports`.
ExitCode listPorts(const CommonOptions &options);
