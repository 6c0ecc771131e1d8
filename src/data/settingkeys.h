#pragma once

#include "store.h"

#include <QList>
#include <QString>

#include <optional>

/// Of less health than so many per cent a battery counts as worn.
inline constexpr QLatin1StringView kBatteryWorn{"battery-worn"};
inline constexpr int kBatteryWornPreset = 80;

/// A setting that a person may read and write by name.
struct NamedSetting
{
    QString name;
    QString value; ///< empty: never set
};

/// Every setting by name, in the order in which they are listed.
Result<QList<NamedSetting>> namedSettings(const Store &store);

/// The value of one setting. Trouble: SETTING_UNKNOWN with the names that there are.
Result<QString> namedSetting(const Store &store, const QString &name);

/// The same, fit to be used: whatever a store from elsewhere brings along, it is SETTING_INVALID unless it could have
/// been set.
Result<QString> checkedSetting(const Store &store, const QString &name);

/// What is wrong with a value, nothing when it is accepted. Trouble: as of `setNamedSetting`.
std::optional<Trouble> settingTrouble(const QString &name, const QString &value);

/// Writes a setting after checking its value. Trouble: SETTING_UNKNOWN, SETTING_NO_FILE, or SETTING_INVALID with what
/// is accepted.
Result<Done> setNamedSetting(Store &store, const QString &name, const QString &value);
