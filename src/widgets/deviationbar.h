#pragma once

#include "verdict.h"

#include <QColor>
#include <QRect>

#include <optional>

class QPainter;

/// Where the parts of a deviation bar lie, in the pixels of the area it was made for.
struct DeviationBar
{
    QRect bar = {}; ///< from zero to the deviation, at least two pixels wide unless it is zero
    int zero = 0;
    std::optional<int> lowMark = {};
    std::optional<int> highMark = {};
    bool clipped = false; ///< the deviation lies beyond the end of the scale
};

/// The deviation in per cent at the ends of the scale: twice the wider limit, so that the limits stand half way.
double fullScale(const std::optional<Rule> &rule);

DeviationBar deviationBar(const QRect &area, double deviation, const std::optional<Rule> &rule);

/// What a deviation bar is drawn in.
struct BarColours
{
    QColor bar;
    QColor line;   ///< zero and, paler, the limits
    QColor behind; ///< shows through where the bar goes on beyond the scale
};

/// Draws the bar around zero with the limits of the rule.
void paintDeviation(QPainter &painter, const QRect &area, double deviation, const std::optional<Rule> &rule,
                    const BarColours &colours);
