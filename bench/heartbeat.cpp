#include "heartbeat.h"

#include <algorithm>

void Heartbeat::beat()
{
    if (m_asked && m_windows.hasAnswered()) {
        m_longest = std::max<decltype(m_longest)>(m_longest, Clock::now() - *m_asked);
        m_everAnswered = true;
        m_asked.reset();
    }
    if (m_asked)
        return;
    m_asked = Clock::now();
    m_windows.ping(m_window);
}

std::optional<double> Heartbeat::longestMs() const
{
    if (!m_everAnswered)
        return std::nullopt;
    const auto out = m_asked ? Clock::now() - *m_asked : Clock::duration::zero();
    return std::max<decltype(m_longest)>(m_longest, out).count();
}
