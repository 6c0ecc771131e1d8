#pragma once

#include "railrows.h"

/// The model whose table is filled up.
inline constexpr QLatin1StringView kFullModel{"IP X"};
inline constexpr int kFullKind = 2;
inline constexpr int kFullRows = 120;

/// Copies rails of the model within a store until it has 120, all of them with a reading. The store is a throw-away.
void fillUp(const QString &store);
