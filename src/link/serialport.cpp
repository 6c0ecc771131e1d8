#include "serialport.h"

#include "hangup.h"
#include "lineinput.h"
#include "openerror.h"

#include <QFileInfo>

namespace {

constexpr qsizetype kMostUnread = 2 << 20; // far more than a line of this speed brings between two reads

/// Two names of one device would not exclude each other, so a line is only ever opened by its one true path.
QString trueName(const QString &device)
{
    const QString canonical = QFileInfo(device).canonicalFilePath();
    return canonical.isEmpty() ? device : canonical;
}

bool isOrdinaryFile(const QString &device)
{
    const QFileInfo node(device);
    return node.isDir() || node.isFile();
}

} // namespace

SerialPort::SerialPort(QObject *parent) : Port(parent)
{
    connect(&m_line, &QSerialPort::readyRead, this, &SerialPort::keepWhatArrived);
    connect(&m_line, &QSerialPort::errorOccurred, this, &SerialPort::examine);
}

Result<Done> SerialPort::open(const QString &device)
{
    close();
    m_arrived.clear();
    m_secondTry = false;
    if (isOrdinaryFile(device))
        return notAPort(device);
    const QString name = trueName(device);
    if (!m_lock.take(name))
        return openError(device, QSerialPort::PermissionError);
    m_line.setPortName(name);
    const QSerialPort::SerialPortError error = openLine();
    if (error != QSerialPort::NoError) {
        m_lock.release(); // before the holder is looked for, who is not we
        return openError(device, error);
    }
    emit opened(name);
    discardInput(); // bytes from before belong to nobody's command
    return Done{};
}

QSerialPort::SerialPortError SerialPort::openLine()
{
    m_line.setBaudRate(QSerialPort::Baud115200);
    m_line.setDataBits(QSerialPort::Data8);
    m_line.setParity(QSerialPort::NoParity);
    m_line.setStopBits(QSerialPort::OneStop);
    m_line.setFlowControl(QSerialPort::NoFlowControl);
    if (!m_line.open(QIODevice::ReadWrite))
        return m_line.error();
    if (!claim(m_line)) {
        m_line.close();
        return QSerialPort::PermissionError;
    }
    m_line.setDataTerminalReady(true); // a pseudo-terminal has neither line and refuses, which does no harm
    m_line.setRequestToSend(true);
    return QSerialPort::NoError;
}

void SerialPort::close()
{
    if (!m_line.isOpen())
        return;
    arrive(takeInput(m_line));
    m_line.close();
    m_lock.release();
}

bool SerialPort::isOpen() const
{
    return m_line.isOpen();
}

void SerialPort::write(const QByteArray &bytes)
{
    if (!m_line.isOpen())
        return;
    m_line.write(bytes);
    emit sent(bytes);
}

QByteArray SerialPort::read()
{
    return std::exchange(m_arrived, {});
}

/// Also what nobody wants has passed, so it is told before it is dropped.
void SerialPort::discardInput()
{
    if (m_line.isOpen()) {
        keepWhatArrived();
        arrive(takeInput(m_line));
    }
    m_arrived.clear();
}

void SerialPort::keepWhatArrived()
{
    arrive(m_line.read(m_line.bytesAvailable())); // readAll() would keep four times the memory of a short chunk
}

void SerialPort::arrive(const QByteArray &bytes)
{
    if (bytes.isEmpty())
        return;
    m_secondTry = false;
    m_arrived += bytes;
    if (m_arrived.size() > kMostUnread)
        m_arrived = m_arrived.last(kMostUnread / 2);
    emit received(bytes);
}

/// After a hang-up the line reports read errors without end and still calls itself open, so the first one closes it.
void SerialPort::examine(QSerialPort::SerialPortError error)
{
    const bool fatal = error == QSerialPort::ReadError || error == QSerialPort::ResourceError;
    if (!fatal || !m_line.isOpen())
        return;
    keepWhatArrived();
    const bool gone = hasHungUp(m_line);
    m_line.close();
    if (!gone && reopened())
        return;
    m_lock.release();
    emit lost();
}

/// One new try until bytes come again: a line that only ever fails is as good as lost.
bool SerialPort::reopened()
{
    return !std::exchange(m_secondTry, true) && openLine() == QSerialPort::NoError;
}
