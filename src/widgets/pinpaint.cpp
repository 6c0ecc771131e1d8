#include "pinpaint.h"

#include "theme.h"

#include <QPainter>

static constexpr int kArrow = 6;
static constexpr int kNameHeight = 20;

static void paintArrow(QPainter &painter, QPoint tip)
{
    const int half = kArrow - 1;
    painter.drawPolygon(QPolygon({tip, {tip.x() - kArrow, tip.y() - half}, {tip.x() - kArrow, tip.y() + half}}));
}

void paintPin(QPainter &painter, const PinLine &pin)
{
    const Theme &theme = currentTheme();
    const bool isOut = pin.flow == Flow::Out;
    const int y = pin.readings.center().y();
    const QPoint atBlock(isOut ? pin.block.right() : pin.block.left(), y);
    const QPoint atReadings(isOut ? pin.readings.left() - Spacing::unit : pin.readings.right() + Spacing::unit, y);
    const QColor ink = pin.verdict == Verdict::None ? theme.dim : inkColour(pin.verdict, theme);
    painter.setPen(QPen(ink, pin.verdict == Verdict::Fail ? 3 : 2));
    painter.drawLine(atBlock, atReadings);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    paintArrow(painter, isOut ? atReadings : atBlock);
    QRect name(pin.block.left() + Spacing::control, y - kNameHeight / 2, pin.nameRoom, kNameHeight);
    if (isOut)
        name.moveRight(pin.block.right() - Spacing::control);
    painter.setPen(theme.dim);
    painter.drawText(name, Qt::AlignVCenter | (isOut ? Qt::AlignRight : Qt::AlignLeft), pin.name);
}
