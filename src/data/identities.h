#pragma once

#include "store.h"

/// Gives every row that benches may share one day an identity of its own, and the board that it is of: findings,
/// readings of good boards, recordings and notes. A survey has had them from the start.
Result<Done> giveIdentities(const Store &store);
