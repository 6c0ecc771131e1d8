#include "portlist.h"

#include <QFile>
#include <QSerialPortInfo>

#include <algorithm>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostPorts = 30;
constexpr QLatin1StringView kUsbStems[] = {"ttyUSB"_L1, "ttyACM"_L1};

/// The name of a device in two parts, so that ttyUSB10 comes after ttyUSB9.
struct DeviceName
{
    QString stem;
    int index = -1;
};

DeviceName nameOf(const PortEntry &entry)
{
    const QString name = entry.device.section(QLatin1Char('/'), -1).section(QLatin1Char('\\'), -1);
    const auto isDigit = [](QChar c) { return c.isDigit(); };
    const auto lastOther = std::find_if_not(name.crbegin(), name.crend(), isDigit);
    const qsizetype digits = lastOther - name.crbegin();
    if (digits == 0)
        return {name};
    return {name.chopped(digits), name.last(digits).toInt()};
}

auto placeOf(const PortEntry &entry)
{
    const DeviceName name = nameOf(entry);
    const auto kind = std::ranges::find(kUsbStems, name.stem) - std::begin(kUsbStems);
    return std::tuple(kind, name.stem, name.index);
}

/// A device that is named by its number keeps it; the others are counted.
int numberOf(const PortEntry &entry, int place)
{
    const DeviceName name = nameOf(entry);
    return name.stem == "COM"_L1 ? name.index : place;
}

/// The kernel makes nodes for serial ports that the machine does not have; their type is 0, "unknown".
bool hasHardware(const QSerialPortInfo &port)
{
    QFile type(u"/sys/class/tty/%1/type"_s.arg(port.portName()));
    return !type.open(QIODevice::ReadOnly) || type.readAll().trimmed() != "0";
}

} // namespace

QList<PortEntry> numbered(QList<PortEntry> found)
{
    std::ranges::sort(found, {}, placeOf);
    for (qsizetype i = 0; i < found.size(); ++i)
        found[i].number = numberOf(found.at(i), static_cast<int>(i) + 1);
    found.removeIf([](const PortEntry &entry) { return entry.number < 1 || entry.number > kMostPorts; });
    return found;
}

QList<PortEntry> portsOfThisMachine()
{
    QList<PortEntry> found;
    const QList<QSerialPortInfo> ports = QSerialPortInfo::availablePorts();
    for (const QSerialPortInfo &port : ports) {
        if (hasHardware(port))
            found.append({0, port.systemLocation(), port.manufacturer(), port.serialNumber()});
    }
    return numbered(std::move(found));
}
