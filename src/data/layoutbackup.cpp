#include "layoutbackup.h"

#include "backups.h"
#include "intoplace.h"
#include "ownfiles.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

static Trouble failed(const QString &folder, const QString &reason)
{
    return {{u"BACKUP_FAILED"_s, {QDir::toNativeSeparators(folder), reason}}, {}};
}

static QString digestOf(const QString &path)
{
    constexpr qsizetype kEnough = 12;
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (!file.open(QIODevice::ReadOnly) || !hash.addData(&file))
        return {};
    return QString::fromLatin1(hash.result().toHex().left(kEnough));
}

Result<Done> keepLayout(const QString &path, int version)
{
    const QString folder = backupFolder(path);
    makeOwnFolder(folder);
    const QTemporaryDir made(folder + u"/new-XXXXXX"_s);
    if (!made.isValid())
        return failed(folder, made.errorString());
    const QString copy = made.filePath(u"copy"_s);
    if (const Result<Done> copied = backupStore(path, copy); !copied) {
        const Notice &what = copied.trouble().what;
        return what.key == "STORE_LOCKED"_L1 ? copied : failed(folder, what.arguments.value(1));
    }
    const QString digest = digestOf(copy);
    if (digest.isEmpty())
        return failed(folder, u"the backup cannot be read"_s);
    const QString name = u"%1/%2.layout%3-%4"_s.arg(folder, QFileInfo(path).fileName()).arg(version).arg(digest);
    if (QFile::exists(name))
        return Done{};
    keepToOwner(copy, folder);
    const Result<Done> moved = moveIntoPlace(copy, name);
    return moved ? moved : failed(folder, moved.trouble().what.arguments.value(1));
}
