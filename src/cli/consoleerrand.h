#pragma once

#include "masterscreen.h"
#include "modelerrand.h"

/// What a command does with one command line and its reply.
struct ConsoleOptions
{
    QString command;
    QString replyFile;
    double tolerance = 0;
};

/// Sends a command line as the console does, to a phone or to a saved reply, and goes on with its reply.
class ConsoleErrand : public ModelErrand
{
    Q_OBJECT

public:
    ConsoleErrand(CommonOptions options, ConsoleOptions console);
    ConsoleErrand(CommonOptions options, ConsoleOptions console, const QByteArray &reply);

protected:
    void begin() override;
    MasterScreen &screen() { return m_screen; }
    const ConsoleOptions &console() const { return m_console; }
    /// The reply is here, whole or not.
    virtual void replied() = 0;

private:
    void takeReply();

    ConsoleOptions m_console;
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
    void refuseInVain() override;
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

private:
    std::optional<Integrity> integrity();
};
