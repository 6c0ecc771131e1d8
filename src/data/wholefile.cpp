#include "wholefile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStorageInfo>

using namespace Qt::StringLiterals;

bool isDiskFull(const QString &path, qint64 size)
{
    const QStorageInfo disk(QFileInfo(path).absolutePath());
    return disk.isValid() && disk.bytesAvailable() < size;
}

/// The system's words; a disk that is full has none when it shows only as the last bytes are written out.
static QString reasonOf(const QSaveFile &file, qint64 size)
{
    const bool isFull = file.error() != QFileDevice::OpenError && isDiskFull(file.fileName(), size);
    return isFull ? u"No space left on device"_s : file.errorString();
}

namespace {

/// A device or a pipe takes the bytes itself; it must not be replaced by a file of its name.
bool isStream(const QString &path)
{
    const QFileInfo target(path);
    return target.exists() && !target.isFile() && !target.isDir();
}

Result<Done> writeInto(const QByteArray &document, const QString &path)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(document) == document.size())
        return Done{};
    return Trouble{{u"FILE_NOT_WRITTEN"_s, {path, file.errorString()}}};
}

} // namespace

static Result<Done> notWritten(QSaveFile &file, qint64 size)
{
    const QString reason = reasonOf(file, size);
    file.cancelWriting();
    return Trouble{{u"FILE_NOT_WRITTEN"_s, {file.fileName(), reason}}};
}

Result<Done> writeWhole(const QByteArray &document, const QString &path)
{
    if (isStream(path))
        return writeInto(document, path);
    QSaveFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(document) == document.size() && file.flush();
    return isWritten && file.commit() ? Result(Done{}) : notWritten(file, document.size());
}

static bool copyBlocks(QFile &from, QSaveFile &to)
{
    constexpr qint64 kBlock = 1 << 20;
    while (!from.atEnd()) {
        const QByteArray block = from.read(kBlock);
        if (block.isEmpty() || to.write(block) != block.size())
            return false;
    }
    return to.flush();
}

Result<Done> copyWhole(const QString &original, const QString &path)
{
    QFile from(original);
    QSaveFile to(path);
    const bool isWritten =
        from.open(QIODevice::ReadOnly) && to.open(QIODevice::WriteOnly) && copyBlocks(from, to) && to.commit();
    return isWritten ? Result(Done{}) : notWritten(to, from.size());
}
