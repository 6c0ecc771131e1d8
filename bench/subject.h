#pragma once

#include "windowwatch.h"

#include <QString>
#include <QStringList>

#include <chrono>

/// A program under test: started by its command line, watched until its first window, and ended for sure.
class Subject
{
public:
    /// Starts it. "{device}" in the command line stands for the device it is to open.
    Subject(const QString &commandLine, WindowWatch &windows, const QString &device = {});
    ~Subject();
    Subject(const Subject &) = delete;
    Subject &operator=(const Subject &) = delete;

    pid_t process() const { return m_process; }
    xcb_window_t window() const { return m_window; }
    /// From just before it was started to its first window.
    std::chrono::duration<double, std::milli> timeToWindow() const { return m_timeToWindow; }
    /// Ends this program with a complaint when the subject is gone.
    void expectRunning(const char *meanwhile);

private:
    void start(const QStringList &words, const QString &device);
    bool endsWithin(std::chrono::milliseconds patience);

    WindowWatch &m_windows;
    QString m_commandLine;
    pid_t m_process = 0;
    xcb_window_t m_window = 0;
    std::chrono::duration<double, std::milli> m_timeToWindow{};
};
