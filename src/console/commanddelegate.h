#pragma once

#include <QStyledItemDelegate>

/// A command in a list, its description dimmed beside it.
class CommandDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    static constexpr int Description = Qt::UserRole + 1;

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
