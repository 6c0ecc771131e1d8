#include "phoneend.h"

#include "contest.h"
#include "phoneprofile.h"
#include "processfigures.h"

#include <poll.h>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

static constexpr auto kPatienceToOpen = 20s;
static constexpr auto kPatienceInFlood = 60s;
static constexpr auto kQuiet = 3s;
static constexpr auto kPause = 10ms; // between the pieces of a paced stream

PhoneEnd::PhoneEnd() : m_line(PseudoTerminal::make())
{
    if (!m_line)
        giveUp(u"no pseudo-terminal"_s);
}

/// Returns whether anything was asked.
bool PhoneEnd::answerPending()
{
    const QByteArray bytes = m_line->read();
    m_command += bytes;
    const qsizetype end = m_command.indexOf('\r');
    if (end >= 0) {
        static const Result<PhoneProfile> phone = profileFor(u"IP 7"_s);
        writeAll(answer(*phone, m_command.first(end)));
        m_command.remove(0, end + 1);
    }
    return !bytes.isEmpty();
}

void PhoneEnd::settle(Subject &subject)
{
    const auto patience = Clock::now() + kPatienceToOpen;
    while (!holdsOpen(subject.process(), device())) {
        subject.expectRunning("before it opened the line");
        if (Clock::now() > patience)
            giveUp(u"%1 was not opened within 20 s"_s.arg(device()));
        std::this_thread::sleep_for(20ms);
    }
    for (auto last = Clock::now(); Clock::now() - last < kQuiet; std::this_thread::sleep_for(10ms))
        if (answerPending())
            last = Clock::now();
    if (!holdsOpen(subject.process(), device()))
        giveUp(u"%1 was opened and closed again"_s.arg(device()));
}

static void waitForRoom(const PseudoTerminal &line)
{
    pollfd waiting{static_cast<int>(line.descriptor()), POLLOUT, 0};
    ::poll(&waiting, 1, 1);
}

void PhoneEnd::writeAll(QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        bytes = bytes.sliced(m_line->write(bytes));
        if (!bytes.isEmpty())
            waitForRoom(*m_line);
    }
}

void PhoneEnd::stream(const QByteArray &bytes, int pace)
{
    const auto begin = Clock::now();
    for (qsizetype sent = 0; sent < bytes.size(); std::this_thread::sleep_for(kPause)) {
        const std::chrono::duration<double> passed = Clock::now() - begin;
        const auto due = qMin(bytes.size(), static_cast<qsizetype>(passed.count() * pace));
        writeAll(QByteArrayView(bytes).sliced(sent, due - sent));
        sent = due;
    }
}

void PhoneEnd::flood(const QByteArray &bytes, const std::function<void()> &meanwhile)
{
    const auto end = Clock::now() + kPatienceInFlood;
    QByteArrayView rest = bytes;
    while ((!rest.isEmpty() || m_line->unread() > 0) && Clock::now() < end) {
        rest = rest.sliced(m_line->write(rest));
        meanwhile();
        if (rest.isEmpty())
            std::this_thread::sleep_for(1ms);
        else
            waitForRoom(*m_line);
    }
}
