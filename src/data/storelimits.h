#pragma once

#include "result.h"

#include <QString>

class QSqlQuery;
class Store;
struct SchemaTable;

/// The most rows that a table of a store can sensibly have; 0: the journal has as many as there are boards.
int mostRows(const SchemaTable &table);

/// The longest text of a table, in bytes.
int longestText(const SchemaTable &table);

/// The longest text that a statement may write.
int longestText(const QString &statement);

/// Whether the tables that are read as a whole can be: STORE_FOREIGN when there are far too many rows, or a text is far
/// too long. Asked at each opening, and answered at once for a file that did not change since. What cannot be read is
/// left to whoever reads it.
Result<Done> tablesAreWithinLimits(const Store &store);

/// The same for the row of a query on one of the others: recordings and the journal.
Result<Done> rowIsWithinLimits(const Store &store, const QSqlQuery &row);
