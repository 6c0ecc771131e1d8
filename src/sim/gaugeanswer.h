#pragma once

#include <QStringList>

struct PhoneProfile;

/// What the phone tells of its battery in short, and what the gas gauge itself says.
QStringList batteryLines(const PhoneProfile &profile);
QStringList gaugeLines(const PhoneProfile &profile);
