#include "railrows.h"

#include "queries.h"
#include "railorder.h"
#include "storetrouble.h"

#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct OrderedQuery
{
    RailOrder order;
    const Query *query;
};

constexpr OrderedQuery kOrderedQueries[] = {
    {RailOrder::Orig, &kRailsByOrig},         {RailOrder::ModeloOrig, &kRailsByModelOrig},
    {RailOrder::CiOrig, &kRailsByChipOrig},   {RailOrder::PorcDescending, &kRailsByPorc},
    {RailOrder::Malha, &kRailsByMalha},       {RailOrder::ModeloMalha, &kRailsByModelMalha},
    {RailOrder::CiMalha, &kRailsByChipMalha},
};

struct TextColumn
{
    QLatin1StringView name;
    QString RailRow::*field;
};

constexpr TextColumn kTextColumns[] = {
    {"Modelo"_L1, &RailRow::modelo}, {"Orig"_L1, &RailRow::orig},       {"Malha"_L1, &RailRow::malha},
    {"Ci"_L1, &RailRow::ci},         {"RefT"_L1, &RailRow::refT},       {"RefV"_L1, &RailRow::refV},
    {"REF"_L1, &RailRow::ref},       {"Leitura"_L1, &RailRow::leitura}, {"PORC"_L1, &RailRow::porc},
};

struct Origin
{
    QString source;
    QString confidence;
};

QVariantMap keysOf(const RailFilter &filter)
{
    return {{u":model"_s, filter.modelo}, {u":kind"_s, filter.tipo}};
}

Result<QHash<QString, Origin>> origins(const Store &store, const RailFilter &filter)
{
    Result<QSqlQuery> query = store.run(kRailSources, keysOf(filter));
    if (!query)
        return query.trouble();
    QHash<QString, Origin> byOutput;
    while (query->next())
        byOutput.insert(query->value(0).toString().toLower(), {query->value(2).toString(), query->value(1).toString()});
    if (query->lastError().isValid())
        return store.trouble(*query);
    return byOutput;
}

struct Taken
{
    QString refV;
    QString source;
};

using TakenByOutput = QHash<QString, Taken>;

/// The references that were taken from boards.
Result<TakenByOutput> takenReferences(const Store &store, const RailFilter &filter)
{
    Result<QSqlQuery> query = store.run(kTakenReferences, keysOf(filter));
    if (!query)
        return query.trouble();
    TakenByOutput byOutput;
    while (query->next())
        byOutput.insert(query->value(0).toString().toLower(), {query->value(1).toString(), query->value(2).toString()});
    if (query->lastError().isValid())
        return store.trouble(*query);
    return byOutput;
}

RailRow rowAt(const QSqlQuery &query)
{
    RailRow row;
    row.id = query.value(u"rowid"_s).toLongLong();
    row.tipo = query.value(u"TIPO"_s).toInt();
    for (const TextColumn &column : kTextColumns)
        row.*column.field = query.value(column.name).toString();
    for (std::size_t slot = 0; slot < row.g.size(); ++slot)
        row.g[slot] = query.value(u"G%1"_s.arg(slot + 1)).toString();
    return row;
}

RailRow withOrigin(RailRow row, const QHash<QString, Origin> &known, const TakenByOutput &takenByOutput)
{
    const QString output = row.orig.toLower();
    const Origin origin = known.value(output);
    const Taken taken = takenByOutput.value(output);
    row.isTaken = !row.refV.isEmpty() && taken.refV == row.refV;
    row.source = row.isTaken ? taken.source : origin.source;
    row.confidence = row.isTaken ? QString() : origin.confidence;
    return row;
}

Result<QList<RailRow>> rowsOf(const Store &store, const Query &query, const RailFilter &filter)
{
    const Result<QHash<QString, Origin>> known = origins(store, filter);
    if (!known)
        return known.trouble();
    const Result<TakenByOutput> taken = takenReferences(store, filter);
    if (!taken)
        return taken.trouble();
    Result<QSqlQuery> rails = store.run(query, keysOf(filter));
    if (!rails)
        return rails.trouble();
    QList<RailRow> rows;
    while (rails->next())
        rows += withOrigin(rowAt(*rails), *known, *taken);
    if (rails->lastError().isValid())
        return store.trouble(*rails);
    return rows;
}

// An update of a row that is not there changes nothing and is no error to the engine; to whoever recorded it, it is.
Result<Done> updated(const Store &store, QSqlQuery &query, const QVariantMap &values)
{
    if (const Result<Done> done = store.rerun(query, values); !done)
        return done;
    if (query.numRowsAffected() != 1)
        return storeTrouble(u"STORE_FAILED"_s, store.path(), u"no rail %1"_s.arg(values[u":id"_s].toString()));
    return Done{};
}

Result<Done> writeEach(const Store &store, const Query &query, const QList<QVariantMap> &rows)
{
    QSqlQuery update = store.prepared(query);
    for (const QVariantMap &values : rows)
        if (const Result<Done> done = updated(store, update, values); !done)
            return done;
    return Done{};
}

} // namespace

Result<QList<RailRow>> railRows(const Store &store, const RailFilter &filter)
{
    if (filter.onlyReadable) {
        const Result<QList<RailRow>> rows = rowsOf(store, kReadableRails, filter);
        return rows ? Result(sorted(*rows, filter.order)) : rows;
    }
    return rowsOf(store, *std::ranges::find(kOrderedQueries, filter.order, &OrderedQuery::order)->query, filter);
}

Result<QList<RailRow>> chipRails(const Store &store, const QString &model, const QString &chip)
{
    Result<QSqlQuery> rails = store.run(kChipRails, {{u":model"_s, model}, {u":chip"_s, u'%' + chip + u'%'}});
    if (!rails)
        return rails.trouble();
    QList<RailRow> rows;
    while (rails->next())
        rows += rowAt(*rails);
    if (rails->lastError().isValid())
        return store.trouble(*rails);
    return rows;
}

Result<Done> clearReadings(Store &store)
{
    return writeReadings(store, {});
}

Result<Done> writeReadings(Store &store, const QList<RailRow> &rows)
{
    QList<QVariantMap> values;
    for (const RailRow &row : rows)
        values += {{u":id"_s, row.id}, {u":reading"_s, row.leitura}, {u":deviation"_s, row.porc}};

    Result<Transaction> transaction = Transaction::begin(store);
    if (!transaction)
        return transaction.trouble();
    if (const Result<QSqlQuery> cleared = store.run(kClearReadings); !cleared)
        return cleared.trouble();
    if (const Result<Done> written = writeEach(store, kWriteReading, values); !written)
        return written;
    return transaction->commit();
}

Result<Done> writeSlot(Store &store, Slot slot, const QList<SlotText> &texts)
{
    static constexpr const Query *kWriteSlot[] = {&kWriteG1, &kWriteG2, &kWriteG3};
    QList<QVariantMap> values;
    for (const SlotText &text : texts)
        values += {{u":id"_s, text.id}, {u":text"_s, text.text}};

    Result<Transaction> transaction = Transaction::begin(store);
    if (!transaction)
        return transaction.trouble();
    if (const Result<Done> written = writeEach(store, *kWriteSlot[static_cast<int>(slot)], values); !written)
        return written;
    return transaction->commit();
}
