#pragma once

#include <QSerialPort>
#include <QString>

/// Keeps a device to one program at a time, whoever runs it: a lock by the device's one true path. It ends with its
/// owner, also when that is killed, so nothing stale is ever left.
class PortLock
{
public:
    PortLock() = default;
    ~PortLock();
    PortLock(const PortLock &) = delete;
    PortLock &operator=(const PortLock &) = delete;

    /// Takes the lock of a device. False when another holds it; true also where there is no place for such locks.
    bool take(const QString &canonicalDevice);
    void release();

private:
    int m_file = -1;
};

/// Claims an open line itself, for the programs that look at the device and not at lock files. False when another has
/// claimed it.
bool claim(const QSerialPort &line);

/// Where the lock of a device is; empty where there is no place for such locks.
QString lockFileOf(const QString &canonicalDevice);
