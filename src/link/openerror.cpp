#include "openerror.h"

#include "portpermission.h"

using namespace Qt::StringLiterals;

namespace {

Notice remedyFor(const QString &device)
{
    const std::optional<DeviceGroup> group = groupMissingFor(device);
    if (!group)
        return {u"REMEDY_IN_USE"_s, {device}};
    return {group->joined ? u"REMEDY_NEW_LOGIN"_s : u"REMEDY_GROUP"_s, {group->name}};
}

} // namespace

Trouble notAPort(const QString &path)
{
    return {{u"MSG_PORTA_INVALIDA"_s, {path}}, {{u"REMEDY_NOT_A_PORT"_s, {path}}}};
}

Trouble openError(const QString &device, QSerialPort::SerialPortError error)
{
    if (error == QSerialPort::PermissionError)
        return {{u"MSG_PORTA_EM_USO"_s, {device}}, {remedyFor(device)}};
    if (error == QSerialPort::DeviceNotFoundError)
        return {{u"MSG_PORTA_INVALIDA"_s, {device}}, {{u"REMEDY_NO_PORT"_s}}};
    return notAPort(device);
}
