#pragma once

#include <QByteArray>
#include <QModelIndexList>

class QAbstractItemModel;

/// The cells as text for the clipboard: tabs between them, one line per row, in the order of the table.
QString copiedText(QModelIndexList cells);

/// The whole table, its captions first, as lines of cells.
QList<QStringList> tableText(const QAbstractItemModel &model);

/// One cell of a CSV file. A text that a spreadsheet would run as a formula gets an apostrophe in front; a number
/// with its sign and unit stays as it is.
QString csvCell(const QString &text);

/// A CSV file of these lines: UTF-8 with its mark, so that spreadsheets read the accents, and CR LF.
QByteArray csvFile(const QList<QStringList> &lines);
