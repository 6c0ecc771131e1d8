#pragma once

#include "screencommand.h"

/// The screens of the charger and display chips and of the battery.
std::span<const ScreenCommand> chipCommands();
