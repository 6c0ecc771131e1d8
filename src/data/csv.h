#pragma once

#include <QList>
#include <QStringList>

#include <optional>

/// The records of a comma-separated text: cells may stand in quotes, which may hold commas, line ends and doubled
/// quotes; lines end LF or CR LF, the last one need not. A byte order mark is skipped. Nothing when a quote is not
/// closed, or when a closed one is followed by something else than a comma or a line end.
std::optional<QList<QStringList>> csvRecords(QStringView text);
