#pragma once

#include "store.h"

#include <QString>

/// Writes every table of a store to a folder as NAME.csv (see `csvText`), with a line of column names first. Refuses
/// with STORE_EXISTS when one of the files is there; what was written until a failure is removed again. Gives the
/// number of tables.
Result<int> exportStore(const Store &store, const QString &folder);
