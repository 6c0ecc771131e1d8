#pragma once

#include "chipreading.h"

/// The charger: whether USB power is there and how full the battery is.
Panel readTigris(const ChipInput &input);
