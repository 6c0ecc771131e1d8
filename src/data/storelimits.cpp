#include "storelimits.h"

#include "queries.h"
#include "schema.h"
#include "schemacheck.h"
#include "store.h"
#include "storetrouble.h"

#include <QDateTime>
#include <QFileInfo>
#include <QSqlRecord>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// A reply at full speed for twenty minutes; everything else is a line or a page.
constexpr int kLongestReply = 16 * 1024 * 1024;
constexpr int kLongestText = 64 * 1024;
// Some ten times what nine models and every command come to.
constexpr int kMostRows = 20000;
constexpr int kMostRails = 5000;          // each is looked for in each reply
constexpr int kMostGoodReadings = 400000; // a row for each rail of each good board

bool isOfJournal(const SchemaTable &table)
{
    return table.name.startsWith("Survey"_L1);
}

// What phones said, and what was found in it.
bool holdsReplies(const SchemaTable &table)
{
    return isOfJournal(table) || table.name == "Dados"_L1;
}

// One more than the limit is enough to know, however many there are.
QString statementFor(const SchemaTable &table)
{
    QStringList tooLong;
    for (const QString &column : columnsOf(table))
        tooLong += u"length(cast(%1 as blob)) > %2"_s.arg(column).arg(longestText(table));
    const QString lengths = holdsReplies(table) ? u"0"_s : tooLong.join(u" or "_s); // those would all be read
    return u"Select count(*), total(%1) from (Select * from %2 limit %3)"_s.arg(lengths, table.name)
        .arg(mostRows(table) + 1);
}

std::optional<StoreFinding> strangeSize(const Store &store, const SchemaTable &table)
{
    using Kind = StoreFinding::Kind;
    const std::string sql = statementFor(table).toStdString();
    Result<QSqlQuery> sizes = store.run({"", sql});
    if (!sizes || !sizes->next())
        return {};
    if (sizes->value(0).toInt() > mostRows(table))
        return StoreFinding{Kind::Foreign, table.name, u"has more than %1 rows"_s.arg(mostRows(table))};
    if (sizes->value(1).toDouble() > 0)
        return StoreFinding{Kind::Foreign, table.name, u"holds texts that are far too long"_s};
    return {};
}

/// The state of a file in which its tables were found good.
struct Seen
{
    QString path;
    qint64 size = 0;
    QDateTime changed;

    friend bool operator==(const Seen &, const Seen &) = default;
};

} // namespace

int mostRows(const SchemaTable &table)
{
    if (isOfJournal(table))
        return 0;
    if (table.name == "GoodBoards"_L1)
        return kMostGoodReadings;
    return table.name == "Master"_L1 ? kMostRails : kMostRows;
}

int longestText(const SchemaTable &table)
{
    return holdsReplies(table) ? kLongestReply : kLongestText;
}

int longestText(const QString &statement)
{
    const auto isMeant = [&](const SchemaTable &table) { return statement.contains(u' ' + table.name + u' '); };
    const auto found = std::ranges::find_if(schemaTables(), isMeant);
    return found == schemaTables().end() ? kLongestReply : longestText(*found);
}

Result<Done> tablesAreWithinLimits(const Store &store)
{
    static Seen lastGood; // a store is opened for each unit of work
    const QFileInfo file(store.path());
    const Seen now{store.path(), file.size(), file.lastModified()};
    if (lastGood == now)
        return Done{};
    for (const SchemaTable &table : schemaTables()) {
        if (const auto strange = isOfJournal(table) ? std::nullopt : strangeSize(store, table))
            return troubleOf(*strange, store.path());
    }
    lastGood = now;
    return Done{};
}

Result<Done> rowIsWithinLimits(const Store &store, const QSqlQuery &row)
{
    const QSqlRecord record = row.record();
    for (int column = 0; column < record.count(); ++column) {
        if (row.value(column).toByteArray().size() > kLongestReply)
            return storeTrouble(u"STORE_FOREIGN"_s, store.path(), u"a text is far too long"_s);
    }
    return Done{};
}
