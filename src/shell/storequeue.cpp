#include "storequeue.h"

using namespace std::chrono_literals;

static constexpr auto kPatience = 5s;
static constexpr auto kRetryInterval = 100ms;
static constexpr int kTries = kPatience / kRetryInterval;

StoreQueue::StoreQueue(QString path, Waiting waiting, QObject *parent)
    : QObject(parent), m_path(std::move(path)), m_waitingWay(waiting), m_patience(wholePatience())
{
    m_timer.setInterval(kRetryInterval);
    connect(&m_timer, &QTimer::timeout, this, &StoreQueue::TimerStore_Timer);
}

void StoreQueue::TimerStore_Timer()
{
    ++m_tries;
    work();
}

std::chrono::milliseconds StoreQueue::wholePatience() const
{
    return m_waitingWay == Waiting::Blocking ? kPatience : 0s;
}

void StoreQueue::finish()
{
    m_waitingWay = Waiting::Blocking;
    m_patience = kPatience;
    work();
}

void StoreQueue::add(Attempt attempt)
{
    m_waiting.push_back(std::move(attempt));
    if (!m_timer.isActive())
        work();
}

void StoreQueue::work()
{
    if (m_working) // the result of one unit may ask for the next: that one takes its turn in the loop
        return;
    m_working = true;
    m_timer.stop();
    while (!m_waiting.empty()) {
        const bool last = m_waitingWay == Waiting::Blocking || m_tries >= kTries;
        if (!m_waiting.front()(last ? Try::Last : Try::Early)) {
            m_timer.start();
            break;
        }
        m_waiting.pop_front();
        m_tries = 0;
    }
    m_working = false;
}
