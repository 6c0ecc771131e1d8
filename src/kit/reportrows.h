#pragma once

#include "chipreading.h"

// The rows of a report out of what a screen shows.

/// The grid of a panel in its order.
QList<ReportRow> reportRows(const Panel &panel);

/// The rows of a chip in the order of its report, a current in parentheses behind its voltage.
QList<ReportRow> reportRows(const ChipTable &table, const Panel &panel);
