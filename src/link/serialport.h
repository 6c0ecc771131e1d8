#pragma once

#include "port.h"
#include "portlock.h"

#include <QSerialPort>

/// A port of this machine, real or pseudo-terminal.
class SerialPort : public Port
{
    Q_OBJECT

public:
    explicit SerialPort(QObject *parent = nullptr);

    Result<Done> open(const QString &device) override;
    void close() override;
    bool isOpen() const override;
    void write(const QByteArray &bytes) override;
    QByteArray read() override;
    void discardInput() override;

private:
    QSerialPort::SerialPortError openLine();
    void keepWhatArrived();
    void arrive(const QByteArray &bytes);
    void examine(QSerialPort::SerialPortError error);
    bool reopened();

    PortLock m_lock; // before the line, so that it ends after it
    QSerialPort m_line;
    QByteArray m_arrived; // what came before a loss is still read
    bool m_secondTry = false;
};
