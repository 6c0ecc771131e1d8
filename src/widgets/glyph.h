#pragma once

#include "catalogue.h"
#include "verdict.h"

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
    Disc
};

Glyph glyphOf(Verdict verdict);

/// The word for a verdict in the user's language.
QString verdictCaption(Verdict verdict, Language language);

/// Paints the shape as large as fits in the middle of the area.
void paintGlyph(QPainter &painter, const QRectF &area, Glyph glyph, const QColor &colour);
