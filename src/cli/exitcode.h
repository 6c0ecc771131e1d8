#pragma once

#include "verdict.h"

/// What `prelt` ends with; scripts rely on the numbers.
enum class ExitCode
{
    Good = 0,
    Fault = 1,
    Usage = 2,
    Link = 3,
    Store = 4,
    Incomplete = 5
};

constexpr ExitCode exitCodeFor(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Fail:
        return ExitCode::Fault;
    case Verdict::Incomplete:
        return ExitCode::Incomplete;
    case Verdict::None:
    case Verdict::Pass:
        break;
    }
    return ExitCode::Good;
}
