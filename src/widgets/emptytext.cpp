#include "emptytext.h"

#include "theme.h"

#include <QAbstractScrollArea>
#include <QPainter>

void paintEmptyText(QAbstractScrollArea &view, const QString &text)
{
    QPainter painter(view.viewport());
    painter.setFont(textFont());
    painter.setPen(currentTheme().dim);
    const QRect area = view.viewport()->rect().adjusted(Spacing::group, 0, -Spacing::group, 0);
    painter.drawText(area, Qt::AlignCenter | Qt::TextWordWrap, text);
}
