#pragma once

#include "chipreading.h"

/// The supplies of the OLED panel, and the two rails that feed its touch controller.
Panel readAcorn(const ChipInput &input);
