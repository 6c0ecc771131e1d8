#pragma once

#include "store.h"

/// Takes a store step by step to the newest layout, and completes one that lacks a table or a column of it. Each step
/// is done as a whole or not at all; before the first one, what the store was is kept in its backup folder. A store
/// that is complete is not written to. Trouble: the store's, or BACKUP_FAILED.
Result<Done> climb(Store &store);
