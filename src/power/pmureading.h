#pragma once

#include "railreading.h"

/// The outputs of the power-management unit as a panel of lines, judged by a tolerance that is typed.
const RailScreenTraits &pmuTraits();

/// The tolerance in per cent that a typed text means; what is no number means 10.
double toleranceOf(const QString &text);
