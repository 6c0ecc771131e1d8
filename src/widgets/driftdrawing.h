#pragma once

#include <QPointF>
#include <QRect>

#include <array>
#include <optional>

class QColor;
class QPainter;

/// Where the recorded readings and the live one lie in a drawing: side by side, the higher the value the higher the
/// place. The live one is the last, in the middle of the height.
std::array<std::optional<QPointF>, 4> driftPoints(const QRect &area, const std::array<std::optional<double>, 3> &drift);

/// Draws them, joined by a line, over the level of the live one.
void paintDrift(QPainter &painter, const QRect &area, const std::array<std::optional<double>, 3> &drift,
                const QColor &ink);
