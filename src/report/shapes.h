#pragma once

#include <QRectF>

class QColor;
class QPainter;

/// The shapes that tell a state apart without its colour.
enum class Glyph
{
    Dash,
    Check,
    Question,
    Cross,
    Ring,
    Half,
    Disc,
    Warning
};

/// Paints the shape as large as fits in the middle of the area.
void paintGlyph(QPainter &painter, const QRectF &area, Glyph glyph, const QColor &colour);
