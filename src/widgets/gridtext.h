#pragma once

#include <QByteArray>
#include <QModelIndexList>

class QAbstractItemModel;

/// The cells as text for the clipboard: tabs between them, one line per row, in the order of the table.
QString copiedText(QModelIndexList cells);

/// The whole table, its captions first, as lines of cells.
QList<QStringList> tableText(const QAbstractItemModel &model);

/// A CSV file of these lines: UTF-8 with its mark, so that spreadsheets read the accents, and CR LF.
QByteArray csvFile(const QList<QStringList> &lines);
