#pragma once

#include "store.h"

#include <QList>
#include <QString>

/// A device that is expected on a bus of a model.
struct BusDevice
{
    int bus = 0;
    QString key; ///< how the phone's scan shows it: "x1A" in "0x1A"
    QString name;
    QString source = {};     ///< where it is known from
    QString confidence = {}; ///< in that: "high", "medium", "low", or empty when not known

    friend bool operator==(const BusDevice &, const BusDevice &) = default;
};

/// The devices of every bus of a model.
Result<QList<BusDevice>> busDevices(const Store &store, const QString &model);

/// What is expected on a bus from now on, in place of what was; all or nothing.
struct ExpectedBus
{
    QString model;
    int bus = 0;
    QList<BusDevice> devices;
};

Result<Done> expectOnBuses(Store &store, const QList<ExpectedBus> &buses);
