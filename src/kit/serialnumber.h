#pragma once

#include <QString>

/// What asks the phone for the serial number of its board.
inline constexpr QLatin1StringView kSerialCommand{"syscfg print SrNm"};

/// The serial number in the reply to that; empty when the phone told none.
QString serialIn(const QString &reply);
