#include "portpermission.h"

#include <QFileInfo>

#include <grp.h>
#include <pwd.h>
#include <string_view>
#include <unistd.h>

namespace {

bool isMember(uint groupId)
{
    const passwd *user = ::getpwuid(::getuid());
    const group *entry = ::getgrgid(groupId);
    if (!user || !entry)
        return false;
    if (user->pw_gid == groupId)
        return true;
    const std::string_view name = user->pw_name;
    for (char **member = entry->gr_mem; *member; ++member) {
        if (name == *member)
            return true;
    }
    return false;
}

} // namespace

std::optional<DeviceGroup> groupMissingFor(const QString &device)
{
    const QFileInfo node(device);
    if (!node.exists() || (node.isReadable() && node.isWritable()))
        return std::nullopt;
    const bool mayOpen = node.permission(QFile::ReadGroup | QFile::WriteGroup);
    return DeviceGroup{node.group(), isMember(node.groupId()), mayOpen};
}
