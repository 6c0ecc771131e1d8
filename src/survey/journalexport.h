#pragma once

#include "journal.h"
#include "journalcomparison.h"
#include "language.h"
#include "reportdocument.h"

/// A survey with its findings and the raw exchange, as a JSON document.
QByteArray surveyJson(const JournalEntry &entry);

/// Two surveys, output by output, as a JSON document.
QByteArray comparisonJson(const JournalEntry &before, const JournalEntry &after);

/// A survey of the journal as the document that a customer is handed.
ReportDocument reportOf(const JournalEntry &entry, Language language);
