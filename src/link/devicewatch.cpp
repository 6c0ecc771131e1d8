#include "devicewatch.h"

#include <QFileInfo>

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

namespace {

constexpr auto kLookEvery = 500ms;

} // namespace

QList<PortEntry> portsNow(const QString &device)
{
    QList<PortEntry> ports = portsOfThisMachine();
    const QString canonical = QFileInfo(device).canonicalFilePath();
    if (canonical.isEmpty() || std::ranges::find(ports, device, &PortEntry::device) != ports.end())
        return ports;
    const auto real = std::ranges::find(ports, canonical, &PortEntry::device);
    PortEntry named = real == ports.end() ? PortEntry{} : *real;
    if (real != ports.end())
        ports.erase(real);
    named.device = device;
    ports.append(named);
    return ports;
}

std::optional<QString> whereReturned(const PortEntry &lost, const QSet<QString> &others, const QList<PortEntry> &now)
{
    QStringList candidates;
    for (const PortEntry &port : now) {
        const bool isSame = port.serialNumber == lost.serialNumber;
        if (isSame && port.device == lost.device)
            return port.device;
        if (isSame && !lost.serialNumber.isEmpty() && !others.contains(port.device))
            candidates.append(port.device);
    }
    return candidates.size() == 1 ? std::optional(candidates.first()) : std::nullopt;
}

DeviceWatch::DeviceWatch(PortsNow ports, QObject *parent) : QObject(parent), m_ports(std::move(ports))
{
    m_timer.setInterval(kLookEvery);
    connect(&m_timer, &QTimer::timeout, this, &DeviceWatch::tick);
}

void DeviceWatch::remember(const QString &device)
{
    stop();
    m_device = PortEntry{.device = device};
    m_others.clear();
    const QList<PortEntry> ports = m_ports(device);
    for (const PortEntry &port : ports) {
        if (port.device == device)
            m_device = port;
        else
            m_others.insert(port.device);
    }
}

void DeviceWatch::start()
{
    if (m_device.device.isEmpty())
        return;
    m_seen.reset();
    m_isTold = false;
    m_timer.start();
}

void DeviceWatch::stop()
{
    m_timer.stop();
}

/// A device that is just going, or just coming, shows for a moment too: only what is there twice running has returned.
void DeviceWatch::tick()
{
    const auto before = std::exchange(m_seen, whereReturned(m_device, m_others, m_ports(m_device.device)));
    if (!m_seen || m_seen != before)
        m_isTold = false;
    else if (!std::exchange(m_isTold, true))
        emit returned(QString(*m_seen)); // who hears it may start anew
}
