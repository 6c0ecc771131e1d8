#include "schemacheck.h"

#include "queries.h"
#include "schema.h"
#include "store.h"
#include "storetrouble.h"
#include "visibletext.h"

#include <QHash>
#include <QSqlError>

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

struct Column
{
    QString type;
    bool generated = false;
};

QString keyOf(const QString &table, const QString &column)
{
    return (table + u'.' + column).toLower();
}

Result<QHash<QString, Column>> columnsIn(const Store &store)
{
    Result<QSqlQuery> rows = store.run(kColumnsOfTables);
    if (!rows)
        return rows.trouble();
    QHash<QString, Column> columns;
    while (rows->next())
        columns.insert(keyOf(rows->value(0).toString(), rows->value(1).toString()),
                       {rows->value(2).toString().toUpper(), rows->value(3).toInt() != 0});
    if (rows->lastError().isValid())
        return store.trouble(*rows);
    return columns;
}

// As the engine itself reads a type: by the words in it.
bool fits(const Column &column, bool number)
{
    static constexpr std::array kText = {"CHAR"_L1, "CLOB"_L1, "TEXT"_L1};
    const bool isNumber = column.type.contains("INT"_L1);
    const bool isText = std::ranges::any_of(kText, [&](auto word) { return column.type.contains(word); });
    return !column.generated && (number ? isNumber : isText && !isNumber);
}

std::optional<StoreFinding> strangeColumn(const QHash<QString, Column> &columns, const QString &table,
                                          const QString &name)
{
    const auto column = columns.find(keyOf(table, name));
    const QString where = table + u'.' + name;
    if (column == columns.end())
        return StoreFinding{Kind::Foreign, where, u"is missing"_s};
    if (!fits(*column, isNumberColumn(name)))
        return StoreFinding{Kind::Foreign, where, u"has the wrong type %1"_s.arg(plainName(column->type))};
    return {};
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

Result<Done> schemaIsOurs(const Store &store)
{
    const Result<Findings> found = strangeParts(store);
    if (!found)
        return found.trouble();
    return found->isEmpty() ? Result(Done{}) : troubleOf(found->first(), store.path());
}

Result<Findings> strangeColumns(const Store &store, std::span<const QLatin1StringView> tables)
{
    const Result<QHash<QString, Column>> columns = columnsIn(store);
    if (!columns)
        return columns.trouble();
    Findings found;
    for (const SchemaTable &table : schemaTables()) {
        if (std::ranges::find(tables, table.name) == tables.end())
            continue;
        for (const QString &name : columnsOf(table)) {
            if (const auto strange = strangeColumn(*columns, table.name, name))
                found += *strange;
        }
    }
    return found;
}

Trouble troubleOf(const StoreFinding &finding, const QString &path)
{
    const QString key = finding.kind == Kind::Foreign ? u"STORE_FOREIGN"_s
                        : finding.kind == Kind::Newer ? u"STORE_NEWER"_s
                                                      : u"STORE_DAMAGED"_s;
    return storeTrouble(key, path, finding.where + u' ' + finding.what);
}
