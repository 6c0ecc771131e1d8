#include "backups.h"

#include "intoplace.h"
#include "queries.h"
#include "schemacheck.h"
#include "store.h"
#include "storetrouble.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Writes to a file that must not be there yet.
Result<Done> copyInto(const QString &path, const QString &target)
{
    if (const std::optional<Trouble> trouble = troubleWithFile(path))
        return *trouble;
    // A store opened for reading refuses even to write elsewhere.
    const Result<Store> store = Store::connected(path, FileMode::Writable, 0ms);
    if (!store)
        return store.trouble();
    if (const Result<Done> ours = isReadable(*store); !ours)
        return ours;
    const auto copied = store->run(kCopyInto, {{u":file"_s, target}});
    return copied ? Result(Done{}) : copied.trouble();
}

Trouble failed(const QString &folder, const QString &reason)
{
    return {{u"BACKUP_FAILED"_s, {QDir::toNativeSeparators(folder), reason}}, {}};
}

bool sameBytes(const QString &one, const QString &other)
{
    QFile a(one);
    QFile b(other);
    return a.open(QIODevice::ReadOnly) && b.open(QIODevice::ReadOnly) && a.size() == b.size() &&
           a.readAll() == b.readAll();
}

/// The numbered backups of one store.
class Series
{
public:
    Series(const QString &path, int keep) : m_stem(backupFolder(path) + u'/' + QFileInfo(path).fileName()), m_keep(keep)
    {
    }

    QString nameOf(int number) const { return m_stem + u".bak"_s + QString::number(number); }

    // From the oldest on, so that at any moment everything but the oldest is there under some name. A gap takes it up
    // first.
    bool push(const QString &made) const
    {
        int free = 1;
        while (free < m_keep && QFile::exists(nameOf(free)))
            ++free;
        QFile::remove(nameOf(free));
        for (int number = free - 1; number >= 1; --number)
            if (!QFile::rename(nameOf(number), nameOf(number + 1)))
                return false;
        return QFile::rename(made, nameOf(1));
    }

private:
    QString m_stem;
    int m_keep;
};

} // namespace

QString backupFolder(const QString &path)
{
    return QFileInfo(path).absolutePath() + u"/backups"_s;
}

Result<Done> backupStore(const QString &path, const QString &target)
{
    const QFileInfo file(target);
    if (file.exists() || file.isSymLink())
        return storeTrouble(u"STORE_EXISTS"_s, target, {});
    QDir().mkpath(file.absolutePath());
    const QTemporaryDir made(file.absoluteFilePath() + u".XXXXXX"_s); // on the same disk
    if (!made.isValid())
        return storeTrouble(u"STORE_FAILED"_s, target, made.errorString());
    const QString copy = made.filePath(u"copy"_s);
    const Result<Done> copied = copyInto(path, copy);
    return copied ? moveIntoPlace(copy, target) : copied;
}

Result<bool> rollBackups(const QString &path, int keep)
{
    const QString folder = backupFolder(path);
    if (!QDir().mkpath(folder))
        return failed(folder, u"the folder cannot be made"_s);
    // Two programs may start at once; the other one's backup is as good.
    QLockFile lock(folder + u"/lock"_s);
    if (!lock.tryLock(0ms))
        return lock.error() == QLockFile::LockFailedError ? Result(false) : failed(folder, u"it is write-protected"_s);
    const QTemporaryDir made(folder + u"/new-XXXXXX"_s);
    if (!made.isValid())
        return failed(folder, made.errorString());
    const QString copy = made.filePath(u"copy"_s);
    if (const Result<Done> copied = copyInto(path, copy); !copied)
        return failed(folder, copied.trouble().what.arguments.value(1));
    const Series series(path, keep);
    if (sameBytes(copy, series.nameOf(1)))
        return false;
    return series.push(copy) ? Result(true) : failed(folder, u"a backup cannot be renamed"_s);
}
