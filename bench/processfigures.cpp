#include "processfigures.h"

#include <QDir>
#include <QFile>

#include <array>
#include <ctime>
#include <unistd.h>

using namespace Qt::StringLiterals;

static QString folderOf(pid_t process)
{
    return u"/proc/%1/"_s.arg(process);
}

/// The number behind "Label:" in a file of /proc, 0 when there is none.
static qint64 entry(const QString &path, const QByteArray &label)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray content = file.readAll();
    for (const QByteArray &line : content.split('\n'))
        if (line.startsWith(label + ':'))
            return line.mid(label.size() + 1).simplified().split(' ').first().toLongLong();
    return 0;
}

Memory memoryOf(pid_t process)
{
    const QString rollup = folderOf(process) + "smaps_rollup"_L1;
    return {static_cast<double>(entry(rollup, "Rss")) / 1024, static_cast<double>(entry(rollup, "Pss")) / 1024};
}

double processorSeconds(pid_t process)
{
    clockid_t clock = {};
    timespec time = {};
    if (::clock_getcpuclockid(process, &clock) != 0 || ::clock_gettime(clock, &time) != 0)
        return 0;
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

qint64 voluntarySwitches(pid_t process)
{
    const QDir tasks(folderOf(process) + "task"_L1);
    qint64 sum = 0;
    for (const QString &task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        sum += entry(tasks.filePath(task + "/status"_L1), "voluntary_ctxt_switches");
    return sum;
}

bool holdsOpen(pid_t process, const QString &device)
{
    const QDir descriptors(folderOf(process) + "fd"_L1);
    for (const QString &name : descriptors.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)) {
        std::array<char, 256> target = {};
        const QByteArray path = QFile::encodeName(descriptors.filePath(name));
        if (::readlink(path.constData(), target.data(), target.size() - 1) <= 0)
            continue;
        const QString open = QFile::decodeName(target.data());
        if (open == device || open == device + " (deleted)"_L1)
            return true;
    }
    return false;
}
