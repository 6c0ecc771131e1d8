#include "statuslamp.h"

#include "glyph.h"
#include "theme.h"

#include <QPainter>

static constexpr int kLampWidth = 16;

void StatusLamp::setLight(Light light, const QString &text)
{
    m_light = light;
    m_text = text;
    setAccessibleName(text);
    updateGeometry();
    update();
}

QSize StatusLamp::sizeHint() const
{
    return {kLampWidth + Spacing::control + fontMetrics().horizontalAdvance(m_text) + Spacing::unit, Spacing::target};
}

void StatusLamp::paintEvent(QPaintEvent *)
{
    static constexpr Glyph kGlyphs[] = {Glyph::Ring, Glyph::Half, Glyph::Disc};
    const Theme &theme = currentTheme();
    const QColor colours[] = {theme.dim, theme.warnInk, theme.passInk};
    const auto place = static_cast<std::size_t>(m_light);
    QPainter painter(this);
    paintGlyph(painter, QRect(0, 0, kLampWidth, height()), kGlyphs[place], colours[place]);
    painter.setPen(theme.text);
    painter.drawText(rect().adjusted(kLampWidth + Spacing::control, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, m_text);
}
