#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

/// A pseudo-terminal as the simulated phone holds it: its own end, and the path that others open. The path's end is
/// raw before anyone opens it (a fresh one echoes) and stays held, so that the own end works while nobody is there.
class PseudoTerminal
{
public:
    /// Nothing where the system has no pseudo-terminals or gives none.
    static std::unique_ptr<PseudoTerminal> make();

    /// Hangs up: whoever has the path open loses the line.
    ~PseudoTerminal();
    PseudoTerminal(const PseudoTerminal &) = delete;
    PseudoTerminal &operator=(const PseudoTerminal &) = delete;

    QString path() const;
    /// For a read notifier.
    qintptr descriptor() const;
    /// What the other side has written; never waits.
    QByteArray read();
    /// Returns how many of the bytes were taken, 0 when the other side does not read; never waits.
    qsizetype write(QByteArrayView bytes);
    /// Bytes that were written and that the other side has not read yet.
    qsizetype unread() const;

private:
    PseudoTerminal(int master, int slave);

    int m_master;
    int m_slave;
};
