#include "valuefield.h"

#include "theme.h"

#include <QPainter>

static constexpr int kHeight = 26;

ValueField::ValueField(const QString &sample, QWidget *parent) : PlainLabel({}, parent)
{
    setFont(tabularFont());
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setContentsMargins(Spacing::unit, 0, Spacing::unit + 2, 0);
    setFixedSize(fontMetrics().horizontalAdvance(sample) + 3 * Spacing::unit, kHeight);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
}

void ValueField::paintEvent(QPaintEvent *event)
{
    const Theme &theme = currentTheme();
    QPainter painter(this);
    painter.fillRect(rect(), autoFillBackground() ? palette().color(QPalette::Window) : theme.surface);
    painter.setPen(theme.border);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.end();
    PlainLabel::paintEvent(event);
}
