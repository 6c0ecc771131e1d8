#include "subject.h"

#include "contest.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

#include <csignal>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

static constexpr auto kPatienceForWindow = 30s;

/// The environment of this program; a program with a port gets the modem lines that a pseudo-terminal lacks.
static std::vector<QByteArray> environmentFor(const QString &device)
{
    std::vector<QByteArray> entries;
    for (char **entry = environ; *entry; ++entry)
        entries.emplace_back(*entry);
    if (!device.isEmpty())
        entries.push_back("LD_PRELOAD=" +
                          QFile::encodeName(QCoreApplication::applicationDirPath() + "/modemlines.so"_L1));
    return entries;
}

static std::vector<char *> pointers(std::vector<QByteArray> &texts)
{
    std::vector<char *> all;
    for (QByteArray &text : texts)
        all.push_back(text.data());
    all.push_back(nullptr);
    return all;
}

Subject::Subject(const QString &commandLine, WindowWatch &windows, const QString &device)
    : m_windows(windows), m_commandLine(commandLine)
{
    m_windows.forget();
    const auto begin = std::chrono::steady_clock::now();
    start(QProcess::splitCommand(QString(commandLine).replace("{device}"_L1, device)), device);
    const auto window = m_windows.nextWindow(kPatienceForWindow);
    m_timeToWindow = std::chrono::steady_clock::now() - begin;
    if (!window)
        giveUp(u"no window within 30 s: "_s + commandLine);
    m_window = *window;
}

void Subject::start(const QStringList &words, const QString &device)
{
    if (words.isEmpty())
        giveUp(u"an empty command line"_s);
    std::vector<QByteArray> arguments;
    for (const QString &word : words)
        arguments.push_back(QFile::encodeName(word));
    std::vector<QByteArray> environment = environmentFor(device);
    const int error = ::posix_spawnp(&m_process, arguments.front().constData(), nullptr, nullptr,
                                     pointers(arguments).data(), pointers(environment).data());
    if (error != 0)
        giveUp(u"cannot start %1: %2"_s.arg(words.first(), QString::fromLocal8Bit(::strerror(error))));
}

/// Asked first, so that it takes its lock files with it.
Subject::~Subject()
{
    m_windows.askToClose(m_window);
    if (endsWithin(2s))
        return;
    ::kill(m_process, SIGTERM);
    if (endsWithin(2s))
        return;
    ::kill(m_process, SIGKILL);
    ::waitpid(m_process, nullptr, 0);
}

bool Subject::endsWithin(std::chrono::milliseconds patience)
{
    const auto end = std::chrono::steady_clock::now() + patience;
    while (std::chrono::steady_clock::now() < end) {
        if (::waitpid(m_process, nullptr, WNOHANG) == m_process)
            return true;
        std::this_thread::sleep_for(5ms);
    }
    return false;
}

void Subject::expectRunning(const char *meanwhile)
{
    if (::waitpid(m_process, nullptr, WNOHANG) == 0)
        return;
    giveUp(u"%1 ended %2"_s.arg(m_commandLine, QLatin1StringView(meanwhile)));
}
