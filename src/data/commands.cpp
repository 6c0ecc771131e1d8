#include "commands.h"

#include "queries.h"

#include <QSqlError>

using namespace Qt::StringLiterals;

static CommandRow rowAt(const QSqlQuery &query)
{
    const auto text = [&query](const QString &column) { return query.value(column).toString(); };
    return {text(u"Comando"_s), {text(u"Info"_s), text(u"Info2"_s), text(u"Info3"_s)}};
}

static Result<Done> doneBy(const Result<QSqlQuery> &query)
{
    return query ? Result(Done{}) : query.trouble();
}

Result<QList<CommandRow>> commandRows(const Store &store)
{
    Result<QSqlQuery> query = store.run(kCommandsSorted);
    if (!query)
        return query.trouble();
    QList<CommandRow> rows;
    while (query->next())
        rows.append(rowAt(*query));
    if (query->lastError().isValid())
        return store.trouble(*query);
    return rows;
}

Result<Done> addCommand(Store &store, const QString &comando)
{
    Result<QSqlQuery> present = store.run(kCommand, {{u":command"_s, comando}});
    if (!present)
        return present.trouble();
    if (present->next())
        return Done{};
    const QString empty = u""_s;
    return doneBy(store.run(
        kAddCommand, {{u":Comando"_s, comando}, {u":Info"_s, empty}, {u":Info2"_s, empty}, {u":Info3"_s, empty}}));
}

Result<Done> writeDescriptions(Store &store, const CommandRow &row)
{
    return doneBy(store.run(kWriteDescriptions, {{u":command"_s, row.comando},
                                                 {u":Info"_s, row.info[0]},
                                                 {u":Info2"_s, row.info[1]},
                                                 {u":Info3"_s, row.info[2]}}));
}

Result<Done> deleteCommand(Store &store, const QString &comando)
{
    return doneBy(store.run(kDeleteCommand, {{u":command"_s, comando}}));
}
