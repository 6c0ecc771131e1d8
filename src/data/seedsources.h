#pragma once

#include "store.h"

/// Says of every rail, radio voltage and device of a store that is still as it shipped where it is known from and how
/// surely. What is said of a row already stays.
Result<Done> takeSeedSources(const Store &store);
