#include "portpermission.h"

std::optional<QString> groupMissingFor(const QString &)
{
    return std::nullopt;
}
