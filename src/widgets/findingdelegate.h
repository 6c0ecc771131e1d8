#pragma once

#include <QStyledItemDelegate>

class FindingsModel;

/// Draws a finding in two lines: what is wrong and by how much, then the reading, the reference and the screen.
class FindingDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit FindingDelegate(const FindingsModel &findings, QObject *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    const FindingsModel &m_findings;
};
