#include "store.h"

#include "queries.h"
#include "schema.h"
#include "storetrouble.h"

#include <QFileInfo>
#include <QSqlError>
#include <QUrl>

#include <atomic>
#include <optional>
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

// Opening by address is the one way to say that a missing file must not be made. Three slashes before a drive letter
// and before a network share alike.
QString addressOf(const QString &path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    const QString rooted = absolute.startsWith(u'/') ? absolute : u'/' + absolute;
    return u"file://"_s + QString::fromLatin1(QUrl::toPercentEncoding(rooted, "/:")) + u"?mode=rw"_s;
}

// What the engine would only call "unable to open database file".
std::optional<Trouble> troubleWithFile(const QString &path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return storeTrouble(u"STORE_MISSING"_s, path, u"no such file"_s);
    if (!file.isFile())
        return storeTrouble(u"STORE_FAILED"_s, path, file.isDir() ? u"is a folder"_s : u"is not a file"_s);
    if (!file.isReadable())
        return storeTrouble(u"STORE_FAILED"_s, path, u"permission denied"_s);
    return {};
}

QVariant neverNull(const QVariant &value)
{
    return value.isNull() ? QVariant(u""_s) : value;
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

Result<Store> Store::connected(const QString &path, std::chrono::milliseconds patience)
{
    Store store(newConnectionName(), path);
    QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, store.m_connection);
    database.setDatabaseName(addressOf(path));
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
    Result<Store> store = connected(path, patience);
    if (!store)
        return store;
    if (const Result<Done> ours = store->checkTables(); !ours)
        return ours.trouble();
    if (const Result<Done> ready = store->prepareFor(access); !ready)
        return ready.trouble();
    return store;
}

Result<Store> Store::makeTables(const QString &emptyFile)
{
    Result<Store> store = connected(emptyFile, std::chrono::milliseconds(0));
    if (!store)
        return store;
    for (const QString &statement : schemaStatements())
        if (const Result<Done> made = store->execute(statement); !made)
            return made.trouble();
    return store;
}

// The first read: it also tells a file that is no database, and a lock.
Result<Done> Store::checkTables() const
{
    Result<QSqlQuery> table = run(kHasMaster);
    if (!table)
        return table.trouble();
    if (!table->next())
        return storeTrouble(u"STORE_DAMAGED"_s, m_path, u"no table Master"_s);
    return Done{};
}

// Writing is tried at once, so that who waits for a lock, or meets a write protection, is told before any work is done.
// A reader opens the file for writing too, for what an interrupted writer left must be rolled back first.
Result<Done> Store::prepareFor(Access access) const
{
    static const QStringList kReading = {u"PRAGMA query_only=ON"_s};
    static const QStringList kWriting = {u"PRAGMA journal_mode=DELETE"_s, u"PRAGMA synchronous=FULL"_s,
                                         u"BEGIN IMMEDIATE"_s, u"ROLLBACK"_s};
    for (const QString &statement : access == Access::Read ? kReading : kWriting)
        if (const Result<Done> done = execute(statement); !done)
            return done;
    return Done{};
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
    for (auto value = values.begin(); value != values.end(); ++value)
        query.bindValue(value.key(), neverNull(value.value()));
    if (!query.exec())
        return trouble(query);
    return Done{};
}

Trouble Store::trouble(const QSqlQuery &query) const
{
    return storeTrouble(query.lastError(), m_path);
}

Result<Transaction> Transaction::begin(Store &store)
{
    // Takes the write lock now: a lock met halfway could only be answered by starting over.
    if (const Result<Done> begun = store.execute(u"BEGIN IMMEDIATE"_s); !begun)
        return begun.trouble();
    return Transaction(store);
}

Transaction::Transaction(Transaction &&other) noexcept : m_store(std::exchange(other.m_store, nullptr)) {}

Transaction::~Transaction()
{
    if (m_store)
        (void)m_store->execute(u"ROLLBACK"_s);
}

Result<Done> Transaction::commit()
{
    const Result<Done> committed = m_store->execute(u"COMMIT"_s);
    if (committed)
        m_store = nullptr;
    return committed;
}
