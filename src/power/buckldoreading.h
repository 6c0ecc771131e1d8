#pragma once

#include "railreading.h"

/// Bucks and LDOs of the power-management unit, from its own self-test.
const RailScreenTraits &buckLdoTraits();
