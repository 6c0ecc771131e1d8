#include "verdict.h"

#include <algorithm>

QString word(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Pass:
        return QStringLiteral("pass");
    case Verdict::Incomplete:
        return QStringLiteral("incomplete");
    case Verdict::Fail:
        return QStringLiteral("fail");
    case Verdict::None:
        break;
    }
    return QStringLiteral("none");
}

Verdict judged(std::optional<double> deviation, const Rule &rule)
{
    if (!deviation)
        return Verdict::Incomplete;
    const bool low = rule.lowest && *deviation < *rule.lowest;
    const bool high = rule.highest && *deviation > *rule.highest;
    const bool at = deviation == rule.lowest || deviation == rule.highest;
    return low || high || (at && rule.atLimit == AtLimit::Fault) ? Verdict::Fail : Verdict::Pass;
}

Verdict worst(Verdict one, Verdict other)
{
    return std::max(one, other);
}
