#pragma once

#include "devicewatch.h"
#include "session.h"

#include <QObject>

/// Offers to connect again when a lost device comes back, or does it by itself as long as that is wanted.
class Reconnector : public QObject
{
    Q_OBJECT

public:
    explicit Reconnector(Session &session, PortsNow ports = portsNow, QObject *parent = nullptr);

    DeviceWatch &watch() { return m_watch; }

public slots:
    /// Connects to the device that came back.
    void reconnect() { connectAgain(Asked::ByPerson); }

signals:
    void offered(const QString &device);
    void withdrawn();

private:
    void portOpened(const QString &device);
    void returned(const QString &device);
    void connectAgain(Asked asked);

    Session &m_session;
    DeviceWatch m_watch;
    QString m_device;
    bool m_isTrying = false; ///< the device is open, and its phone has not answered yet
};
