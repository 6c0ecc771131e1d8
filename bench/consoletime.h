#pragma once

#include "master.h"
#include "port.h"
#include "session.h"
#include "silentboxes.h"

/// A phone that answers every command with a flood, so much at each poll.
class FloodPort : public Port
{
public:
    Result<Done> open(const QString &) override { return Done{}; }
    void close() override {}
    bool isOpen() const override { return true; }
    void write(const QByteArray &) override { m_rest = kBytes; }
    QByteArray read() override;
    void discardInput() override {}

    static constexpr qsizetype kBytes = 20'000'000;

private:
    qsizetype m_rest = 0;
};

/// The console's form over a flood, to time how long it keeps the window from anything else.
class ConsoleTime
{
public:
    explicit ConsoleTime(const QString &store);

    /// Sends a command; from its first poll to the painted and compared reply, the longest step in seconds.
    double longestStep();

private:
    FloodPort m_port;
    StoreQueue m_store;
    SilentBoxes m_boxes;
    Session m_session;
    Master m_form;
};
