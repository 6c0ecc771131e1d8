// Twenty megabytes as fast as they are taken.

#include "contest.h"
#include "figure.h"
#include "heartbeat.h"
#include "keptexchange.h"
#include "phoneend.h"
#include "processfigures.h"

#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

namespace {

constexpr qsizetype kBytes = 20'000'000;

struct Flooded
{
    double takenSeconds = 0;
    double settledSeconds = 0; ///< until the program is quiet again
    double growthMb = 0;
    std::optional<double> longestBlockMs = {};
};

/// Every line tells its number, so that a gap is seen.
QByteArray numberedLines()
{
    QByteArray text;
    text.reserve(kBytes + 64);
    for (int number = 0; text.size() < kBytes; ++number)
        text += "flood line " + QByteArray::number(number).rightJustified(8, '0') + " of bytes that ask for nothing\n";
    return text.first(kBytes);
}

/// Twenty megabytes in one line: a program that keeps lines whole pays for it.
QByteArray oneLine()
{
    return QByteArray(kBytes, 'x');
}

/// The last moment at which the program was busy; watched for a minute at most.
Clock::time_point lastBusy(pid_t process, Heartbeat &heartbeat)
{
    const auto begin = Clock::now();
    auto busy = begin;
    double before = processorSeconds(process);
    while (Clock::now() - busy < 1s && Clock::now() - begin < 60s) {
        for (const auto next = Clock::now() + 50ms; Clock::now() < next; std::this_thread::sleep_for(1ms))
            heartbeat.beat();
        const double now = processorSeconds(process);
        if (now - before > 0.010) // the answers to the pings cost a little
            busy = Clock::now();
        before = now;
    }
    return busy;
}

Flooded flooded(const QString &command, const QByteArray &bytes, WindowWatch &windows)
{
    PhoneEnd phone;
    Subject subject(command, windows, phone.device());
    phone.settle(subject);
    const double before = memoryOf(subject.process()).residentMb;
    Heartbeat heartbeat(windows, subject);
    const auto begin = Clock::now();
    phone.flood(bytes, [&heartbeat] { heartbeat.beat(); });
    const Seconds taken = Clock::now() - begin;
    const Seconds settled = lastBusy(subject.process(), heartbeat) - begin;
    subject.expectRunning("in the flood");
    const double growth = memoryOf(subject.process()).residentMb - before;
    return {taken.count(), qMax(taken, settled).count(), growth, heartbeat.longestMs()};
}

void contend(const QString &kind, const Contest &contest, const QByteArray &bytes, WindowWatch &windows)
{
    const Flooded ours = flooded(contest.oursOnPort, bytes, windows);
    const QByteArray kept = keptExchange();
    const Flooded peer = flooded(contest.peerOnPort, bytes, windows);
    print({.what = u"20 MB %1, taken"_s.arg(kind),
           .unit = u"s"_s,
           .ours = ours.takenSeconds,
           .others = peer.takenSeconds,
           .mostTimes = 1.0});
    print({.what = u"20 MB %1, quiet again"_s.arg(kind),
           .unit = u"s"_s,
           .ours = ours.settledSeconds,
           .others = peer.settledSeconds});
    print({.what = u"20 MB %1, memory growth"_s.arg(kind),
           .unit = u"MB"_s,
           .ours = ours.growthMb,
           .others = peer.growthMb,
           .most = 16.0});
    print({.what = u"20 MB %1, longest block"_s.arg(kind),
           .unit = u"ms"_s,
           .ours = ours.longestBlockMs,
           .others = peer.longestBlockMs,
           .most = 50.0});
    const std::optional<double> lost = kept.contains(bytes) ? 0.0 : 1.0;
    print({.what = u"20 MB %1, gaps in the log"_s.arg(kind),
           .unit = u"(0 none, 1 not whole)"_s,
           .ours = kept.isEmpty() ? std::nullopt : lost,
           .most = 0.0});
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const Contest contest = contestFor(application);
    WindowWatch windows;
    contend(u"in lines"_s, contest, numberedLines(), windows);
    contend(u"without line ends"_s, contest, oneLine(), windows);
}
