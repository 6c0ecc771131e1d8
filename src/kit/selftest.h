#pragma once

#include <QLatin1StringView>

/// The power chip's own measurements, all of them in one reply; some charger and display chips answer in it too.
inline constexpr QLatin1StringView kSelfTest{"pmuadc --read all"};
