#pragma once

#include <QString>

#include <optional>

/// How far a reading lies from a recorded one, in per cent of the recorded one; both as they are shown ("1.200 V",
/// "12,3 mA"). Shown values are cut: what was recorded as "1.8" may have been anything below 1.9, and only what is
/// certainly more than that is drift. From a recorded zero it is 100. Nothing when one of them is not measured or
/// their units differ.
std::optional<double> drift(const QString &reading, const QString &recorded);
