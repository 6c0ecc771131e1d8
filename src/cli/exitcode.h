#pragma once

#include "verdict.h"

#include <array>

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

/// Of two things that happened, the one to end with: what was found counts more than what could not be finished, and
/// without its line nothing that was found is sure.
constexpr ExitCode weightier(ExitCode one, ExitCode other)
{
    using enum ExitCode;
    for (const ExitCode code : std::array{Link, Fault, Usage, Store, Incomplete})
        if (code == one || code == other)
            return code;
    return Good;
}
