#pragma once

#include <QString>

#include <optional>

/// The group that a user has to join before this device opens. Nothing when the user may open it already, or where
/// the system knows no such groups.
std::optional<QString> groupMissingFor(const QString &device);
