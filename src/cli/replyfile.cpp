#include "replyfile.h"

#include "terminal.h"

#include <QFile>
#include <QFileInfo>

#include <future>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kLargest = 16 << 20; // twenty minutes at full speed
constexpr int kStandardInput = 0;

using Read = std::variant<QByteArray, QString>; ///< the bytes, or why there are none

ExitCode refused(const QString &path, const QString &why, ExitCode code)
{
    printError(u"prelt: --reply %1: %2. Name a file with the phone's bytes, or - for standard input."_s.arg(path, why));
    return code;
}

/// One byte more than is taken tells what is too long.
Read readAll(QFile &file)
{
    QByteArray bytes;
    while (bytes.size() <= kLargest) {
        const QByteArray block = file.read(kLargest + 1 - bytes.size());
        if (block.isEmpty())
            break;
        bytes += block;
    }
    if (file.error() != QFile::NoError)
        return file.errorString();
    return bytes.size() > kLargest ? Read(u"it is far longer than a reply can be"_s) : Read(bytes);
}

Read readInput()
{
    QFile file;
    return file.open(kStandardInput, QIODevice::ReadOnly) ? readAll(file) : Read(file.errorString());
}

/// What waits for a pipe cannot be ended, only left behind.
std::optional<Read> readInputWithin(std::chrono::seconds patience)
{
    std::packaged_task<Read()> task(&readInput);
    std::future<Read> bytes = task.get_future();
    std::thread(std::move(task)).detach();
    if (bytes.wait_for(patience) != std::future_status::ready)
        return {};
    return bytes.get();
}

Read readFile(const QString &path)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) // a pipe would be waited for, a device may never end
        return u"it is no plain file"_s;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? readAll(file) : Read(file.errorString());
}

} // namespace

std::variant<QByteArray, ExitCode> readReply(const QString &path, std::optional<std::chrono::seconds> patience)
{
    const bool isInput = path == "-"_L1;
    const std::optional<Read> read = !isInput   ? readFile(path)
                                     : patience ? readInputWithin(*patience)
                                                : std::optional(readInput());
    if (!read)
        return refused(path, u"nothing came in time"_s, ExitCode::Link);
    if (const auto *why = std::get_if<QString>(&*read))
        return refused(path, *why, ExitCode::Usage);
    return std::get<QByteArray>(*read);
}
