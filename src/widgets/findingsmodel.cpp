#include "findingsmodel.h"

#include "plaintext.h"
#include "sourcetext.h"

#include <algorithm>

using namespace Qt::StringLiterals;

static bool isSameThing(const Judgement &one, const Judgement &other)
{
    return one.screen == other.screen && one.what == other.what;
}

static void take(QList<Judgement> &newer, QList<Judgement> &older, const Judgement &judgement)
{
    const auto same = [&judgement](const Judgement &known) { return isSameThing(known, judgement); };
    const auto known = std::ranges::find_if(older, same);
    if (judgement.verdict == Verdict::Fail) {
        if (known != older.end())
            older.erase(known);
        newer.append(judgement);
    } else if (judgement.verdict == Verdict::Pass && known != older.end()) {
        *known = judgement;
    }
}

void FindingsModel::add(const QList<Judgement> &judgements)
{
    QList<Judgement> newer;
    QList<Judgement> older = m_findings;
    for (const Judgement &judgement : judgements)
        take(newer, older, judgement);
    newer += older;
    if (newer == m_findings)
        return;
    beginResetModel();
    m_findings = newer;
    endResetModel();
    emit openCountChanged(openCount());
}

void FindingsModel::setWords(Language language, const QHash<QString, QString> &screens)
{
    m_language = language;
    m_screens = screens;
    if (!m_findings.isEmpty())
        emit dataChanged(index(0), index(rowCount() - 1));
}

void FindingsModel::clear()
{
    beginResetModel();
    m_findings.clear();
    endResetModel();
    emit openCountChanged(0);
}

int FindingsModel::openCount() const
{
    return static_cast<int>(std::ranges::count(m_findings, Verdict::Fail, &Judgement::verdict));
}

int FindingsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_findings.size());
}

QVariant FindingsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Judgement &shown = finding(index.row());
    if (role == Qt::DisplayRole)
        return QStringList{screenCaption(shown), shown.what, shown.reading, shown.reference}.join(u'\t');
    return role == Qt::ToolTipRole ? plainToolTip(sourceText(shown.source, m_language)) : QVariant();
}
