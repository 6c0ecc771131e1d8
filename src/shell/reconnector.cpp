#include "reconnector.h"

#include "settings.h"

#include <utility>

using namespace Qt::StringLiterals;

Reconnector::Reconnector(Session &session, QObject *parent) : QObject(parent), m_session(session)
{
    connect(&session, &Session::portOpened, this, [this](const QString &device) {
        withdraw();
        m_watch.remember(device);
    });
    connect(&session, &Session::linkLost, &m_watch, &DeviceWatch::start);
    connect(&m_watch, &DeviceWatch::returned, this, &Reconnector::returned);
}

void Reconnector::returned(const QString &device)
{
    m_device = device;
    emit offered(device);
    m_session.withStore<QString>(
        Store::Access::Read, [](Store &store) { return setting(store, u"auto-reconnect"_s); }, this,
        [this](const QString &wanted) {
            if (wanted == "on"_L1)
                reconnect();
        });
}

void Reconnector::reconnect()
{
    if (m_session.Status() == "0"_L1 && !m_device.isEmpty())
        m_session.connectOrDisconnect(std::exchange(m_device, {}));
}

void Reconnector::withdraw()
{
    m_watch.stop();
    m_device.clear();
    emit withdrawn();
}
