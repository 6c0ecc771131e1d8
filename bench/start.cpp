// From start to the first window, and what the programs cost while nothing happens.

#include "contest.h"
#include "figure.h"
#include "phoneend.h"
#include "processfigures.h"

#include <array>
#include <cstdio>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

struct Idle
{
    Memory memory;
    double wakeupsPerSecond = 0;
    double processorShare = 0; ///< per cent of one core
};

Idle idle(Subject &subject)
{
    static constexpr auto kWatched = 5s;
    std::this_thread::sleep_for(2s);
    Idle figures{.memory = memoryOf(subject.process())};
    const qint64 before = voluntarySwitches(subject.process());
    const double busyBefore = processorSeconds(subject.process());
    std::this_thread::sleep_for(kWatched);
    subject.expectRunning("while it was idle");
    figures.wakeupsPerSecond = static_cast<double>(voluntarySwitches(subject.process()) - before) / kWatched.count();
    figures.processorShare = 100 * (processorSeconds(subject.process()) - busyBefore) / kWatched.count();
    return figures;
}

Idle idleAlone(const QString &command, WindowWatch &windows)
{
    Subject subject(command, windows);
    return idle(subject);
}

Idle idleOnPort(const QString &command, WindowWatch &windows)
{
    PhoneEnd phone;
    Subject subject(command, windows, phone.device());
    phone.settle(subject);
    return idle(subject);
}

/// Median times to the window of ours, the peer and the bare window, started in turn; the first round warms up.
std::array<double, 3> startTimes(const Contest &contest, WindowWatch &windows)
{
    const std::array<QString, 3> commands = {contest.ours, contest.peer, contest.bare};
    std::array<QList<double>, 3> times;
    for (int run = 0; run <= contest.runs; ++run)
        for (std::size_t who = 0; who < commands.size(); ++who) {
            const double time = Subject(commands[who], windows).timeToWindow().count();
            if (run > 0)
                times[who].append(time);
        }
    return {median(times[0]), median(times[1]), median(times[2])};
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const Contest contest = contestFor(application);
    WindowWatch windows;

    const auto [ours, peer, bare] = startTimes(contest, windows);
    print({.what = u"start to window"_s, .unit = u"ms"_s, .ours = ours, .others = peer, .mostTimes = 0.7});
    print({.what = u"start to window, beside a bare one"_s,
           .unit = u"ms"_s,
           .ours = ours,
           .others = bare,
           .mostTimes = 2.0,
           .othersName = u"bare"_s});

    const Idle ourIdle = idleAlone(contest.ours, windows);
    const Idle peerIdle = idleAlone(contest.peer, windows);
    print({.what = u"resident memory"_s,
           .unit = u"MB"_s,
           .ours = ourIdle.memory.residentMb,
           .others = peerIdle.memory.residentMb,
           .mostTimes = 0.7});
    print({.what = u"proportional memory"_s,
           .unit = u"MB"_s,
           .ours = ourIdle.memory.proportionalMb,
           .others = peerIdle.memory.proportionalMb});
    const Idle ourOpen = idleOnPort(contest.oursOnPort, windows);
    const Idle peerOpen = idleOnPort(contest.peerOnPort, windows);
    for (const auto &[what, mine, theirs] :
         {std::tuple(u"idle, port closed"_s, ourIdle, peerIdle), std::tuple(u"idle, port open"_s, ourOpen, peerOpen)}) {
        print({.what = what,
               .unit = u"wakeups/s"_s,
               .ours = mine.wakeupsPerSecond,
               .others = theirs.wakeupsPerSecond,
               .most = 0.0});
        print({.what = what, .unit = u"% CPU"_s, .ours = mine.processorShare, .others = theirs.processorShare});
    }
}
