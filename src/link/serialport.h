#pragma once

#include "port.h"

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
    bool openLine();
    void keepWhatArrived();
    void examine(QSerialPort::SerialPortError error);
    bool reopened();

    QSerialPort m_line;
    QByteArray m_arrived; // outlives the line: what came before a loss is still read
    bool m_secondTry = false;
};
