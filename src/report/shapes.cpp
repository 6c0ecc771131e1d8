#include "shapes.h"

#include <QPainter>
#include <QPainterPath>

/// The lines of a shape in a square of twelve units.
static QPainterPath linesOf(Glyph glyph)
{
    QPainterPath path;
    const auto line = [&path](std::initializer_list<QPointF> points) {
        path.moveTo(*points.begin());
        for (const QPointF &point : points)
            path.lineTo(point);
    };
    switch (glyph) {
    case Glyph::Dash:
        line({{2.5, 6}, {9.5, 6}});
        break;
    case Glyph::Check:
        line({{1.5, 6.5}, {4.5, 9.5}, {10.5, 2.5}});
        break;
    case Glyph::Cross:
        line({{2, 2}, {10, 10}});
        line({{10, 2}, {2, 10}});
        break;
    case Glyph::Question:
        path.arcMoveTo(QRectF(3, 0.8, 6, 5.6), 170);
        path.arcTo(QRectF(3, 0.8, 6, 5.6), 170, -230);
        path.quadTo({6, 6.6}, {6, 8});
        line({{6, 10.9}, {6, 11.0}});
        break;
    case Glyph::Warning:
        line({{6, 1.2}, {11, 10.4}, {1, 10.4}, {6, 1.2}});
        line({{6, 4.6}, {6, 7}});
        line({{6, 8.8}, {6, 8.9}});
        break;
    case Glyph::Ring:
    case Glyph::Half:
    case Glyph::Disc:
        path.addEllipse(QRectF(1, 1, 10, 10));
        break;
    }
    return path;
}

static QPainterPath fillOf(Glyph glyph)
{
    QPainterPath path;
    if (glyph == Glyph::Disc)
        path.addEllipse(QRectF(1, 1, 10, 10));
    if (glyph == Glyph::Half) {
        path.moveTo(6, 6);
        path.arcTo(QRectF(1, 1, 10, 10), 270, 180);
        path.closeSubpath();
    }
    return path;
}

void paintGlyph(QPainter &painter, const QRectF &area, Glyph glyph, const QColor &colour)
{
    const double side = std::min(area.width(), area.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(area.center() - QPointF(side / 2, side / 2));
    painter.scale(side / 12, side / 12);
    painter.fillPath(fillOf(glyph), colour);
    painter.setPen(QPen(colour, 1.9, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(linesOf(glyph));
    painter.restore();
}
