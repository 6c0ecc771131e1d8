#pragma once

#include "language.h"
#include "notice.h"
#include "recordings.h"
#include "replydifference.h"

#include <QJsonObject>

/// A reply held against its recording, as a command prints it.
struct Comparison
{
    QString model;
    QString command;
    Language language = Language::Portuguese;
    ReplyDifference difference;
    QString summary;
    std::optional<Integrity> integrity = {}; ///< of the recording; nothing when there is none
    bool cut = false;                        ///< the reply is not whole
    bool mark = false;                       ///< the reply stands in the recording
    QList<Notice> messages;
};

QJsonObject toJson(const Comparison &comparison);

/// The same for people: what differs as a table, the mark and the verdict.
QString readable(const Comparison &comparison);
