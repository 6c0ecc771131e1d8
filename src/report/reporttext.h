#pragma once

#include "reportdocument.h"

#include <QImage>

class QTextDocument;

// The parts of a report, each laid out in an empty document whose marks a `ReportMarks` draws.

/// Whose report it is, of which phone, and how many findings came to what.
void layOutHead(QTextDocument &document, const ReportDocument &report);
/// The names of the columns.
void layOutColumns(QTextDocument &document, Language language);
/// One finding as a row under them.
void layOutFinding(QTextDocument &document, const ReportFinding &finding, Language language);

/// The picture at the head; none when it cannot be read.
QImage logoPicture(const QString &file);

/// A text as it stands on paper: what cannot be seen is spelled out.
QString onPaper(const QString &text);
