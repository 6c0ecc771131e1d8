#pragma once

#include "bench.h"
#include "exitcode.h"

#include <QObject>
#include <QTimer>

/// A command that needs the event loop: it starts a bench, waits for its events and ends with an exit code.
class Errand : public QObject
{
    Q_OBJECT

public:
    explicit Errand(CommonOptions options);
    Errand(CommonOptions options, const QByteArray &reply);

    virtual void start();
    /// Somebody wants an end: what came until now is judged and printed, and no more is asked.
    void cancel();

signals:
    void finished(ExitCode code);

protected:
    Session &session() { return m_bench.session(); }
    Port &port() { return m_bench.port(); }
    const CommonOptions &options() const { return m_options; }
    Language language() { return session().language(); }
    void setRemedy(const Notice &remedy) { m_bench.boxes().setRemedy(remedy); }
    const QList<Notice> &messages() { return m_bench.boxes().shown(); }

    /// The phone is connected; its model is known if it could be told.
    virtual void connectedToPhone() = 0;
    /// The line died: by default the command is broken off.
    virtual void linkWasLost();
    /// The time that was given is over: by default the command fails.
    virtual void timedOut();
    /// Leaves the phone; screens judge what came.
    virtual void leavePhone();
    void connectToPhone();
    bool isFinished() const { return m_finished; }
    /// Keeps what the command has to end with whatever happens after.
    void note(ExitCode code);
    /// Ends with the weightiest of what was noted and this.
    void finish(ExitCode code);
    /// Nothing was answered, and why was told; the line is to blame unless the command was broken off.
    void finishUnanswered();
    void fail(const Trouble &trouble, ExitCode code);

private:
    void watchSession();
    void watchLog(ExchangeLog &log);
    void breakOff(const Notice &why, ExitCode code);
    bool isEnding() const { return m_finished || m_isBrokenOff; }

    CommonOptions m_options;
    Bench m_bench;
    QTimer m_timeout;
    ExitCode m_noted = ExitCode::Good;
    bool m_isBrokenOff = false;
    bool m_finished = false;
};
