#include "storeinspection.h"

#include "completion.h"
#include "oddrows.h"
#include "queries.h"
#include "quietstore.h"
#include "recordings.h"
#include "schema.h"
#include "storelimits.h"
#include "storetrouble.h"

#include <QSqlError>
#include <QSqlRecord>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Kind = StoreFinding::Kind;
using Findings = QList<StoreFinding>;

constexpr QLatin1StringView kReferenceTables[] = {"Master"_L1, "Rf"_L1,     "i"_L1,     "Comandos"_L1, "Dados"_L1,
                                                  "M"_L1,      "Combos"_L1, "Tools"_L1, "Ultimo"_L1};
constexpr QLatin1StringView kUserTables[] = {"Master"_L1, "Comandos"_L1, "Dados"_L1, "Combos"_L1};

using Tables = std::span<const QLatin1StringView>;

/// What a store must have for its role.
Tables tablesFor(StoreRole role)
{
    return role == StoreRole::User ? Tables(kUserTables) : Tables(kReferenceTables);
}

// A text of a query that is made from the table of the schema alone.
Result<QList<QStringList>> rowsOf(const Store &store, const QString &sql)
{
    const std::string text = sql.toStdString();
    Result<QSqlQuery> query = store.run({"", text});
    if (!query)
        return query.trouble();
    QList<QStringList> rows;
    while (query->next()) {
        QStringList row;
        for (int column = 0; column < query->record().count(); ++column)
            row += query->value(column).toString();
        rows += row;
    }
    if (query->lastError().isValid())
        return store.trouble(*query);
    return rows;
}

/// Reading on after damage is no use, but what it says is a finding like the others.
Findings foundOr(const Result<Findings> &found)
{
    return found ? *found : Findings{{Kind::Damaged, u"file"_s, plainName(found.trouble().what.arguments.value(1))}};
}

Result<Findings> brokenPages(const Store &store)
{
    Result<QSqlQuery> lines = store.run(kIntegrity);
    if (!lines)
        return lines.trouble();
    Findings found;
    while (lines->next())
        if (const QString line = lines->value(0).toString(); line != "ok"_L1)
            found += {Kind::Damaged, u"file"_s, line.simplified()};
    if (lines->lastError().isValid())
        return store.trouble(*lines);
    return found;
}

QString countOfStrange(const SchemaTable &table, const QString &column)
{
    if (isNumberColumn(column))
        return u"total(typeof(%1) not in ('integer', 'null'))"_s.arg(column);
    return u"total(typeof(%1) not in ('text', 'null') or length(cast(%1 as blob)) > %2)"_s.arg(column).arg(
        longestText(table));
}

Result<Findings> strangeValues(const Store &store, const SchemaTable &table)
{
    const QStringList columns = columnsOf(table);
    QStringList counts{u"count(*)"_s};
    for (const QString &column : columns)
        counts += countOfStrange(table, column);
    const auto rows = rowsOf(store, u"Select %1 from %2"_s.arg(counts.join(u", "_s), table.name));
    if (!rows)
        return rows.trouble();
    Findings found;
    if (const int count = rows->first().first().toInt(); mostRows(table) > 0 && count > mostRows(table))
        found += {Kind::Foreign, table.name, u"has %1 rows, far too many for a store"_s.arg(count)};
    for (qsizetype column = 0; column < columns.size(); ++column) {
        if (const int count = static_cast<int>(rows->first().value(column + 1).toDouble()))
            found += {Kind::Foreign, table.name + u'.' + columns[column],
                      u"%1 values of the wrong type, or far too long"_s.arg(count)};
    }
    return found;
}

Findings strangeValues(const Store &store, Tables given)
{
    Findings found;
    for (const SchemaTable &table : schemaTables()) {
        if (table.origin == SchemaTable::Origin::Added || std::ranges::find(given, table.name) != given.end())
            found += foundOr(strangeValues(store, table));
    }
    return found;
}

Result<Findings> changedRecordings(const Store &store)
{
    const Result<QList<KeptRecording>> all = allRecordings(store);
    if (!all)
        return all.trouble();
    Findings found;
    for (const auto &[recording, integrity] : *all) {
        if (integrity == Integrity::Changed) {
            found += {Kind::Untidy, u"Dados"_s,
                      u"the recording %1: %2 changed since it was saved"_s.arg(plainName(recording.aparelho),
                                                                               plainName(recording.comando))};
        }
    }
    return found;
}

Result<Findings> repeatedRows(const Store &store)
{
    Findings found;
    for (const auto table : {"Tools"_L1, "Combos"_L1, "Ultimo"_L1}) {
        const auto rows = rowsOf(store, u"Select count(*) from %1"_s.arg(table));
        if (!rows)
            return rows.trouble();
        if (const int count = rows->first().first().toInt(); count > 1 || (count == 0 && table != "Ultimo"_L1))
            found += {Kind::Untidy, table, u"%1 rows instead of one"_s.arg(count)};
    }
    Result<QSqlQuery> repeated = store.run(kRepeatedRecordings);
    if (!repeated)
        return repeated.trouble();
    while (repeated->next()) {
        found += {Kind::Untidy, u"Dados"_s,
                  u"%1 recordings of %2: %3"_s.arg(repeated->value(2).toInt())
                      .arg(plainName(repeated->value(0).toString()), plainName(repeated->value(1).toString()))};
    }
    return found;
}

Result<Findings> findingsOfOddRows(const Store &store)
{
    const Result<QList<OddRow>> odd = oddRows(store);
    if (!odd)
        return odd.trouble();
    Findings found;
    for (const OddRow &row : *odd)
        found += row.finding;
    return found;
}

Result<Findings> closerFindings(const Store &store, StoreRole role)
{
    if (const Findings broken = foundOr(brokenPages(store)); !broken.isEmpty())
        return broken;
    if (const Result<Done> completed = completeForReading(store); !completed)
        return completed.trouble();
    Findings found = strangeValues(store, tablesFor(role));
    found += foundOr(changedRecordings(store));
    if (role == StoreRole::Reference)
        found += foundOr(repeatedRows(store)) + foundOr(findingsOfOddRows(store));
    return found;
}

Result<Findings> findingsIn(const Store &store, StoreRole role, Depth depth)
{
    for (const Result<Findings> &found : {strangeParts(store), strangeColumns(store, tablesFor(role))})
        if (!found || !found->isEmpty())
            return found;
    return depth == Depth::Quick ? Result(Findings()) : closerFindings(store, role);
}

} // namespace

Result<Findings> storeFindings(const QString &path, StoreRole role, Depth depth, std::chrono::milliseconds patience)
{
    const Result<QuietStore> store = QuietStore::open(path, patience);
    if (!store)
        return store.trouble();
    const Result<Findings> found = findingsIn(store->store(), role, depth);
    return found ? found : toldOf(path, found.trouble());
}

Result<Done> inspectStore(const QString &path, StoreRole role, Depth depth, std::chrono::milliseconds patience)
{
    const Result<Findings> found = storeFindings(path, role, depth, patience);
    if (!found)
        return found.trouble();
    const auto grave = std::ranges::find_if(*found, [](const auto &one) { return one.kind < Kind::Untidy; });
    return grave == found->end() ? Result(Done{}) : troubleOf(*grave, path);
}
