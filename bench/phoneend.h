#pragma once

#include "pseudoterminal.h"
#include "subject.h"

#include <functional>
#include <memory>

/// The phone's end of a line, as a program under test meets it: answers the handshake, then sends what is asked for.
class PhoneEnd
{
public:
    PhoneEnd();

    QString device() const { return m_line->path(); }
    /// Waits until the program has opened the line and asks no more. Ends this program when it does not open it.
    void settle(Subject &subject);

    /// Sends at a pace, in bytes per second.
    void stream(const QByteArray &bytes, int pace);
    /// Sends as fast as the other side takes it, and returns when all was taken or a minute is over. `meanwhile` runs
    /// about every millisecond.
    void flood(const QByteArray &bytes, const std::function<void()> &meanwhile);
    /// Pulls the cable.
    void hangUp() { m_line.reset(); }

private:
    bool answerPending();
    void writeAll(QByteArrayView bytes);

    std::unique_ptr<PseudoTerminal> m_line;
    QByteArray m_command;
};
