#pragma once

#include "language.h"
#include "replydifference.h"

#include <QAbstractTableModel>

/// The rows of a difference for a table: a sign, the two lines, and by how much they differ.
class DifferenceModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Sign,
        Live,
        Recorded,
        Change,
        ColumnCount
    };

    using QAbstractTableModel::QAbstractTableModel;

    void show(const ReplyDifference &difference);
    void setLanguage(Language language);
    const ReplyDifference &difference() const { return m_difference; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString text(const DifferenceRow &row, int column) const;
    QString tip(const DifferenceRow &row) const;

    ReplyDifference m_difference;
    Language m_language = Language::English;
};
