#pragma once

#include "result.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTest>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
inline constexpr bool kCanLimitFiles = true;
#else
inline constexpr bool kCanLimitFiles = false;
#endif

/// A connection beside the store's own, as another program has it.
class OtherProgram
{
public:
    explicit OtherProgram(const QString &path)
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name());
        database.setDatabaseName(path);
        database.open();
    }
    ~OtherProgram()
    {
        QSqlDatabase::database(name()).close();
        QSqlDatabase::removeDatabase(name());
    }
    OtherProgram(const OtherProgram &) = delete;
    OtherProgram &operator=(const OtherProgram &) = delete;

    void run(const QString &statement)
    {
        QSqlQuery query(QSqlDatabase::database(name()));
        QVERIFY2(query.exec(statement), qPrintable(query.lastError().text()));
    }

    void runAll(const QStringList &statements)
    {
        for (const QString &statement : statements)
            run(statement);
    }

    /// The first column of the rows, between bars.
    QString text(const QString &select)
    {
        QSqlQuery query(QSqlDatabase::database(name()));
        if (!query.exec(select))
            return query.lastError().text();
        QStringList rows;
        while (query.next())
            rows += query.value(0).toString();
        return rows.join(u'|');
    }

    /// Copies the store as a writer leaves it that was killed: with its journal.
    void leaveUnfinished(const QString &copy)
    {
        const QString path = QSqlDatabase::database(name()).databaseName();
        runAll({QStringLiteral("PRAGMA cache_size = 2"), QStringLiteral("BEGIN"),
                QStringLiteral("Update Master set G1 = hex(zeroblob(300))")});
        for (const QString &end : {QString(), QStringLiteral("-journal")})
            QVERIFY(QFile::copy(path + end, copy + end));
        run(QStringLiteral("ROLLBACK"));
    }

private:
    static QString name() { return QStringLiteral("other"); }
};

template <typename T>
QString keyOf(const Result<T> &result)
{
    return result ? QStringLiteral("done") : result.trouble().what.key;
}

/// Every file of a folder with its bytes.
inline QMap<QString, QByteArray> contentsOf(const QString &folder)
{
    QMap<QString, QByteArray> contents;
    for (const QString &name : QDir(folder).entryList(QDir::Files | QDir::Hidden)) {
        QFile file(QDir(folder).filePath(name));
        contents.insert(name, file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("unreadable"));
    }
    return contents;
}

/// What comes of work on a disk that takes a part of a store and then no more.
template <typename Work>
auto onTightDisk(const Work &work)
{
#ifdef Q_OS_UNIX
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit tight{60000, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &tight);
    const auto outcome = work();
    setrlimit(RLIMIT_FSIZE, &before);
    return outcome;
#else
    return work();
#endif
}
