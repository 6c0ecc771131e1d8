#pragma once

#include "result.h"
#include "storefile.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariantMap>

#include <chrono>

struct Query;

/// One unit of work on a store: opened for it, closed after it.
class Store
{
public:
    enum class Access
    {
        Read,
        Write
    };

    /// Opens the file of a store. A locked one is waited for as long as `patience` says. Trouble: STORE_MISSING,
    /// STORE_LOCKED, STORE_READ_ONLY, STORE_DAMAGED, STORE_FULL, STORE_FOREIGN, STORE_NEWER or STORE_FAILED, with the
    /// path and the reason.
    static Result<Store> open(const QString &path, Access access, std::chrono::milliseconds patience);

    /// A connection to a file that nothing is known of. It runs no code that the file brings along.
    static Result<Store> connected(const QString &path, FileMode mode, std::chrono::milliseconds patience);

    /// Makes the tables in an empty file, and gives it open for writing.
    static Result<Store> makeTables(const QString &emptyFile);

    Store(Store &&other) noexcept;
    Store &operator=(Store &&) = delete;
    ~Store();

    /// A query of the catalogue, prepared; its placeholders are bound by the caller. A null text must not be bound:
    /// no column takes null (see `run`). The query must be gone before the store is.
    QSqlQuery prepared(const Query &query) const;

    /// A query of the catalogue, executed with these values by placeholder (":model"). Null texts are taken as empty.
    Result<QSqlQuery> run(const Query &query, const QVariantMap &values = {}) const;

    /// Executes a prepared query again, with other values.
    Result<Done> rerun(QSqlQuery &query, const QVariantMap &values) const;

    /// What the last error of a query comes to, in words for a person.
    Trouble trouble(const QSqlQuery &query) const;

    QString path() const { return m_path; }

private:
    explicit Store(QString connection, QString path);
    QSqlDatabase database() const;
    Result<Done> execute(const QString &statement) const;
    Result<Done> checkTables(Access access) const;
    Result<Done> prepareFor(Access access) const;

    friend class Transaction;
    QString m_connection;
    QString m_path;
};

/// Rolls back unless it was committed.
class Transaction
{
public:
    static Result<Transaction> begin(Store &store);
    Transaction(Transaction &&other) noexcept;
    Transaction &operator=(Transaction &&) = delete;
    ~Transaction();
    Result<Done> commit();

private:
    explicit Transaction(Store &store) : m_store(&store) {}
    Store *m_store = nullptr;
};
