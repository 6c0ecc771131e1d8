#include "commanddelegate.h"

#include "theme.h"

#include <QApplication>
#include <QPainter>

#include <algorithm>

static constexpr int kCommandShare = 45; ///< per cent of the width

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
    const int wanted = item.fontMetrics.horizontalAdvance(command) + Spacing::group;
    QRect left = row;
    left.setWidth(std::max(wanted, row.width() * kCommandShare / 100));
    const QRect right = row.adjusted(left.width(), 0, 0, 0);
    painter->save();
    painter->setPen(chosen ? theme.onAccent : theme.text);
    painter->drawText(left, Qt::AlignVCenter, command);
    painter->setPen(chosen ? theme.onAccent : theme.dim);
    const QString told = index.data(Description).toString();
    painter->drawText(right, Qt::AlignVCenter,
                      item.fontMetrics.elidedText(told, Qt::ElideRight, std::max(0, right.width())));
    painter->restore();
}

QSize CommandDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    return {size.width(), std::max(size.height(), 6 * Spacing::unit)};
}
