#include "reportmarks.h"

#include "catalogue.h"
#include "shapes.h"

#include <QAbstractTextDocumentLayout>
#include <QPaintDevice>
#include <QPainter>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kPointsPerInch = 72;
constexpr QSizeF kShapePoints{9, 8};
constexpr QSizeF kBarPoints{72, 11};
constexpr QColor kLine{0x5a, 0x67, 0x73};
constexpr double kWithoutTolerance = 20; ///< per cent at the ends of the scale

enum Object
{
    Shape = QTextFormat::UserObject + 1,
    Bar
};

enum Property
{
    VerdictProperty = QTextFormat::UserProperty + 1,
    DeviationProperty,
    ToleranceProperty
};

/// How a verdict looks on paper.
struct Look
{
    QStringView caption;
    Glyph glyph;
    QRgb ink;
    QRgb field;
};

constexpr Look kLooks[] = {
    {u"Aprovado", Glyph::Check, 0x1e7a34, 0xe2f6e4},      {u"No limite", Glyph::Warning, 0x9a5b00, 0xfff1c4},
    {u"Falha", Glyph::Cross, 0xb3261e, 0xffdfcd},         {u"Não medido", Glyph::Question, 0x9a5b00, 0xfff1c4},
    {u"Sem julgamento", Glyph::Dash, 0x5a6773, 0xf2f4f6},
};

const Look &lookOf(FindingVerdict verdict)
{
    return kLooks[static_cast<std::size_t>(verdict)];
}

FindingVerdict verdictOf(const QTextFormat &format)
{
    return static_cast<FindingVerdict>(format.intProperty(VerdictProperty));
}

/// Where a deviation lies on a scale that ends at twice the tolerance: -1 to 1.
double placeOf(double percent, double tolerance)
{
    const double scale = tolerance > 0 ? 2 * tolerance : kWithoutTolerance;
    return std::clamp(percent / scale, -1.0, 1.0);
}

void paintMark(QPainter &painter, double at, const QRectF &area, double width)
{
    painter.fillRect(QRectF(at - width / 2, area.top(), width, area.height()), kLine);
}

/// A notch near the end of the bar: it goes on beyond the scale.
void paintNotch(QPainter &painter, double end, double inwards, const QRectF &bar)
{
    const double left = std::min(end + inwards, end + 2 * inwards);
    painter.fillRect(QRectF(left, bar.top(), std::abs(inwards), bar.height()), Qt::white);
}

void paintBar(QPainter &painter, const QRectF &area, const QTextFormat &format)
{
    const double unit = area.height() / kBarPoints.height(); // one point
    const double deviation = format.doubleProperty(DeviationProperty);
    const double tolerance = format.doubleProperty(ToleranceProperty);
    const QPointF zero = area.center();
    const double half = area.width() / 2 - 2 * unit;
    const double end = zero.x() + placeOf(deviation, tolerance) * half;
    const QRectF inner = area.adjusted(0, 3 * unit, 0, -3 * unit);
    const double width = std::max(std::abs(end - zero.x()), deviation == 0 ? 0 : 1.5 * unit);
    const QRectF bar(deviation < 0 ? zero.x() - width : zero.x(), inner.top(), width, inner.height());
    painter.fillRect(bar, findingInk(verdictOf(format)));
    if (std::abs(placeOf(deviation, tolerance)) >= 1)
        paintNotch(painter, end, deviation < 0 ? 3 * unit : -3 * unit, bar);
    paintMark(painter, zero.x(), area, unit);
    for (const double side : {-0.5, 0.5})
        if (tolerance > 0)
            paintMark(painter, zero.x() + side * half, area.adjusted(0, unit, 0, -unit), unit / 2);
}

void insertObject(QTextCursor &cursor, Object object, const DrawnDeviation &drawn)
{
    QTextCharFormat format;
    format.setObjectType(object);
    format.setVerticalAlignment(QTextCharFormat::AlignMiddle);
    format.setProperty(VerdictProperty, static_cast<int>(drawn.verdict));
    format.setProperty(DeviationProperty, drawn.deviation);
    format.setProperty(ToleranceProperty, drawn.tolerance);
    cursor.insertText(QString(QChar::ObjectReplacementCharacter), format);
}

} // namespace

QString findingCaption(FindingVerdict verdict, Language language)
{
    return caption(lookOf(verdict).caption, language);
}

QColor findingInk(FindingVerdict verdict)
{
    return QColor::fromRgb(lookOf(verdict).ink);
}

QColor findingField(FindingVerdict verdict)
{
    return QColor::fromRgb(lookOf(verdict).field);
}

ReportMarks::ReportMarks(QTextDocument &document)
{
    for (const Object object : {Shape, Bar})
        document.documentLayout()->registerHandler(object, this);
}

void ReportMarks::insertShape(QTextCursor &cursor, FindingVerdict verdict)
{
    insertObject(cursor, Shape, {.verdict = verdict});
}

void ReportMarks::insertBar(QTextCursor &cursor, const DrawnDeviation &drawn)
{
    insertObject(cursor, Bar, drawn);
}

QSizeF ReportMarks::intrinsicSize(QTextDocument *document, int, const QTextFormat &format)
{
    const QPaintDevice *device = document->documentLayout()->paintDevice();
    const double scale = device ? device->logicalDpiX() / kPointsPerInch : 1;
    return (format.objectType() == Shape ? kShapePoints : kBarPoints) * scale;
}

void ReportMarks::drawObject(QPainter *painter, const QRectF &area, QTextDocument *, int, const QTextFormat &format)
{
    const FindingVerdict verdict = verdictOf(format);
    if (format.objectType() == Shape)
        paintGlyph(*painter, area, lookOf(verdict).glyph, findingInk(verdict));
    else
        paintBar(*painter, area, format);
}
