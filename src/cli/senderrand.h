#pragma once

#include "errand.h"
#include "receiver.h"

/// Sends one command line and prints the phone's reply.
class SendErrand : public Errand, public Receiver
{
    Q_OBJECT

public:
    SendErrand(CommonOptions options, QString command);
    ~SendErrand() override;

    void start() override;
    void take(const Delivery &delivery) override;
    void resume() override {}
    void release(Release why, const Delivery &partial) override;

protected:
    void connectedToPhone() override;

private:
    QString m_command;
};
