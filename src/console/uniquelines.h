#pragma once

#include "alignment.h"

/// The longest run of what both sequences hold exactly once: it splits a long comparison into short ones.
Pairs uniquePairs(const QList<int> &left, const QList<int> &right);
