#include "commanddelegate.h"

#include "theme.h"

#include <QApplication>
#include <QPainter>

#include <algorithm>

/// The descriptions begin in a column where the commands are not longer than most.
static constexpr int kCommandCharacters = 28;

static int commandWidth(const QFontMetrics &metrics, const QString &command)
{
    return std::max(metrics.averageCharWidth() * kCommandCharacters, metrics.horizontalAdvance(command)) +
           Spacing::group;
}

void CommandDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QString command = item.text;
    item.text.clear();
    QApplication::style()->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

    const bool chosen = option.state.testFlag(QStyle::State_Selected);
    const Theme &theme = currentTheme();
    const QRect row = option.rect.adjusted(Spacing::control, 0, -Spacing::control, 0);
    QRect left = row;
    left.setWidth(commandWidth(item.fontMetrics, command));
    const QRect right = row.adjusted(left.width(), 0, 0, 0);
    painter->save();
    painter->setPen(chosen ? theme.onAccent : theme.text);
    painter->drawText(left, Qt::AlignVCenter, command);
    painter->setPen(chosen ? theme.onAccent : theme.dim);
    const QString told = index.data(Description).toString();
    painter->drawText(right, Qt::AlignVCenter,
                      item.fontMetrics.elidedText(told, Qt::ElideMiddle, std::max(0, right.width())));
    painter->restore();
}

QSize CommandDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    const int command = commandWidth(option.fontMetrics, index.data().toString());
    const int told = option.fontMetrics.horizontalAdvance(index.data(Description).toString());
    return {command + told + 2 * Spacing::control, std::max(size.height(), 6 * Spacing::unit)};
}
