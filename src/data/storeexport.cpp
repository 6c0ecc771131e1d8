#include "storeexport.h"

#include "csv.h"
#include "queries.h"
#include "schema.h"
#include "storetrouble.h"
#include "wholefile.h"

#include <QDir>
#include <QFile>
#include <QSqlError>

using namespace Qt::StringLiterals;

namespace {

Result<QList<QStringList>> recordsOf(const Store &store, const SchemaTable &table)
{
    const QStringList columns = columnsOf(table);
    const std::string sql = u"Select %1 from %2 order by rowid"_s.arg(columns.join(u", "_s), table.name).toStdString();
    Result<QSqlQuery> rows = store.run({"", sql});
    if (!rows)
        return rows.trouble();
    QList<QStringList> records{columns};
    while (rows->next()) {
        QStringList record;
        for (int column = 0; column < columns.size(); ++column)
            record += rows->value(column).toString();
        records += record;
    }
    if (rows->lastError().isValid())
        return store.trouble(*rows);
    return records;
}

/// The files of one export, which go again unless all of them were written.
class ExportFiles
{
public:
    ExportFiles() = default;
    ExportFiles(const ExportFiles &) = delete;
    ExportFiles &operator=(const ExportFiles &) = delete;
    ~ExportFiles()
    {
        for (const QString &path : m_written)
            QFile::remove(path);
    }

    Result<Done> write(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
            const bool taken = file.exists();
            return storeTrouble(taken ? u"STORE_EXISTS"_s : u"STORE_FAILED"_s, path,
                                taken ? u""_s : file.errorString());
        }
        m_written += path;
        if (file.write(bytes) != bytes.size() || !file.flush())
            return notWritten(file, bytes.size());
        return Done{};
    }

    void keep() { m_written.clear(); }

private:
    static Trouble notWritten(const QFile &file, qint64 size)
    {
        const bool isFull = file.error() == QFile::ResourceError || isDiskFull(file.fileName(), size);
        if (isFull)
            return storeTrouble(u"STORE_FULL"_s, file.fileName(), u"no space left on the disk"_s);
        const bool isTold = file.error() != QFile::NoError;
        return storeTrouble(u"STORE_FAILED"_s, file.fileName(), isTold ? file.errorString() : u"it was cut short"_s);
    }

    QStringList m_written;
};

} // namespace

Result<int> exportStore(const Store &store, const QString &folder)
{
    if (!QDir().mkpath(folder))
        return storeTrouble(u"STORE_FAILED"_s, folder, u"the folder cannot be made"_s);
    ExportFiles files;
    int tables = 0;
    for (const SchemaTable &table : schemaTables()) {
        const auto records = recordsOf(store, table);
        if (!records)
            return records.trouble();
        const QString path = QDir(folder).filePath(table.name + u".csv"_s);
        if (const Result<Done> written = files.write(path, csvText(*records).toUtf8()); !written)
            return written.trouble();
        ++tables;
    }
    files.keep();
    return tables;
}
