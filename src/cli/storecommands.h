#pragma once

#include "exitcode.h"
#include "options.h"

/// `prelt store init`.
ExitCode initStore(const CommonOptions &options);

/// `prelt ports`.
ExitCode listPorts(const CommonOptions &options);
