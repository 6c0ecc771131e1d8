#include "ownfiles.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <filesystem>

using namespace Qt::StringLiterals;
using std::filesystem::perm_options;
using std::filesystem::perms;

namespace {

constexpr perms kOwnFile = perms::owner_read | perms::owner_write;
constexpr perms kSharedFile = kOwnFile | perms::group_read | perms::group_write;
constexpr perms kOthers = perms::group_all | perms::others_all;

bool isShared(const QString &folder)
{
    return QFileInfo(folder).permission(QFile::WriteGroup);
}

void change(const QString &path, perms bits, perm_options how)
{
    std::error_code ignored; // a disk without owners knows no permissions either
    std::filesystem::permissions(QFileInfo(path).filesystemAbsoluteFilePath(), bits, how, ignored);
}

bool closeOne(const QString &path)
{
    constexpr QFile::Permissions kOpen = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    if (!(QFileInfo(path).permissions() & kOpen))
        return false;
    change(path, kOthers, perm_options::remove);
    return true;
}

} // namespace

bool makeOwnFolder(const QString &path)
{
    const QFileInfo folder(path);
    if (folder.isDir())
        return true;
    const QString above = folder.absolutePath();
    if (above == folder.absoluteFilePath() || !makeOwnFolder(above))
        return false;
    const bool shared = isShared(above);
    constexpr QFile::Permissions kOwn = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    if (!QDir().mkdir(folder.absoluteFilePath(), kOwn))
        return QFileInfo(path).isDir(); // another program was faster
    if (shared)
        change(path, perms::group_all, perm_options::add);
    return true;
}

void keepToOwner(const QString &file, const QString &folder)
{
    change(file, isShared(folder) ? kSharedFile : kOwnFile, perm_options::replace);
}

int closeToOthers(const QString &folder)
{
    const QFileInfo info(folder);
    QFile mark(QDir(folder).filePath(u".owner-only"_s));
    if (!info.isDir() || info.isSymLink() || mark.exists() || !mark.open(QIODevice::WriteOnly))
        return 0;
    mark.close();
    keepToOwner(mark.fileName(), {});
    int closed = 0;
    for (QDirIterator below(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot | QDir::NoSymLinks,
                            QDirIterator::Subdirectories);
         below.hasNext();)
        closed += closeOne(below.next()) ? 1 : 0;
    return closed + (closeOne(folder) ? 1 : 0);
}
