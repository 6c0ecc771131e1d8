#pragma once

#include "schemacheck.h"

#include <chrono>

/// How closely a store is looked at.
enum class Depth
{
    Quick, ///< the head, the tables and their columns: a few milliseconds
    Whole  ///< every page, every value and every recording as well
};

/// What a store is to be used for: it needs the tables for that.
enum class StoreRole
{
    Reference, ///< the program's own
    User       ///< one to import from
};

/// Everything that is wrong with a store. Neither the file nor anything beside it is changed: what an interrupted
/// writer left is settled in a copy. Not to be called while this process has the store open (closing the file here
/// would drop the locks there). Trouble: it cannot be read at all.
Result<QList<StoreFinding>> storeFindings(const QString &path, StoreRole role, Depth depth,
                                          std::chrono::milliseconds patience = {});

/// Whether a store can be trusted; untidiness is no hindrance. Trouble: what the first finding comes to.
Result<Done> inspectStore(const QString &path, StoreRole role, Depth depth, std::chrono::milliseconds patience = {});
