#include "portpermission.h"

#include <QFileInfo>

std::optional<QString> groupMissingFor(const QString &device)
{
    const QFileInfo node(device);
    if (node.isReadable() && node.isWritable())
        return std::nullopt;
    return node.group();
}
