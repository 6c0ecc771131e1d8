#pragma once

#include "subject.h"

/// How long a program's event loop is at most away: its window is pinged without a pause, and the answers are timed.
class Heartbeat
{
public:
    Heartbeat(WindowWatch &windows, const Subject &subject) : m_windows(windows), m_window(subject.window()) {}

    /// To be called about every millisecond.
    void beat();
    /// The longest time to an answer, also of one that is still out; nothing when no ping was ever answered.
    std::optional<double> longestMs() const;

private:
    using Clock = std::chrono::steady_clock;

    WindowWatch &m_windows;
    xcb_window_t m_window;
    std::optional<Clock::time_point> m_asked = {};
    std::chrono::duration<double, std::milli> m_longest{};
    bool m_everAnswered = false;
};
