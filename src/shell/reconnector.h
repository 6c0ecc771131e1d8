#pragma once

#include "devicewatch.h"
#include "session.h"

#include <QObject>

/// Offers to connect again when a lost device comes back within a minute, or does it by itself where that is wanted.
class Reconnector : public QObject
{
    Q_OBJECT

public:
    explicit Reconnector(Session &session, QObject *parent = nullptr);

public slots:
    /// Connects to the device that came back.
    void reconnect();

signals:
    void offered(const QString &device);
    void withdrawn();

private:
    void returned(const QString &device);
    void withdraw();

    Session &m_session;
    DeviceWatch m_watch;
    QString m_device;
};
