#pragma once

#include "language.h"
#include "panel.h"

inline constexpr QLatin1StringView kBatteryProperties{"battery --properties"};
inline constexpr QLatin1StringView kGasGauge{"device  --key GasGauge -p"}; // the phone's notes write two blanks

/// What the gas gauge answered, and what it is read with.
struct GaugeInput
{
    QString reply; ///< empty: nothing was read yet
    QString model;
    Language language = Language::Portuguese;
};

/// The eight facts about the battery, its health first. Nothing is judged: there is no limit that fits all uses.
Panel readBateria(const GaugeInput &input);

/// The present capacity as a whole percentage of the designed one; above 100 on a fresh battery.
std::optional<int> batteryHealth(const QString &reply);
/// The gauges of the oldest models do not tell everything.
bool isGaugeShort(const QString &model);

/// The captions of the eight facts, by key.
QStringView batteryFact(int index);
inline constexpr int kBatteryFacts = 8;

/// What a gauge shows that was not told.
inline constexpr int kGaugeUnknown = -1;
