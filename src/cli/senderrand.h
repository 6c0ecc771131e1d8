#pragma once

#include "errand.h"
#include "filelog.h"
#include "receiver.h"

#include <memory>

/// Sends one command line and prints the phone's reply.
class SendErrand : public Errand, public Receiver
{
    Q_OBJECT

public:
    /// With a path the exchange is taken down there.
    SendErrand(CommonOptions options, QString command, const QString &logFile);
    ~SendErrand() override;

    void start() override;
    void take(const Delivery &delivery) override;
    void takeStray(const Delivery &delivery) override;
    void resume() override {}
    void release(Release why, const Delivery &partial) override;

protected:
    void connectedToPhone() override;
    void timedOut() override;

private:
    void print(const QString &reply, bool cut);
    void end(ExitCode code);

    QString m_command;
    std::unique_ptr<FileLog> m_log;
    bool m_timedOut = false;
};
