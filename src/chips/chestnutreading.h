#pragma once

#include "chipreading.h"

inline constexpr QLatin1StringView kChestnutCommand{"pmuadc --sel chestnut --read all"};
inline constexpr QLatin1StringView kTouchOn{"touch --on"};

/// The supplies of the LCD panel and of its touch controller.
Panel readChestnut(const ChipInput &input);

inline constexpr QLatin1StringView kTouchSupply{"PP5V1_TOUCH_VDDH"};
/// The touch supply was measured out of tolerance; one that was not measured is no reason to switch it.
bool isTouchSupplyFaulty(const Panel &panel);
