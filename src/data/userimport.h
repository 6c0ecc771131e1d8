#pragma once

#include "store.h"

/// Where the import of the user store was asked for.
enum class Occasion
{
    Start,
    AboutBox ///< asks whatever was answered before
};

/// What to do next about the user store.
enum class ImportStep
{
    NoUserStore,    ///< there is none
    AnsweredBefore, ///< nothing to ask
    Ask             ///< the question "Dados UPDATE1"; then `importUserStore` on Yes, `declineImport` on anything else
};

/// Decides the step; without a user store it notes that there is nothing to ask for any more. The store must be open
/// for writing.
Result<ImportStep> importStep(Store &store, const QString &userPath, Occasion occasion);

/// Notes that the question was not answered with Yes: it comes once more, then never again.
Result<Done> declineImport(Store &store);

/// What an import brought.
struct ImportSummary
{
    int rails = 0;      ///< rows that got the recorded readings of the user store
    int recordings = 0; ///< added or overwritten
    int commands = 0;   ///< added
    int settings = 0;   ///< 1 when those of the screens were taken
    int leftOut = 0;    ///< rows with something in them that have no place here or were damaged
};

/// What was taken, in words.
Notice toldOf(const ImportSummary &summary);

/// Copies what a user store holds, all or nothing, and notes that it is done. The user store is looked at closely
/// first and is not changed; trouble about it names its path, and then nothing was taken.
Result<ImportSummary> importUserStore(Store &store, const QString &userPath);
