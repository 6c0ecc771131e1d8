#pragma once

#include <QString>

inline constexpr int kBuses = 8;

/// What a model makes of a bus's button.
enum class BusButton
{
    Testable,
    Disabled,
    Hidden ///< and disabled
};

BusButton busButton(const QString &model, int bus);

/// The parts that are likely to fail where this bus of a model has a silent device; empty when none is known.
QString likelyFailure(const QString &model, int bus);
