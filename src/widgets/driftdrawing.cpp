#include "driftdrawing.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

/// Less than this at the edge of the drawing would make noise look like drift.
static constexpr double kLeastScale = 2;
static constexpr double kDot = 1.5;
static constexpr double kLiveDot = 3;

static double scaleOf(const std::array<std::optional<double>, 3> &drift)
{
    double scale = kLeastScale;
    for (const std::optional<double> percent : drift)
        scale = std::max(scale, std::abs(percent.value_or(0)));
    return scale;
}

std::array<std::optional<QPointF>, 4> driftPoints(const QRect &area, const std::array<std::optional<double>, 3> &drift)
{
    const double scale = scaleOf(drift);
    const double middle = area.top() + area.height() / 2.0;
    const double half = area.height() / 2.0 - kDot;
    const double step = (area.width() - 2 * kLiveDot) / 3.0;
    std::array<std::optional<QPointF>, 4> points;
    for (std::size_t slot = 0; slot < drift.size(); ++slot) {
        if (drift.at(slot)) // the live one has risen: the recorded one lies below it
            points.at(slot) = {area.left() + kDot + static_cast<double>(slot) * step,
                               middle + *drift.at(slot) / scale * half};
    }
    points.back() = {area.right() - kLiveDot, middle};
    return points;
}

void paintDrift(QPainter &painter, const QRect &area, const std::array<std::optional<double>, 3> &drift,
                const QColor &ink)
{
    const auto points = driftPoints(area, drift);
    const QPointF live = *points.back();
    QPolygonF line;
    for (const std::optional<QPointF> &point : points)
        if (point)
            line.append(*point);
    QColor pale = ink;
    pale.setAlphaF(0.4F);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(pale, 1, Qt::DotLine));
    painter.drawLine(QPointF(area.left(), live.y()), live);
    painter.setPen(QPen(ink, 1));
    painter.drawPolyline(line);
    painter.setBrush(ink);
    painter.setPen(Qt::NoPen);
    for (const QPointF &point : line)
        painter.drawEllipse(point, kDot, kDot);
    painter.drawEllipse(live, kLiveDot, kLiveDot);
}
