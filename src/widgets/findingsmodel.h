#pragma once

#include "language.h"
#include "panel.h"

#include <QAbstractListModel>
#include <QHash>

/// What readings judged faulty, newest first. A thing judged again moves to the top instead of standing there twice;
/// one that passes later stays, marked as settled.
class FindingsModel : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    /// The language of the tips, and how the screens are called in it.
    void setWords(Language language, const QHash<QString, QString> &screens);
    QString screenCaption(const Judgement &finding) const { return m_screens.value(finding.screen, finding.screen); }

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
    Language m_language = Language::English;
    QHash<QString, QString> m_screens;
    QList<Judgement> m_findings; ///< verdict Pass: settled
};
