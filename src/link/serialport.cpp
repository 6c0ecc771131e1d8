#include "serialport.h"

#include "hangup.h"
#include "openerror.h"

#include <QFileInfo>

namespace {

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
    m_line.setPortName(trueName(device));
    if (!openLine())
        return openError(device, m_line.error());
    m_line.clear(); // bytes from before belong to nobody's command
    return Done{};
}

bool SerialPort::openLine()
{
    m_line.setBaudRate(QSerialPort::Baud115200);
    m_line.setDataBits(QSerialPort::Data8);
    m_line.setParity(QSerialPort::NoParity);
    m_line.setStopBits(QSerialPort::OneStop);
    m_line.setFlowControl(QSerialPort::NoFlowControl);
    if (!m_line.open(QIODevice::ReadWrite))
        return false;
    m_line.setDataTerminalReady(true); // a pseudo-terminal has neither line and refuses, which does no harm
    m_line.setRequestToSend(true);
    return true;
}

void SerialPort::close()
{
    if (m_line.isOpen())
        m_line.close();
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

void SerialPort::discardInput()
{
    m_arrived.clear();
    if (m_line.isOpen())
        m_line.clear(QSerialPort::Input);
}

void SerialPort::keepWhatArrived()
{
    const QByteArray bytes = m_line.readAll();
    if (bytes.isEmpty())
        return;
    m_secondTry = false;
    m_arrived += bytes;
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
    if (gone || !reopened())
        emit lost();
}

/// One new try until bytes come again: a line that only ever fails is as good as lost.
bool SerialPort::reopened()
{
    return !std::exchange(m_secondTry, true) && openLine();
}
