#include "replayport.h"

ReplayPort::ReplayPort(QByteArray reply, QObject *parent) : Port(parent), m_reply(std::move(reply)) {}

Result<Done> ReplayPort::open(const QString &)
{
    m_open = true;
    m_arrived.clear();
    return Done{};
}

void ReplayPort::close()
{
    m_open = false;
}

bool ReplayPort::isOpen() const
{
    return m_open;
}

void ReplayPort::write(const QByteArray &bytes)
{
    if (!m_open)
        return;
    emit sent(bytes);
    m_arrived += m_reply;
    emit received(m_reply);
}

QByteArray ReplayPort::read()
{
    return std::exchange(m_arrived, {});
}

void ReplayPort::discardInput()
{
    m_arrived.clear();
}
