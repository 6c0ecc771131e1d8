#include "elidedlabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

using namespace Qt::StringLiterals;

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {1, QLabel::minimumSizeHint().height()};
}

QRect ElidedLabel::room() const
{
    return contentsRect().adjusted(margin(), margin(), -margin(), -margin());
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty())
        return QLabel::event(event);
    if (fontMetrics().horizontalAdvance(text()) > room().width())
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), u"<qt>%1</qt>"_s.arg(text().toHtmlEscaped()),
                           this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    const QRect line = room();
    painter.drawText(line, static_cast<int>(alignment()),
                     fontMetrics().elidedText(text(), Qt::ElideRight, line.width()));
}
