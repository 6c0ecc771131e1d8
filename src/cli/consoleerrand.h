#pragma once

#include "errand.h"
#include "masterscreen.h"

/// What a command does with one command line and its reply.
struct ConsoleOptions
{
    QString command;
    QString replyFile;
    double tolerance = 0;
};

/// Sends a command line as the console does, to a phone or to a saved reply, and goes on with its reply.
class ConsoleErrand : public Errand
{
    Q_OBJECT

public:
    ConsoleErrand(CommonOptions options, ConsoleOptions console);
    ConsoleErrand(CommonOptions options, ConsoleOptions console, const QByteArray &reply);

    void start() override;

protected:
    MasterScreen &screen() { return m_screen; }
    const ConsoleOptions &console() const { return m_console; }
    void connectedToPhone() override;
    /// The reply is here, whole or not.
    virtual void replied() = 0;

private:
    void send();
    void takeReply();

    ConsoleOptions m_console;
    bool m_replayed = false;
    bool m_replied = false;
    MasterScreen m_screen{session()};
};

/// Records the reply as what a known-good phone of this model answers.
class RecordErrand : public ConsoleErrand
{
    Q_OBJECT

public:
    using ConsoleErrand::ConsoleErrand;

protected:
    void replied() override;

private:
    void tellRecorded();
};

/// Holds the reply against the recording.
class CompareErrand : public ConsoleErrand
{
    Q_OBJECT

public:
    using ConsoleErrand::ConsoleErrand;

protected:
    void replied() override;
};
