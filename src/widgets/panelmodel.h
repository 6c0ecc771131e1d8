#pragma once

#include "gridcolumn.h"
#include "language.h"
#include "panel.h"

#include <QAbstractTableModel>

#include <span>

/// The rows of a panel as a table. New rows are taken over as differences: a view keeps its selection and its place as
/// long as the rows are the same ones.
class PanelModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit PanelModel(std::span<const GridColumn> columns, QObject *parent = nullptr);

    void setLanguage(Language language);
    void show(const QList<Row> &rows);

    const Row &row(int place) const { return m_rows.at(place); }
    const GridColumn &column(int place) const { return m_columns.at(place); }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

signals:
    /// Rows or captions were taken over that are not those of before, whole.
    void shown();

private:
    QString identity(const Row &row) const;
    QStringList identities(const QList<Row> &rows) const;
    QString text(const Row &row, const GridColumn &column) const;
    void update(const QList<Row> &rows);
    void reorder(const QList<Row> &rows);
    void reset(const QList<Row> &rows);

    const QList<GridColumn> m_columns;
    QList<Row> m_rows;
    Language m_language = Language::English;
};
