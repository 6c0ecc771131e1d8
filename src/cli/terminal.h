#pragma once

#include "catalogue.h"
#include "panel.h"
#include "result.h"

#include <QString>

/// The text of a message on one line: what, which, what to do.
QString oneLine(const Trouble &trouble, Language language);

void printOut(const QString &text);
void printError(const QString &text);

/// Standard output is a terminal, no file and no other program.
bool printsToTerminal();

/// True when colours may be used on standard output.
bool colourWanted();

/// A text of the phone as it may go to a terminal, on one line.
QString printable(const QString &text);

/// Columns of such texts, padded to the widest cell; the last one is not.
QString aligned(QList<QStringList> rows, const QList<Qt::Alignment> &alignments);

/// The word of a verdict, large as a terminal can.
QString verdictText(Verdict verdict, Language language, bool colour);

/// A reading for people: title, grid, lines, verdict.
QString readable(const Panel &panel, Language language, bool colour);
