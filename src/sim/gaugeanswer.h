#pragma once

#include <QStringList>

struct PhoneProfile;

/// The gauges of the oldest models do not tell the present capacity.
bool tellsCapacity(const QString &model);

/// What the phone tells of its battery in short, and what the gas gauge itself says.
QStringList batteryLines(const PhoneProfile &profile);
QStringList gaugeLines(const PhoneProfile &profile);
