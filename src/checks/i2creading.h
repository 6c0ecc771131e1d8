#pragma once

#include "busdevices.h"
#include "language.h"
#include "modelbuses.h"
#include "panel.h"

/// The command that scans a bus.
QString busCommand(int bus);

/// What a bus answered to its scan.
struct BusReply
{
    int bus = 0;
    QString reply; ///< empty: it did not answer at all
    bool cut = false;
};

/// Where an automatic run stands.
enum class BusRun
{
    None,
    Running,
    Cancelled,
    Finished
};

struct I2CInput
{
    QList<BusReply> replies;                       ///< in the order of the tests, each bus once
    std::optional<QList<BusDevice>> expected = {}; ///< of every bus of the model; nothing when it could not be told
    int bus = -1;                                  ///< the bus that was tested last
    BusRun run = BusRun::None;
    QString model;
    Language language = Language::Portuguese;
};

/// A map of the buses: which of the devices that are expected answer, and what is likely to fail where one is silent.
Panel readI2C(const I2CInput &input);

/// The devices that answered; known ones keep their names.
QList<BusDevice> answeringDevices(const BusReply &reply, const QList<BusDevice> &expected);

/// What is expected of a model once the phone that answered counts as good. A bus that was cut, or did not answer,
/// stays as it is.
struct KnownGood
{
    QList<ExpectedBus> buses;
    int devices = 0;
    QStringList added;
    QStringList dropped; ///< were expected and are silent
};

KnownGood knownGood(const I2CInput &input, const QString &source);
