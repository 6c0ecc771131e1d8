#include "judgedfinding.h"

#include <algorithm>
#include <cmath>

namespace {

/// From here on a deviation is marginal, as a share of the tolerance.
constexpr double kLastFifth = 0.8;

bool isMarginal(const Judgement &judgement)
{
    if (!judgement.deviation || !judgement.rule)
        return false;
    const auto [lowest, highest, atLimit] = *judgement.rule;
    const bool low = lowest && *lowest < 0 && *judgement.deviation <= *lowest * kLastFifth;
    const bool high = highest && *highest > 0 && *judgement.deviation >= *highest * kLastFifth;
    return low || high;
}

} // namespace

FindingVerdict findingVerdict(const Judgement &judgement)
{
    switch (judgement.verdict) {
    case Verdict::Pass:
        return isMarginal(judgement) ? FindingVerdict::Marginal : FindingVerdict::Pass;
    case Verdict::Fail:
        return FindingVerdict::Fail;
    case Verdict::Incomplete:
        return FindingVerdict::NotMeasured;
    case Verdict::None:
        break;
    }
    return FindingVerdict::NotJudged;
}

std::optional<double> drawnTolerance(const std::optional<Rule> &rule)
{
    if (!rule)
        return {};
    const double widest = std::max(std::abs(rule->lowest.value_or(0)), std::abs(rule->highest.value_or(0)));
    return widest > 0 ? std::optional(widest) : std::nullopt;
}
