#include "marklabel.h"

#include "glyph.h"
#include "theme.h"

#include <QPainter>

static constexpr int kGlyphWidth = 14;
static constexpr int kHeight = 20;

MarkLabel::MarkLabel(Verdict verdict, QWidget *parent) : PlainLabel({}, parent), m_verdict(verdict)
{
    QFont strong = textFont(TextSize::Small);
    strong.setBold(true);
    setFont(strong);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize MarkLabel::sizeHint() const
{
    const int words = text().isEmpty() ? 0 : Spacing::unit + fontMetrics().horizontalAdvance(text());
    return QSize(kGlyphWidth + words, kHeight).grownBy(contentsMargins());
}

void MarkLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QColor ink = inkColour(m_verdict, currentTheme());
    const QRect area = contentsRect();
    paintGlyph(painter, QRect(area.left() + 1, area.top(), kGlyphWidth - 2, area.height()), glyphOf(m_verdict), ink);
    painter.setPen(ink);
    painter.setFont(font());
    painter.drawText(area.adjusted(kGlyphWidth + Spacing::unit, 0, 0, 0), Qt::AlignVCenter, text());
}

MarkLabel *markNamed(const QString &name, Verdict verdict)
{
    auto *mark = new MarkLabel(verdict);
    mark->setObjectName(name);
    mark->setAccessibleName(name.section(u'(', 0, 0));
    mark->hide();
    return mark;
}
