// How soon a hang-up shows, and what it costs afterwards.

#include "contest.h"
#include "figure.h"
#include "phoneend.h"
#include "processfigures.h"
#include "serialport.h"
#include "session.h"
#include "silentboxes.h"
#include "simulatedphone.h"

#include <QEventLoop>

#include <algorithm>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

namespace {

void runUntil(const std::function<bool()> &done)
{
    for (const auto end = Clock::now() + 20s; !done();) {
        if (Clock::now() > end)
            giveUp(u"the session did not get there within 20 s"_s);
        QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
    }
}

/// Within this program: from the pulled cable to a session that says so.
double timeToDisconnected()
{
    SimulatedPhone phone(*profileFor(u"IP 7"_s), 0);
    SerialPort port;
    StoreQueue store(u"/nonexistent"_s, StoreQueue::Waiting::Blocking);
    SilentBoxes boxes;
    Session session({.port = port,
                     .store = store,
                     .boxes = boxes,
                     .deviceFor = [&phone](const PortAddress &) { return Result<QString>(phone.device()); },
                     .keeping = Keeping::Nothing});
    session.connectOrDisconnect(phone.device());
    runUntil([&session] { return session.isReady() && session.isModelKnown(); });
    const auto begin = Clock::now();
    phone.unplug();
    runUntil([&session] { return session.Status() == "0"_L1; });
    return Milliseconds(Clock::now() - begin).count();
}

struct Aftermath
{
    double letGoMs = 0;
    double processorShare = 0; ///< per cent of one core, over the five seconds after
};

Aftermath aftermath(const QString &command, WindowWatch &windows)
{
    PhoneEnd phone;
    Subject subject(command, windows, phone.device());
    phone.settle(subject);
    const QString device = phone.device();
    const double before = processorSeconds(subject.process());
    const auto begin = Clock::now();
    phone.hangUp();
    while (holdsOpen(subject.process(), device) && Clock::now() - begin < 5s)
        std::this_thread::sleep_for(1ms);
    const Milliseconds letGo = Clock::now() - begin;
    std::this_thread::sleep_until(begin + 5s);
    subject.expectRunning("after the hang-up");
    return {letGo.count(), 100 * (processorSeconds(subject.process()) - before) / 5};
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const Contest contest = contestFor(application);
    WindowWatch windows;
    QList<double> times;
    for (int run = 0; run < contest.runs; ++run)
        times.append(timeToDisconnected());
    print({.what = u"hang-up to disconnected, worst of %1"_s.arg(contest.runs),
           .unit = u"ms"_s,
           .ours = *std::ranges::max_element(times),
           .most = 100.0});
    const Aftermath ours = aftermath(contest.oursOnPort, windows);
    const Aftermath peer = aftermath(contest.peerOnPort, windows);
    print({.what = u"hang-up to device let go (5 s: never)"_s,
           .unit = u"ms"_s,
           .ours = ours.letGoMs,
           .others = peer.letGoMs,
           .most = 100.0});
    print({.what = u"5 s from the hang-up on"_s,
           .unit = u"% CPU"_s,
           .ours = ours.processorShare,
           .others = peer.processorShare,
           .most = 1.0});
}
