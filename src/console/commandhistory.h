#pragma once

#include <QStringList>

/// The commands sent in this session, newest first, and the way through them from the line that is being typed. What
/// was typed and not sent comes back below the newest.
class CommandHistory
{
public:
    const QStringList &sent() const { return m_sent; }
    void add(const QString &command);

    /// The next older or newer line than the one shown, or the same at either end.
    QString older(const QString &shown);
    QString newer(const QString &shown);

private:
    QString at(qsizetype place, const QString &shown);

    QStringList m_sent;
    qsizetype m_place = -1; ///< -1: the draft
    QString m_draft;
};
