#include "store.h"

#include "completion.h"
#include "ladder.h"
#include "queries.h"
#include "schema.h"
#include "schemacheck.h"
#include "storefile.h"
#include "storelimits.h"
#include "storetrouble.h"

#include <QSqlError>

#include <atomic>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

QString newConnectionName()
{
    static std::atomic<quint64> count = 0;
    return u"prelt-store-%1"_s.arg(++count);
}

QString textOf(const Query &query)
{
    return QString::fromUtf8(query.sql.data(), static_cast<qsizetype>(query.sql.size()));
}

QVariant neverNull(const QVariant &value)
{
    return value.toString().isNull() ? QVariant(u""_s) : value;
}

} // namespace

Store::Store(QString connection, QString path) : m_connection(std::move(connection)), m_path(std::move(path)) {}

Store::Store(Store &&other) noexcept
    : m_connection(std::exchange(other.m_connection, {})), m_path(std::exchange(other.m_path, {}))
{
}

Store::~Store()
{
    if (m_connection.isEmpty())
        return;
    database().close();
    QSqlDatabase::removeDatabase(m_connection);
}

QSqlDatabase Store::database() const
{
    return QSqlDatabase::database(m_connection, false);
}

Result<Store> Store::connected(const QString &path, FileMode mode, std::chrono::milliseconds patience)
{
    Store store(newConnectionName(), path);
    QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, store.m_connection);
    database.setDatabaseName(storeAddress(path, mode));
    database.setConnectOptions(u"QSQLITE_OPEN_URI;QSQLITE_BUSY_TIMEOUT=%1"_s.arg(patience.count()));
    if (!database.open())
        return storeTrouble(database.lastError(), path);
    // A store may come from anywhere: nothing in its schema is to run functions.
    if (const Result<Done> safe = store.execute(u"PRAGMA trusted_schema=OFF"_s); !safe)
        return safe.trouble();
    return store;
}

Result<Store> Store::open(const QString &path, Access access, std::chrono::milliseconds patience)
{
    if (const std::optional<Trouble> trouble = troubleWithFile(path))
        return *trouble;
    Result<Store> store = connected(path, FileMode::Writable, patience);
    if (!store)
        return store;
    if (const Result<Done> ours = store->checkTables(access); !ours)
        return ours.trouble();
    if (const Result<Done> ready = store->prepareFor(access); !ready)
        return ready.trouble();
    if (const Result<Done> newest = access == Access::Write ? climb(*store) : Done{}; !newest)
        return newest.trouble();
    return store;
}

Result<Store> Store::makeTables(const QString &emptyFile)
{
    Result<Store> store = connected(emptyFile, FileMode::Writable, std::chrono::milliseconds(0));
    if (!store)
        return store;
    for (const QString &statement : QStringList(u"BEGIN"_s) + schemaStatements() + QStringList(u"COMMIT"_s))
        if (const Result<Done> made = store->execute(statement); !made)
            return made.trouble();
    return store;
}

// The first read: it also tells a file that is no database, and a lock. Until here nothing was written.
Result<Done> Store::checkTables(Access access) const
{
    return access == Access::Read ? isReadable(*this) : isOneOfOurs(*this);
}

// Writing is tried at once, by a statement that changes no row, so that who waits for a lock, or meets a write
// protection, is told before any work is done. A reader opens the file for writing too, for what an interrupted writer
// left must be rolled back first.
Result<Done> Store::prepareFor(Access access) const
{
    if (const Result<Done> completed = access == Access::Read ? completeForReading(*this) : Done{}; !completed)
        return completed;
    static const QStringList kReading = {u"PRAGMA query_only=ON"_s};
    static const QStringList kWriting = {u"PRAGMA journal_mode=DELETE"_s, u"PRAGMA synchronous=FULL"_s,
                                         u"Update Master set G1 = G1 Where 0"_s};
    for (const QString &statement : access == Access::Read ? kReading : kWriting)
        if (const Result<Done> done = execute(statement); !done)
            return done;
    return tablesAreWithinLimits(*this);
}

Result<Done> Store::execute(const QString &statement) const
{
    QSqlQuery query(database());
    if (!query.exec(statement))
        return trouble(query);
    return Done{};
}

QSqlQuery Store::prepared(const Query &query) const
{
    QSqlQuery prepared(database());
    prepared.setForwardOnly(true);
    prepared.prepare(textOf(query));
    return prepared;
}

Result<QSqlQuery> Store::run(const Query &query, const QVariantMap &values) const
{
    QSqlQuery ready = prepared(query);
    if (const Result<Done> done = rerun(ready, values); !done)
        return done.trouble();
    return ready;
}

// The reason of a failed preparation would be lost by executing.
Result<Done> Store::rerun(QSqlQuery &query, const QVariantMap &values) const
{
    if (query.lastError().isValid())
        return trouble(query);
    const int longest = longestText(query.lastQuery());
    for (auto value = values.begin(); value != values.end(); ++value) {
        if (value->toString().size() > longest) // it could not be read again
            return storeTrouble(u"STORE_FAILED"_s, m_path, u"a text is too long to be kept"_s);
        query.bindValue(value.key(), neverNull(value.value()));
    }
    if (!query.exec())
        return trouble(query);
    return Done{};
}

Trouble Store::trouble(const QSqlQuery &query) const
{
    return storeTrouble(query.lastError(), m_path);
}
