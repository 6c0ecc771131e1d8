#pragma once

#include <QString>

#include <optional>

/// Who may open a device that this user may not.
struct DeviceGroup
{
    QString name;
    bool joined = false; ///< the user is in it already, but this login began before
    bool mayOpen = true; ///< the device lets the group in at all
};

/// The group that stands between the user and this device. Nothing when the user may open it, or where the system
/// knows no such groups.
std::optional<DeviceGroup> groupMissingFor(const QString &device);
