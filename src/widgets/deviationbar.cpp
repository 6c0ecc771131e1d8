#include "deviationbar.h"

#include <algorithm>
#include <cmath>

double fullScale(const std::optional<Rule> &rule)
{
    static constexpr double kWithoutRule = 20;
    // A ceiling is held against zero: a current may lie anywhere below it.
    static constexpr double kOneSided = 100;
    if (!rule)
        return kWithoutRule;
    const double limit = std::max(std::abs(rule->lowest.value_or(0)), std::abs(rule->highest.value_or(0)));
    return limit > 0 ? 2 * limit : kOneSided;
}

static QRect barTo(int end, int zero, const QRect &area)
{
    static constexpr int kLeastWidth = 2;
    const int width = std::max(std::abs(end - zero), kLeastWidth);
    const int left = end < zero ? zero - width : zero + 1;
    return {left, area.top(), width, area.height()};
}

DeviationBar deviationBar(const QRect &area, double deviation, const std::optional<Rule> &rule)
{
    const double scale = fullScale(rule);
    const int half = (area.width() - 1) / 2;
    const int zero = area.left() + half;
    const auto place = [=](double percent) {
        return zero + static_cast<int>(std::lround(std::clamp(percent / scale, -1.0, 1.0) * half));
    };
    DeviationBar drawn{.zero = zero, .clipped = std::abs(deviation) > scale};
    if (std::abs(deviation) > 0)
        drawn.bar = barTo(deviation < 0 ? std::min(place(deviation), zero - 1) : place(deviation), zero, area);
    if (rule && rule->lowest)
        drawn.lowMark = place(*rule->lowest);
    if (rule && rule->highest)
        drawn.highMark = place(*rule->highest);
    return drawn;
}
