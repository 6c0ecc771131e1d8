#pragma once

#include <QList>
#include <QString>

/// A serial port of this machine: the number that a person picks, and the device behind it.
struct PortEntry
{
    int number = 0;
    QString device = {}; ///< path of the device
    QString maker = {};
    QString serialNumber = {};

    friend bool operator==(const PortEntry &, const PortEntry &) = default;
};

/// Numbers 1 to 30 for the ports found: USB adapters first, then the other real ports, each kind in its own order.
QList<PortEntry> numbered(QList<PortEntry> found);

/// The serial ports of this machine, numbered.
QList<PortEntry> portsOfThisMachine();
