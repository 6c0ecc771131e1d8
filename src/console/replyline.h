#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// A line of a reply as it is compared.
struct ReplyLine
{
    int number = 0;        ///< in the text it comes from, from 1
    QString text;          ///< as it is shown
    QString compared = {}; ///< masked, whatever its letter case
    QString label = {};    ///< of what is compared
    bool masks = false;    ///< a part of it is masked
};

/// What stands before the value in a line of the shape "LABEL VALUE UNIT"; empty for any other.
QString labelOf(QStringView line);

/// The lines of a reply that say something: without empty ones and without the prompt.
QList<ReplyLine> replyLines(const QString &reply, const QStringList &masks);
