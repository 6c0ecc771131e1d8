#pragma once

#include "chipreading.h"

/// The supplies of the port controller and of the accessory rail, from the power chip's own measurements.
Panel readTristar(const ChipInput &input);
