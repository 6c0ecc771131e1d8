#include "deviationbar.h"

#include <QPainter>

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

/// Zero and the limits stand out above and below the bar.
static void paintMark(QPainter &painter, int place, const QRect &area, const QColor &colour)
{
    static constexpr int kOut = 3;
    painter.fillRect(place, area.top() - kOut, 1, area.height() + 2 * kOut, colour);
}

void paintDeviation(QPainter &painter, const QRect &area, double deviation, const std::optional<Rule> &rule,
                    const BarColours &colours)
{
    const DeviationBar drawn = deviationBar(area, deviation, rule);
    painter.fillRect(drawn.bar, colours.bar);
    paintMark(painter, drawn.zero, area, colours.line);
    QColor pale = colours.line;
    pale.setAlphaF(0.55F);
    for (const std::optional<int> mark : {drawn.lowMark, drawn.highMark}) {
        if (mark)
            paintMark(painter, *mark, area, pale);
    }
    if (!drawn.clipped)
        return;
    // A gap near the end of the bar: it goes on beyond the scale.
    const int gap = deviation < 0 ? area.left() + 6 : area.right() - 9;
    painter.fillRect(gap, area.top(), 3, area.height(), colours.behind);
}
