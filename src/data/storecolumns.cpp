#include "storecolumns.h"

#include "queries.h"
#include "store.h"

#include <QSqlError>

Result<StoreColumns> StoreColumns::in(const Store &store)
{
    Result<QSqlQuery> rows = store.run(kColumnsOfTables);
    if (!rows)
        return rows.trouble();
    StoreColumns columns;
    while (rows->next())
        columns.m_tables[rows->value(0).toString().toLower()].insert(
            rows->value(1).toString().toLower(), {rows->value(2).toString().toUpper(), rows->value(3).toInt() != 0});
    if (rows->lastError().isValid())
        return store.trouble(*rows);
    return columns;
}

const StoreColumn *StoreColumns::find(const QString &table, const QString &column) const
{
    const auto columns = m_tables.find(table.toLower());
    if (columns == m_tables.end())
        return nullptr;
    const auto found = columns->find(column.toLower());
    return found == columns->end() ? nullptr : &*found;
}

bool StoreColumns::hasTable(const QString &table) const
{
    return m_tables.contains(table.toLower());
}
