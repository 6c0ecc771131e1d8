#pragma once

#include "store.h"

#include <QList>
#include <QStringList>

#include <array>

/// A command line of the list with its description in Portuguese, English and Spanish.
struct CommandRow
{
    QString comando;
    std::array<QString, 3> info = {};

    friend bool operator==(const CommandRow &, const CommandRow &) = default;
};

/// The list, sorted by command.
Result<QList<CommandRow>> commandRows(const Store &store);

/// Adds a command line without a description; one that is there, whatever its letter case, is left alone.
Result<Done> addCommand(Store &store, const QString &comando);

/// Writes the descriptions of a command of the list.
Result<Done> writeDescriptions(Store &store, const CommandRow &row);

Result<Done> deleteCommand(Store &store, const QString &comando);
