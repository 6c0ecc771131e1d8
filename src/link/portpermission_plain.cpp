#include "portpermission.h"

std::optional<DeviceGroup> groupMissingFor(const QString &)
{
    return std::nullopt;
}
