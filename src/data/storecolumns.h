#pragma once

#include "result.h"

#include <QHash>
#include <QString>

class Store;

/// A column as the file tells of it.
struct StoreColumn
{
    QString type;
    bool generated = false;
};

/// The columns of every table in a store's file.
class StoreColumns
{
public:
    static Result<StoreColumns> in(const Store &store);

    /// Nothing where there is no such column. Letter case does not matter.
    const StoreColumn *find(const QString &table, const QString &column) const;

    bool hasTable(const QString &table) const;

private:
    QHash<QString, QHash<QString, StoreColumn>> m_tables;
};
