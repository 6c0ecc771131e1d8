#pragma once

#include "store.h"

/// Whether every added table is there with every column.
Result<bool> isComplete(const Store &store);

/// Adds to the file what it lacks, empty.
Result<Done> complete(const Store &store);

/// Gives this connection what the file lacks, empty, so that no reader has to ask what there is. The file stays.
Result<Done> completeForReading(const Store &store);
