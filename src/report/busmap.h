#pragma once

#include <QList>
#include <QString>

/// How far it is known that a device stands on its bus.
enum class Confidence
{
    High,
    Medium,
    Low
};

struct MappedDevice
{
    QString address; ///< "0x1A"
    QString name;
    Confidence confidence = Confidence::Low;
};

/// A bus that a model has, with the devices known on it and the parts that are likely to fail.
struct MappedBus
{
    int bus = 0;
    QList<MappedDevice> devices;
    QString likely;
};

/// The buses of a model that can be tested, from the device table.
QList<MappedBus> mappedBuses(const QString &model);
