#pragma once

#include "store.h"

#include <QList>
#include <QString>

/// A survey as the journal lists it. Times are universal, in ISO form.
struct JournalSurvey
{
    QString id;
    QString started;
    QString ended = {};   ///< empty: it never came to its end
    QString outcome = {}; ///< the program's word for how it ended
    QString model = {};
    QString serial = {}; ///< of the phone; empty: not told
    QString port = {};
    QString name = {}; ///< of the technician or the shop
    QString note = {};
    int faults = 0; ///< counted when it is read

    friend bool operator==(const JournalSurvey &, const JournalSurvey &) = default;
};

/// One exchange of a survey, as it went over the line.
struct JournalReply
{
    int place = 0; ///< in the order of the questions
    QString command;
    QString reply;
    bool cut = false;

    friend bool operator==(const JournalReply &, const JournalReply &) = default;
};

/// What a survey said of one output, all in texts.
struct JournalFinding
{
    QString output; ///< tells the outputs of one survey apart
    QString what;
    QString screens; ///< joined by a comma and a blank
    QString reading;
    QString reference;
    QString source;
    QString deviation; ///< per cent with "."; empty: none
    QString lowest;    ///< limits of the deviation, likewise
    QString highest;
    QString verdict;
    QString line;

    friend bool operator==(const JournalFinding &, const JournalFinding &) = default;
};

struct JournalEntry
{
    JournalSurvey survey;
    QList<JournalReply> replies = {};
    QList<JournalFinding> findings = {};
    bool isKnown = false; ///< its row was written before; where it is gone, somebody has deleted it
};

/// Writes what a survey has come to, all or nothing: its row, and the exchanges and findings that are new or changed.
/// What was written of it before stays, and a note that was set since. What was deleted since stays deleted.
Result<Done> keepInJournal(Store &store, const JournalEntry &entry);

/// The surveys, the newest first. A search finds any part of time, model, serial number, name or note, or of what was
/// found faulty; an empty one finds all.
Result<QList<JournalSurvey>> journal(const Store &store, const QString &search = {});

/// A survey with all that was kept of it; nothing when there is none.
Result<std::optional<JournalEntry>> journalEntry(const Store &store, const QString &id);

Result<Done> setJournalNote(Store &store, const QString &id, const QString &note);

/// The ids of the surveys that ended, or did not yet, in this way.
Result<QStringList> surveysOf(const Store &store, const QString &outcome);
Result<Done> setJournalOutcome(Store &store, const QString &id, const QString &outcome);

/// Removes a survey with its exchange and findings.
Result<Done> deleteFromJournal(Store &store, const QString &id);
