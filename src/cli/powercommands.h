#pragma once

#include "screencommand.h"

/// The readings of the power supplies.
std::span<const ScreenCommand> powerCommands();
