#pragma once

#include <QHash>
#include <QStaticText>
#include <QStyledItemDelegate>

#include <array>

class PanelModel;
enum class ColumnKind;

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
    void paintText(QPainter &painter, const QStyleOptionViewItem &option, ColumnKind kind) const;
    const QStaticText &shaped(const QString &text, ColumnKind kind, const QFont &font) const;

    const PanelModel &m_rows;
    mutable std::array<QHash<QString, QStaticText>, 2> m_shaped; ///< by face: shaping texts is what costs
};
