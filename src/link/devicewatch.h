#pragma once

#include "portlist.h"

#include <QObject>
#include <QSet>
#include <QTimer>

#include <functional>
#include <optional>

/// The ports that are there now, among them the device of this name if it is there, as it was named.
using PortsNow = std::function<QList<PortEntry>(const QString &device)>;
QList<PortEntry> portsNow(const QString &device);

/// Where a lost device is again: under its old name, unless another adapter has taken that, or, by its serial number,
/// under a new one. Ports that had other names while it was connected (`others`) are not it; two that could be it are
/// none.
std::optional<QString> whereReturned(const PortEntry &lost, const QSet<QString> &others, const QList<PortEntry> &now);

/// Waits for a lost device to come back, for a minute.
class DeviceWatch : public QObject
{
    Q_OBJECT

public:
    explicit DeviceWatch(PortsNow ports = portsNow, QObject *parent = nullptr);

    /// Takes down which device was opened: once it is gone, nothing can be learned about it.
    void remember(const QString &device);
    /// The remembered device is lost: looks for it each second from now on.
    void start();
    void stop();
    bool isWatching() const { return m_timer.isActive(); }

public slots:
    void tick();

signals:
    /// The device is there again under this name, and has been for a second: its rights are set by then.
    void returned(const QString &device);
    /// A minute is over.
    void givenUp();

private:
    PortsNow m_ports;
    QTimer m_timer;
    PortEntry m_device;
    QSet<QString> m_others;
    std::optional<QString> m_seen;
    int m_ticks = 0;
};
