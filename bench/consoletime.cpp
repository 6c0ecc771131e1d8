#include "consoletime.h"

#include "contest.h"
#include "railtable.h"

#include <QApplication>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;
using Clock = std::chrono::steady_clock;

/// The polls are called by hand here.
static constexpr Intervals kNever{.poll = std::chrono::hours(1)};
/// What the serial code keeps at most between two polls.
static constexpr qsizetype kBytesPerPoll = 2 << 20;

QByteArray FloodPort::read()
{
    const qsizetype now = std::min(m_rest, kBytesPerPoll);
    m_rest -= now;
    QByteArray bytes = QByteArray("BIST rail: 1234.5678 mV of bytes that ask for nothing\n").repeated(now / 54);
    return m_rest == 0 ? bytes + "[00000000:00000000] :-) " : bytes;
}

ConsoleTime::ConsoleTime(const QString &store)
    : m_store(store, StoreQueue::Waiting::ByTimer),
      m_session({.port = m_port, .store = m_store, .boxes = m_boxes, .deviceFor = {}, .intervals = kNever}),
      m_form(m_session)
{
    m_session.adopt(u"a flood"_s, QString(kFullModel));
    m_form.resize(1280, 800);
    m_form.CarregaDados();
    m_form.show();
    QApplication::processEvents();
}

double ConsoleTime::longestStep()
{
    auto &screen = static_cast<MasterScreen &>(m_form.screen());
    Clock::duration longest{};
    const auto timed = [&longest](auto step) {
        const auto begin = Clock::now();
        step();
        longest = std::max(longest, Clock::now() - begin);
    };
    screen.setCommand(u"flood"_s);
    screen.read();
    timed([this] { m_session.Timer1_Timer(); });
    while (!m_session.isReady() || screen.isComparing()) {
        timed([] { QApplication::processEvents(); });
        if (!m_session.isReady())
            timed([this] { m_session.Timer2_Timer(); });
    }
    timed([] { QApplication::processEvents(); });
    if (!screen.hasReading())
        giveUp(u"the flood was not taken"_s);
    return std::chrono::duration<double>(longest).count();
}
