#pragma once

#include "screencommand.h"

/// The tests of what is not a supply: storage, radios, buses, display and memory.
std::span<const ScreenCommand> checkCommands();
