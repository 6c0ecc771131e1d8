#pragma once

#include "schemacheck.h"

struct Query;

/// A row that the program can only stumble over: it is passed by, told by a check, and can be removed.
struct OddRow
{
    StoreFinding finding;
    qint64 id = 0;
    const Query *remedy = nullptr; ///< takes ":id"
};

/// References that are no numbers, devices on a bus that does not exist, settings that nobody could have set.
Result<QList<OddRow>> oddRows(const Store &store);

/// Removes them all, and says how many there were.
Result<int> removeOddRows(Store &store);
