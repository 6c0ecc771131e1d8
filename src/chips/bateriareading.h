#pragma once

#include "language.h"
#include "panel.h"

/// What the gas gauge answered, and what it is read with.
struct GaugeInput
{
    QString reply; ///< empty: nothing was read yet
    QString model;
    Language language = Language::Portuguese;
};

/// The eight facts about the battery, its health first. Nothing is judged: there is no limit that fits all uses.
Panel readBateria(const GaugeInput &input);

/// The captions of the eight facts, by key.
QStringView batteryFact(int index);
inline constexpr int kBatteryFacts = 8;

/// What a gauge shows that was not told.
inline constexpr int kGaugeUnknown = -1;
