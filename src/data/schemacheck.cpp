#include "schemacheck.h"

#include "queries.h"
#include "schema.h"
#include "store.h"
#include "storecolumns.h"
#include "storetrouble.h"
#include "visibletext.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

using Kind = StoreFinding::Kind;
using Findings = QList<StoreFinding>;

Findings strangeIds(int application, int version)
{
    if (application != 0 && application != kApplicationId)
        return {{Kind::Foreign, u"application id"_s, u"belongs to another program (0x%1)"_s.arg(application, 0, 16)}};
    if (version > kSchemaVersion)
        return {{Kind::Newer, u"layout"_s, u"version %1, this program knows %2"_s.arg(version).arg(kSchemaVersion)}};
    return {};
}

// As the engine itself reads a type: by the words in it.
bool fits(const StoreColumn &column, bool number)
{
    static constexpr std::array kText = {"CHAR"_L1, "CLOB"_L1, "TEXT"_L1};
    const bool isNumber = column.type.contains("INT"_L1);
    const bool isText = std::ranges::any_of(kText, [&](auto word) { return column.type.contains(word); });
    return !column.generated && (number ? isNumber : isText && !isNumber);
}

/// A column that was added to a table later is completed; what the rows of a table are known by cannot be.
bool mayLack(const SchemaTable &table, const QString &column)
{
    return table.origin == SchemaTable::Origin::Added && !QString(table.key).split(u", "_s).contains(column);
}

Findings strangeColumnsOf(const SchemaTable &table, const StoreColumns &there)
{
    Findings found;
    for (const QString &name : columnsOf(table)) {
        const StoreColumn *column = there.find(table.name, name);
        const QString where = table.name + u'.' + name;
        if (!column && !mayLack(table, name))
            found += {Kind::Foreign, where, u"is missing"_s};
        if (column && !fits(*column, isNumberColumn(name)))
            found += {Kind::Foreign, where, u"has the wrong type %1"_s.arg(plainName(column->type))};
    }
    return found;
}

} // namespace

QString plainName(const QString &name)
{
    constexpr qsizetype kEnough = 40;
    const QString plain = visibleText(name.left(kEnough)).simplified();
    return name.size() > kEnough ? plain + u'…' : plain;
}

Result<Findings> strangeParts(const Store &store)
{
    Result<QSqlQuery> ids = store.run(kStoreIds);
    if (!ids)
        return ids.trouble();
    if (!ids->next())
        return store.trouble(*ids);
    if (const Findings found = strangeIds(ids->value(0).toInt(), ids->value(1).toInt()); !found.isEmpty())
        return found;
    Result<QSqlQuery> object = store.run(kStrangeObject);
    if (!object)
        return object.trouble();
    if (!object->next())
        return Findings();
    const QString kind = object->value(0).toString();
    return Findings{{Kind::Foreign, plainName(object->value(1).toString()),
                     kind == "table"_L1 ? u"is no ordinary table"_s : u"is a "_s + plainName(kind)}};
}

Result<Done> isOneOfOurs(const Store &store)
{
    const Result<Findings> found = strangeParts(store);
    if (!found)
        return found.trouble();
    if (!found->isEmpty() && found->first().kind != Kind::Newer)
        return troubleOf(found->first(), store.path());
    Result<QSqlQuery> rails = store.run(kHasMaster);
    if (!rails)
        return rails.trouble();
    if (!rails->next())
        return storeTrouble(u"STORE_DAMAGED"_s, store.path(), u"no table Master"_s);
    return found->isEmpty() ? Result(Done{}) : troubleOf(found->first(), store.path());
}

Result<Done> isReadable(const Store &store)
{
    const Result<Done> ours = isOneOfOurs(store);
    const bool isNewer = !ours && ours.trouble().what.key == "STORE_NEWER"_L1;
    return isNewer ? Result(Done{}) : ours;
}

Result<Findings> strangeColumns(const Store &store, std::span<const QLatin1StringView> given)
{
    const Result<StoreColumns> there = StoreColumns::in(store);
    if (!there)
        return there.trouble();
    Findings found;
    for (const SchemaTable &table : schemaTables()) {
        const bool isGiven = table.origin == SchemaTable::Origin::Given;
        if (isGiven ? std::ranges::find(given, table.name) != given.end() : there->hasTable(table.name))
            found += strangeColumnsOf(table, *there);
    }
    return found;
}

Result<Done> addedTablesAreOurs(const Store &store)
{
    const Result<Findings> found = strangeColumns(store, {});
    if (!found)
        return found.trouble();
    return found->isEmpty() ? Result(Done{}) : troubleOf(found->first(), store.path());
}

Trouble troubleOf(const StoreFinding &finding, const QString &path)
{
    const QString key = finding.kind == Kind::Foreign ? u"STORE_FOREIGN"_s
                        : finding.kind == Kind::Newer ? u"STORE_NEWER"_s
                                                      : u"STORE_DAMAGED"_s;
    return storeTrouble(key, path, finding.where + u' ' + finding.what);
}
