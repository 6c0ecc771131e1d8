#include "commandhistory.h"

void CommandHistory::add(const QString &command)
{
    m_sent.prepend(command);
    m_place = -1;
    m_draft.clear();
}

QString CommandHistory::older(const QString &shown)
{
    return at(m_place + 1, shown);
}

QString CommandHistory::newer(const QString &shown)
{
    return at(m_place - 1, shown);
}

QString CommandHistory::at(qsizetype place, const QString &shown)
{
    const bool isDraft =
        m_place < 0 || shown != m_sent[m_place]; // a line taken from the history and changed is one too
    if (isDraft)
        m_draft = shown;
    if (place < -1 || place >= m_sent.size())
        return shown;
    m_place = place;
    return place < 0 ? m_draft : m_sent[place];
}
