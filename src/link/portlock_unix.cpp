#include "portlock.h"

#include "locknote.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr mode_t kForEveryUser = 0666;

/// Users must meet in one folder, so what counts is who may write there, not whether this user may.
QString sharedFolder()
{
    for (const char *folder : {"/run/lock", "/tmp"}) {
        struct stat entry = {};
        if (::stat(folder, &entry) == 0 && S_ISDIR(entry.st_mode) && (entry.st_mode & S_IWOTH) != 0)
            return QFile::decodeName(folder);
    }
    return {};
}

/// Opening and making are two steps: in a shared folder the system refuses a "make or open" of another user's file.
int openOrMake(const char *path)
{
    constexpr int kMode = O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;
    for (int tries = 0; tries < 3; ++tries) {
        if (const int file = ::open(path, kMode); file >= 0 || errno != ENOENT)
            return file;
        const int file = ::open(path, kMode | O_CREAT | O_EXCL, kForEveryUser);
        if (file >= 0)
            ::fchmod(file, kForEveryUser); // whatever the user's mask says
        if (file >= 0 || errno != EEXIST)
            return file;
    }
    return -1;
}

/// Nothing that somebody laid out as a trap: a plain file with one name.
bool isOurs(int file)
{
    struct stat entry = {};
    return ::fstat(file, &entry) == 0 && S_ISREG(entry.st_mode) && entry.st_nlink == 1;
}

bool isHeldByAnother(int file)
{
    return ::flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

void write(int file, const QByteArray &note)
{
    // The note only helps to name the owner; without it the lock holds as well.
    if (::ftruncate(file, 0) == 0 && ::pwrite(file, note.constData(), static_cast<size_t>(note.size()), 0) < 0)
        errno = 0;
}

} // namespace

QString lockFileOf(const QString &canonicalDevice)
{
    const QString folder = sharedFolder();
    QString name = canonicalDevice;
    return folder.isEmpty() ? QString() : folder + u"/tavimo-prelt"_s + name.replace(u'/', u'_') + u".lock"_s;
}

PortLock::~PortLock()
{
    release();
}

/// The file is never removed: a name that comes and goes could be locked twice, once by the old file and once by the
/// new one. The system frees the lock when the owner ends, however it ends.
bool PortLock::take(const QString &canonicalDevice)
{
    release();
    const QString path = lockFileOf(canonicalDevice);
    if (path.isEmpty() || !QFileInfo::exists(canonicalDevice))
        return true;
    const int file = openOrMake(QFile::encodeName(path).constData());
    if (file < 0)
        return true;
    if (!isOurs(file)) {
        ::close(file);
        return true;
    }
    if (isHeldByAnother(file)) {
        ::close(file);
        return false;
    }
    m_file = file;
    write(file, lockNote({QCoreApplication::applicationPid(), QCoreApplication::applicationName()}));
    return true;
}

void PortLock::release()
{
    if (m_file < 0)
        return;
    write(m_file, {});
    ::close(m_file);
    m_file = -1;
}

bool claim(const QSerialPort &line)
{
    return !isHeldByAnother(line.handle());
}
