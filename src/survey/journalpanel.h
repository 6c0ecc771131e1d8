#pragma once

#include "journal.h"
#include "journalcomparison.h"
#include "language.h"

/// The surveys as the rows of a table: time, model, serial number, outcome, faults, note.
QList<Row> surveyRows(const QList<JournalSurvey> &surveys, Language language);

/// Two surveys as the rows of a table: what changed, what, and reading, deviation and verdict before and after.
QList<Row> comparisonRows(const QList<ComparedOutput> &outputs, Language language);

/// How many outputs changed how, what matters most first; or that none did.
QString changeCounts(const QList<ComparedOutput> &outputs, Language language);

/// When a survey began, as the clock on the wall said; a time that is none stays as it was kept.
QString startOf(const JournalSurvey &survey);
/// The name that tells a survey apart: time, model, serial number.
QString surveyName(const JournalSurvey &survey, Language language);
/// The caption key of how it ended. What never ended was broken off, or is going on.
QStringView outcomeKey(const JournalSurvey &survey);

QList<Finding> findingsOf(const JournalEntry &entry);
/// The verdict on the whole board; a survey that did not come to its end is never good.
Verdict verdictOf(const JournalEntry &entry);

/// What went over the line, whatever it holds, as text that may be shown.
QString exchangeText(const JournalEntry &entry, Language language);
