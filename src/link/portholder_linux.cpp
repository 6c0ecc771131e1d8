#include "portholder.h"

#include "portlock.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>

#include <cerrno>
#include <csignal>

using namespace Qt::StringLiterals;

namespace {

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(4096) : QByteArray();
}

QString programOf(qint64 pid)
{
    return QString::fromUtf8(contentsOf(u"/proc/%1/comm"_s.arg(pid))).trimmed();
}

bool isRunning(qint64 pid)
{
    return ::kill(static_cast<pid_t>(pid), 0) == 0 || errno == EPERM;
}

/// The lock files that terminals agree on.
QStringList customaryLocksOf(const QString &device)
{
    QString name = device.startsWith("/dev/"_L1) ? device.sliced(5) : device;
    name.replace(u'/', u'_');
    return {u"/run/lock/LCK.."_s + name, u"/var/lock/LCK.."_s + name, u"/tmp/LCK.."_s + name};
}

std::optional<PortHolder> livingHolder(const QString &lockFile)
{
    std::optional<PortHolder> holder = notedHolder(contentsOf(lockFile));
    if (!holder || !isRunning(holder->pid))
        return std::nullopt;
    const QString program = programOf(holder->pid);
    if (!program.isEmpty())
        holder->program = program;
    return holder;
}

QList<qint64> processes()
{
    QList<qint64> found;
    QDirIterator entries(u"/proc"_s, QDir::Dirs | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        bool isNumber = false;
        const qint64 pid = entries.fileName().toLongLong(&isNumber);
        if (isNumber)
            found.append(pid);
    }
    return found;
}

/// Who has the other end of a pseudo-terminal makes the device and is not in its way.
bool hasOpen(qint64 pid, const QString &device)
{
    bool found = false;
    QDirIterator files(u"/proc/%1/fd"_s.arg(pid), QDir::Files | QDir::System);
    while (files.hasNext()) {
        const QString target = QFile::symLinkTarget(files.next());
        if (target.endsWith("/ptmx"_L1))
            return false;
        found = found || target == device;
    }
    return found;
}

} // namespace

std::optional<PortHolder> holderOf(const QString &canonicalDevice)
{
    const QStringList locks = QStringList{lockFileOf(canonicalDevice)} + customaryLocksOf(canonicalDevice);
    for (const QString &lock : locks) {
        if (const std::optional<PortHolder> holder = livingHolder(lock))
            return holder;
    }
    for (const qint64 pid : processes()) {
        if (pid != QCoreApplication::applicationPid() && hasOpen(pid, canonicalDevice))
            return PortHolder{pid, programOf(pid)};
    }
    return std::nullopt;
}

QString orphanedLockOf(const QString &canonicalDevice)
{
    const QStringList locks = customaryLocksOf(canonicalDevice);
    for (const QString &lock : locks) {
        const std::optional<PortHolder> owner = notedHolder(contentsOf(lock));
        if (owner && !isRunning(owner->pid))
            return lock;
    }
    return {};
}

QStringList runningPrograms()
{
    QStringList names;
    for (const qint64 pid : processes())
        names.append(programOf(pid));
    return names;
}
