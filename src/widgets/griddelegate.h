#pragma once

#include <QStyledItemDelegate>

class PanelModel;

/// Draws the cells of a panel's rows: faults and gaps as fields of colour, deviations as bars, verdicts as shapes with
/// their words.
class GridDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit GridDelegate(const PanelModel &rows, QObject *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    const PanelModel &m_rows;
};
