#pragma once

#include "panel.h"

#include <QAbstractListModel>

/// What readings judged faulty, newest first. A thing judged again moves to the top instead of standing there twice;
/// one that passes later stays, marked as settled.
class FindingsModel : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    /// Takes the faults of a reading over, in their order, above the older ones.
    void add(const QList<Judgement> &judgements);
    void clear();

    const Judgement &finding(int place) const { return m_findings.at(place); }
    /// The faults that no later reading has settled.
    int openCount() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

signals:
    void openCountChanged(int count);

private:
    QList<Judgement> m_findings; ///< verdict Pass: settled
};
