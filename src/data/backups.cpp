#include "backups.h"

#include "backupkeeping.h"
#include "intoplace.h"
#include "ownfiles.h"
#include "queries.h"
#include "schemacheck.h"
#include "store.h"
#include "storetrouble.h"
#include "wholefile.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>
#include <tuple>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Writes to a file that must not be there yet.
Result<Done> copyInto(const QString &path, const QString &target, std::chrono::milliseconds patience)
{
    if (const std::optional<Trouble> trouble = troubleWithFile(path))
        return *trouble;
    // A store opened for reading refuses even to write elsewhere.
    const Result<Store> store = Store::connected(path, FileMode::Writable, patience);
    if (!store)
        return store.trouble();
    if (const Result<Done> ours = isReadable(*store); !ours)
        return ours;
    const auto copied = store->run(kCopyInto, {{u":file"_s, target}});
    return copied ? Result(Done{}) : copied.trouble();
}

/// The engine leaves its copy in the system's hands: once more, down to the disk, and then under its name.
Result<Done> place(const QString &copy, const QString &target)
{
    const QString whole = copy + u".whole"_s;
    if (const Result<Done> written = copyWhole(copy, whole); !written)
        return storeTrouble(u"STORE_FAILED"_s, target, written.trouble().what.arguments.value(1));
    keepToOwner(whole, QFileInfo(target).absolutePath());
    return moveIntoPlace(whole, target);
}

Trouble failed(const QString &folder, const QString &reason)
{
    return {{u"BACKUP_FAILED"_s, {QDir::toNativeSeparators(folder), reason}}, {}};
}

Trouble failed(const QString &folder, const Trouble &trouble)
{
    return trouble.what.key == "STORE_LOCKED"_L1 ? trouble : failed(folder, trouble.what.arguments.value(1));
}

bool sameBytes(const QString &one, const QString &other)
{
    QFile a(one);
    QFile b(other);
    return a.open(QIODevice::ReadOnly) && b.open(QIODevice::ReadOnly) && a.size() == b.size() &&
           a.readAll() == b.readAll();
}

/// The rolling backups of a store, newest first. The numbered ones are of an earlier version.
QFileInfoList backupsOf(const QString &path)
{
    const QString name = QFileInfo(path).fileName();
    const QRegularExpression ours(
        QRegularExpression::anchoredPattern(QRegularExpression::escape(name) + uR"(\.bak(\d|-\d{8}-\d{9}))"_s));
    QFileInfoList found = QDir(backupFolder(path)).entryInfoList({name + u".bak*"_s}, QDir::Files);
    found.removeIf([&](const QFileInfo &file) { return !ours.match(file.fileName()).hasMatch(); });
    std::ranges::sort(found, std::greater(),
                      [](const QFileInfo &file) { return std::tuple(file.lastModified(), file.fileName()); });
    return found;
}

QString freeRollingName(const QString &path, QDateTime now)
{
    const QString stem = backupFolder(path) + u'/' + QFileInfo(path).fileName();
    const auto name = [&] { return stem + now.toString(u"'.bak-'yyyyMMdd'-'HHmmsszzz"_s); };
    while (QFileInfo::exists(name()))
        now = now.addMSecs(1);
    return name();
}

/// The newest goes first whatever its time says: a clock may have been wrong.
void removeSpare(const QString &newest, const QFileInfoList &older, const QDate &today)
{
    QFileInfoList all{QFileInfo(newest)};
    all += older;
    QList<QDateTime> made;
    for (const QFileInfo &file : std::as_const(all))
        made += file.lastModified();
    for (const qsizetype spare : spareBackups(made, today))
        QFile::remove(all.at(spare).filePath());
}

} // namespace

QString backupFolder(const QString &path)
{
    return QFileInfo(path).absolutePath() + u"/backups"_s;
}

QString freeBackupName(const QString &path)
{
    const QString stem = backupFolder(path) + QDateTime::currentDateTime().toString(u"'/Config-'yyyyMMdd'-'HHmmss"_s);
    QString name = stem;
    for (int copy = 2; QFileInfo::exists(name + u".pmx"_s); ++copy)
        name = stem + u'-' + QString::number(copy);
    return name + u".pmx"_s;
}

Result<Done> backupStore(const QString &path, const QString &target, std::chrono::milliseconds patience)
{
    const QFileInfo file(target);
    if (file.exists() || file.isSymLink())
        return storeTrouble(u"STORE_EXISTS"_s, target, {});
    makeOwnFolder(file.absolutePath());
    const QTemporaryDir made(file.absoluteFilePath() + u".XXXXXX"_s); // on the same disk
    if (!made.isValid())
        return storeTrouble(u"STORE_FAILED"_s, target, made.errorString());
    const QString copy = made.filePath(u"copy"_s);
    const Result<Done> copied = copyInto(path, copy, patience);
    if (!copied && copied.trouble().what.key == "STORE_FULL"_L1)
        return toldOf(target, copied.trouble());
    return copied ? place(copy, target) : copied;
}

Result<bool> rollBackups(const QString &path, std::chrono::milliseconds patience, const QDateTime &now)
{
    const QString folder = backupFolder(path);
    if (!makeOwnFolder(folder))
        return failed(folder, u"the folder cannot be made"_s);
    // Two programs may start at once; the other one's backup is as good.
    QLockFile lock(folder + u"/lock"_s);
    if (!lock.tryLock(0ms))
        return lock.error() == QLockFile::LockFailedError ? Result(false) : failed(folder, u"it is write-protected"_s);
    const QTemporaryDir made(folder + u"/new-XXXXXX"_s);
    if (!made.isValid())
        return failed(folder, made.errorString());
    const QString copy = made.filePath(u"copy"_s);
    if (const Result<Done> copied = copyInto(path, copy, patience); !copied)
        return failed(folder, copied.trouble());
    const QFileInfoList kept = backupsOf(path);
    if (!kept.isEmpty() && sameBytes(copy, kept.first().filePath()))
        return false;
    const QString target = freeRollingName(path, now);
    if (const Result<Done> placed = place(copy, target); !placed)
        return failed(folder, placed.trouble());
    removeSpare(target, kept, now.date());
    return true;
}
