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
    /// The line died, or the time that was given is over: by default the command fails.
    virtual void linkWasLost();
    virtual void timedOut();
    void connectToPhone();
    bool isFinished() const { return m_finished; }
    void finish(ExitCode code);
    void fail(const Trouble &trouble, ExitCode code);

private:
    void watchSession();
    void watchLog(ExchangeLog &log);

    CommonOptions m_options;
    Bench m_bench;
    QTimer m_timeout;
    bool m_finished = false;
};
