#include "gauge.h"

#include "theme.h"

#include <QPainter>

using namespace Qt::StringLiterals;

/// The arc is open at the bottom; angles run in sixteenths of a degree, against the clock.
static constexpr int kStart = 225 * 16;
static constexpr int kSweep = 270 * 16;
static constexpr int kWidth = 14;

Gauge::Gauge(QWidget *parent) : QWidget(parent) {}

void Gauge::setValue(int percent)
{
    m_value = percent;
    tell();
}

void Gauge::setText(const QString &text)
{
    m_text = text;
    tell();
}

void Gauge::setCaption(const QString &caption)
{
    m_caption = caption;
    tell();
}

void Gauge::tell()
{
    setAccessibleName(u"%1 %2"_s.arg(m_caption, m_text).trimmed());
    update();
}

void Gauge::paintEvent(QPaintEvent *)
{
    const Theme &theme = currentTheme();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(textFont(TextSize::Small));
    const int side = qMin(width(), height()) - kWidth;
    const QRect circle((width() - side) / 2, (height() - side) / 2, side, side);
    painter.setPen(QPen(theme.border, kWidth, Qt::SolidLine, Qt::FlatCap));
    painter.drawArc(circle, kStart, -kSweep);
    painter.setPen(QPen(theme.accent, kWidth, Qt::SolidLine, Qt::FlatCap));
    if (m_value > 0)
        painter.drawArc(circle, kStart, -kSweep * qMin(m_value, 100) / 100);
    painter.setPen(theme.dim);
    painter.drawText(rect(), Qt::AlignHCenter | Qt::AlignBottom, m_caption); // where the arc is open
    painter.setPen(m_value < 0 ? theme.dim : theme.text);
    painter.setFont(tabularFont(TextSize::Large));
    painter.drawText(circle, Qt::AlignCenter, m_text.isEmpty() ? u"–"_s : m_text);
}
