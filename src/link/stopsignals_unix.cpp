#include "stopsignals.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::array kSignals = {SIGINT, SIGTERM, SIGHUP};
/// A program that is told again and again does not listen any more; a closed terminal may well tell twice.
constexpr int kMostAsked = 3;
constexpr int kEndedBySignal = 128;

std::array<int, 2> pipeEnds = {-1, -1};
volatile std::sig_atomic_t timesAsked = 0;

extern "C" void wakeLoop(int signal)
{
    const int before = errno;
    timesAsked = timesAsked + 1;
    if (timesAsked > kMostAsked)
        ::_exit(kEndedBySignal + signal);
    [[maybe_unused]] const ssize_t written = ::write(pipeEnds[1], "", 1); // a full pipe has told the loop already
    errno = before;
}

bool makePipe()
{
    if (::pipe(pipeEnds.data()) != 0)
        return false;
    for (const int end : pipeEnds) {
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
        ::fcntl(end, F_SETFL, O_NONBLOCK);
    }
    return true;
}

/// Who started the program to outlive its terminal has a hang-up ignored, and it stays so.
bool isToBeHeard(int signal)
{
    struct sigaction set = {};
    return signal != SIGHUP || ::sigaction(signal, nullptr, &set) != 0 || set.sa_handler != SIG_IGN;
}

void setHandlers(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int signal : kSignals)
        if (isToBeHeard(signal))
            ::sigaction(signal, &action, nullptr);
}

} // namespace

StopSignals::StopSignals(QObject *parent) : QObject(parent)
{
    if (!makePipe())
        return;
    auto *woken = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(woken, &QSocketNotifier::activated, this, [this] {
        std::array<char, 16> bytes;
        if (::read(pipeEnds[0], bytes.data(), bytes.size()) > 0)
            emit asked();
    });
    timesAsked = 0;
    setHandlers(&wakeLoop);
}

StopSignals::~StopSignals()
{
    if (pipeEnds[0] < 0)
        return;
    setHandlers(SIG_DFL);
    for (int &end : pipeEnds)
        ::close(std::exchange(end, -1));
}
