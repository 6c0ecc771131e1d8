#pragma once

#include <QList>
#include <QStringList>

#include <optional>

/// The records of a comma-separated text: cells may stand in quotes, which may hold commas, line ends and doubled
/// quotes; lines end LF or CR LF, the last one need not. A byte order mark is skipped. Nothing when a quote is not
/// closed, or when a closed one is followed by something else than a comma or a line end.
std::optional<QList<QStringList>> csvRecords(QStringView text);

/// Which cells get an apostrophe in front, so that no spreadsheet runs them.
enum class CsvGuard
{
    Exact,   ///< and those that begin with one: what follows the apostrophe is the value, see `unguarded`
    Readable ///< not numbers with their sign and unit, which a person wants to count with
};

/// The text of records, which `csvRecords` reads back: lines end CR LF, cells stand in quotes where they need to, also
/// for a spreadsheet that parts them at ";". A cell that a spreadsheet could run (it begins with "=", "+", "-", "@",
/// their wide forms, a tab or a line end) is guarded.
QString csvText(const QList<QStringList> &records, CsvGuard guard = CsvGuard::Exact);

/// The value of a cell of `csvText`.
QString unguarded(const QString &cell);
