#pragma once

#include <QList>
#include <QStringList>

#include <optional>

/// The records of a comma-separated text: cells may stand in quotes, which may hold commas, line ends and doubled
/// quotes; lines end LF or CR LF, the last one need not. A byte order mark is skipped. Nothing when a quote is not
/// closed, or when a closed one is followed by something else than a comma or a line end.
std::optional<QList<QStringList>> csvRecords(QStringView text);

/// The text of records, which `csvRecords` reads back: lines end CR LF, cells stand in quotes where they need to. A
/// cell that a spreadsheet could run (it begins with "=", "+", "-", "@", their wide forms, a tab or a line end), or
/// that begins with an apostrophe, gets an apostrophe in front. So the exact value of a cell that begins with an
/// apostrophe is what follows it; see `unguarded`.
QString csvText(const QList<QStringList> &records);

/// The value of a cell of `csvText`.
QString unguarded(const QString &cell);
