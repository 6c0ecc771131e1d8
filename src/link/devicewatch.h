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

/// Waits for a lost device to come back, for as long as it takes.
class DeviceWatch : public QObject
{
    Q_OBJECT

public:
    explicit DeviceWatch(PortsNow ports = portsNow, QObject *parent = nullptr);

    /// Takes down which device was opened: once it is gone, nothing can be learned about it.
    void remember(const QString &device);
    /// The remembered device is lost: looks for it from now on.
    void start();
    void stop();
    /// What was told led to nothing: it is told anew as long as the device is there.
    void tellAgain() { m_isTold = false; }
    bool isWatching() const { return m_timer.isActive(); }

public slots:
    void tick();

signals:
    /// The device is there again under this name and stays: its rights are set by then. Told once for each return.
    void returned(const QString &device);

private:
    PortsNow m_ports;
    QTimer m_timer;
    PortEntry m_device;
    QSet<QString> m_others;
    std::optional<QString> m_seen;
    bool m_isTold = false;
};
