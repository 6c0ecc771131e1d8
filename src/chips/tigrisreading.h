#pragma once

#include "chipreading.h"

inline constexpr QLatin1StringView kTigrisCommand{"pmuadc --sel tigris --read all"};

/// The charger: whether USB power is there and how full the battery is.
Panel readTigris(const ChipInput &input);
