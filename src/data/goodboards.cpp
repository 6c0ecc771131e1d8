#include "goodboards.h"

#include "newuuid.h"
#include "queries.h"

#include <QSqlError>

using namespace Qt::StringLiterals;

static constexpr int kVoltDecimals = 4;

Result<QList<GoodReading>> goodReadings(const Store &store, const QString &model)
{
    Result<QSqlQuery> query = store.run(kGoodReadings, {{u":model"_s, model}});
    if (!query)
        return query.trouble();
    QList<GoodReading> readings;
    while (query->next())
        readings.append({query->value(0).toInt(), query->value(1).toString(), query->value(2).toString(),
                         query->value(3).toString().toDouble()});
    if (query->lastError().isValid())
        return store.trouble(*query);
    return readings;
}

/// Runs a query of the catalogue for nothing but its effect.
static Result<Done> execute(const Store &store, const Query &query, const QVariantMap &values)
{
    const Result<QSqlQuery> run = store.run(query, values);
    return run ? Result<Done>(Done{}) : run.trouble();
}

/// The row is written only while it has no reference, or the one that was taken from boards before.
static Result<Done> writeReference(const Store &store, const QString &model, const TakenReference &taken)
{
    const QVariantMap rail{{u":model"_s, model}, {u":kind"_s, taken.tipo}, {u":output"_s, taken.orig}};
    QVariantMap values = rail;
    values.insert({{u":id"_s, taken.id}, {u":reference"_s, taken.refV}});
    if (const Result<Done> written = execute(store, kTakeReference, values); !written)
        return written;
    if (const Result<Done> dropped = execute(store, kDropTaken, rail); !dropped || taken.refV.isEmpty())
        return dropped;
    values.remove(u":id"_s);
    values.insert(u":source"_s, taken.source);
    return execute(store, kAddTaken, values);
}

static Result<Done> dropBoard(const Store &store, const QString &model, const QString &board)
{
    return execute(store, kDropGoodBoard, {{u":model"_s, model}, {u":board"_s, board}});
}

static Result<Done> addReading(const Store &store, const QString &model, const GoodReading &reading)
{
    return execute(store, kAddGoodReading,
                   {{u":model"_s, model},
                    {u":kind"_s, reading.tipo},
                    {u":output"_s, reading.orig},
                    {u":board"_s, reading.board},
                    {u":uuid"_s, newUuid()},
                    {u":serial"_s, reading.board.section(u' ', 2)}, // behind day and time
                    {u":volts"_s, QString::number(reading.volts, 'f', kVoltDecimals)}});
}

/// Writes one after the other, up to the first that fails.
template <typename Item, typename Write>
static Result<Done> writeEach(const QList<Item> &items, Write write)
{
    for (const Item &item : items)
        if (const Result<Done> written = write(item); !written)
            return written;
    return Done{};
}

Result<Done> changeGoodBoards(Store &store, const QString &model, const BoardChange &change)
{
    Result<Transaction> transaction = Transaction::begin(store);
    if (!transaction)
        return transaction.trouble();
    const auto by = [&](auto write) {
        return [&store, &model, write](const auto &item) { return write(store, model, item); };
    };
    if (const auto dropped = writeEach(change.dropped, by(dropBoard)); !dropped)
        return dropped;
    if (const auto added = writeEach(change.added, by(addReading)); !added)
        return added;
    if (const auto written = writeEach(change.references, by(writeReference)); !written)
        return written;
    return transaction->commit();
}
