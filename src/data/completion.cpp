#include "completion.h"

#include "queries.h"
#include "schema.h"
#include "storecolumns.h"

using namespace Qt::StringLiterals;

namespace {

/// An added table of which something is missing.
struct Lack
{
    SchemaTable table;
    QStringList columns; ///< none: the whole table
};

Result<QList<Lack>> lacksOf(const Store &store)
{
    const Result<StoreColumns> there = StoreColumns::in(store);
    if (!there)
        return there.trouble();
    QList<Lack> lacks;
    for (const SchemaTable &table : schemaTables()) {
        if (table.origin == SchemaTable::Origin::Given)
            continue;
        QStringList missing = columnsOf(table);
        missing.removeIf([&](const QString &column) { return there->find(table.name, column); });
        if (!there->hasTable(table.name))
            lacks += {table, {}};
        else if (!missing.isEmpty())
            lacks += {table, missing};
    }
    return lacks;
}

QStringList forGood(const Lack &lack)
{
    if (lack.columns.isEmpty())
        return {tableStatement(lack.table)};
    QStringList statements;
    for (const QString &column : lack.columns)
        statements += u"alter table main.%1 add column %2"_s.arg(lack.table.name, columnStatement(column));
    return statements;
}

// What stands in the temporary part is found before what the file has under the same name.
QStringList forThisConnection(const Lack &lack)
{
    if (lack.columns.isEmpty())
        return {tableStatement(lack.table, "temp"_L1)};
    return {u"create temp view %1 as select rowid, *, '' as %2 from main.%1"_s.arg(lack.table.name,
                                                                                   lack.columns.join(u", '' as "_s))};
}

Result<Done> runEach(const Store &store, const QStringList &statements)
{
    for (const QString &statement : statements) {
        const std::string text = statement.toStdString();
        if (const auto done = store.run({"", text}); !done)
            return done.trouble();
    }
    return Done{};
}

Result<Done> mend(const Store &store, QStringList (*statementsFor)(const Lack &), const QStringList &before = {})
{
    const Result<QList<Lack>> lacks = lacksOf(store);
    if (!lacks)
        return lacks.trouble();
    QStringList statements = lacks->isEmpty() ? QStringList() : before;
    for (const Lack &lack : *lacks)
        statements += statementsFor(lack);
    return runEach(store, statements);
}

} // namespace

Result<bool> isComplete(const Store &store)
{
    const Result<QList<Lack>> lacks = lacksOf(store);
    return lacks ? Result(lacks->isEmpty()) : lacks.trouble();
}

Result<Done> complete(const Store &store)
{
    return mend(store, &forGood);
}

Result<Done> completeForReading(const Store &store)
{
    return mend(store, &forThisConnection, {u"PRAGMA temp_store=MEMORY"_s});
}
