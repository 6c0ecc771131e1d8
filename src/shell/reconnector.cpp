#include "reconnector.h"

#include "settings.h"

#include <utility>

using namespace Qt::StringLiterals;

Reconnector::Reconnector(Session &session, PortsNow ports, QObject *parent)
    : QObject(parent), m_session(session), m_watch(std::move(ports))
{
    connect(&session, &Session::portOpened, this, &Reconnector::portOpened);
    connect(&session, &Session::linkLost, &m_watch, &DeviceWatch::start);
    connect(&session, &Session::connectionSettled, this, [this] { m_isTrying = false; });
    connect(&session, &Session::connectFailed, this, [this] {
        if (std::exchange(m_isTrying, false)) // the Box is back before its phone
            m_watch.start();
    });
    connect(&m_watch, &DeviceWatch::returned, this, &Reconnector::returned);
}

/// A simulated phone that is gone does not come back, and its device may soon be somebody's terminal.
void Reconnector::portOpened(const QString &device)
{
    const bool isSimulated = portAddress(m_session.port()).kind == PortAddress::Kind::Simulated;
    m_watch.remember(isSimulated ? QString() : device);
    m_device.clear();
    m_isTrying = false;
    emit withdrawn();
}

void Reconnector::returned(const QString &device)
{
    m_device = device;
    emit offered(device);
    m_session.withStore<QString>(
        Store::Access::Read, [](Store &store) { return setting(store, u"auto-reconnect"_s); }, this,
        [this](const QString &wanted) {
            if (wanted == "on"_L1)
                connectAgain(Asked::ByItself);
        });
}

void Reconnector::connectAgain(Asked asked)
{
    if (m_session.Status() != "0"_L1 || m_device.isEmpty())
        return;
    m_session.reconnect(QString(m_device), asked);
    m_isTrying = m_session.Status() != "0"_L1;
    if (!m_isTrying) // in use, or its rights are not set yet
        m_watch.tellAgain();
}
