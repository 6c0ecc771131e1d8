#include "openerror.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

enum class Theft
{
    Holds,  ///< has the device open for a while
    Removes ///< makes the device vanish
};

/// Services that take serial adapters for something else than they are.
struct Thief
{
    QLatin1StringView program;
    Theft theft;
    QStringView remedy;
};

constexpr Thief kThieves[] = {
    {"ModemManager"_L1, Theft::Holds, u"REMEDY_MODEMMANAGER"},
    {"brltty"_L1, Theft::Removes, u"REMEDY_BRLTTY"},
};

/// A bare number counts as an adapter: that is what the Box hangs on.
bool mayBeUsbAdapter(const QString &device)
{
    const QString name = device.section(u'/', -1);
    return name.startsWith("ttyUSB"_L1) || name.startsWith("ttyACM"_L1) || name.startsWith("usb-"_L1) || device == name;
}

bool isThief(const QString &program)
{
    return std::ranges::find(kThieves, program, &Thief::program) != std::end(kThieves);
}

bool isSuspected(const Thief &thief, const OpenFacts &facts)
{
    if (facts.holder && facts.holder->program == thief.program)
        return true;
    const QString &device = facts.canonicalDevice.isEmpty() ? facts.device : facts.canonicalDevice;
    return mayBeUsbAdapter(device) && facts.running.contains(thief.program);
}

Notice groupRemedy(const OpenFacts &facts)
{
    if (!facts.group->mayOpen || facts.group->name.isEmpty())
        return {u"REMEDY_DEVICE_RIGHTS"_s, {facts.device}};
    return {facts.group->joined ? u"REMEDY_NEW_LOGIN"_s : u"REMEDY_GROUP"_s, {facts.group->name}};
}

Notice holderRemedy(const OpenFacts &facts)
{
    if (facts.holder && !facts.holder->program.isEmpty())
        return {u"REMEDY_HELD_BY"_s, {facts.device, facts.holder->program, QString::number(facts.holder->pid)}};
    if (!facts.holder && !facts.orphanedLock.isEmpty())
        return {u"REMEDY_ORPHANED_LOCK"_s, {facts.orphanedLock}};
    return {u"REMEDY_IN_USE"_s, {facts.device}};
}

OpenFacts factsAbout(const QString &device)
{
    const QString canonical = QFileInfo(device).canonicalFilePath();
    return {.device = device,
            .canonicalDevice = canonical,
            .group = groupMissingFor(device),
            .holder = canonical.isEmpty() ? std::nullopt : holderOf(canonical),
            .orphanedLock = canonical.isEmpty() ? QString() : orphanedLockOf(canonical),
            .running = runningPrograms()};
}

} // namespace

Trouble refusedTrouble(const OpenFacts &facts)
{
    if (facts.group) // who holds the device does not matter to someone who may not open it
        return {{u"PORT_NOT_ALLOWED"_s, {facts.device}}, {groupRemedy(facts)}};
    Trouble trouble{{u"MSG_PORTA_EM_USO"_s, {facts.device}}};
    if (!facts.holder || !isThief(facts.holder->program))
        trouble.remedies.append(holderRemedy(facts));
    for (const Thief &thief : kThieves) {
        if (isSuspected(thief, facts))
            trouble.remedies.append({thief.remedy.toString()});
    }
    return trouble;
}

Trouble missingTrouble(const OpenFacts &facts)
{
    Trouble trouble{{u"MSG_PORTA_INVALIDA"_s, {facts.device}}, {{u"REMEDY_NO_PORT"_s}}};
    for (const Thief &thief : kThieves) {
        if (thief.theft == Theft::Removes && isSuspected(thief, facts))
            trouble.remedies.append({thief.remedy.toString()});
    }
    return trouble;
}

Trouble openError(const QString &device, QSerialPort::SerialPortError error)
{
    if (error == QSerialPort::PermissionError)
        return refusedTrouble(factsAbout(device));
    return error == QSerialPort::DeviceNotFoundError ? noSuchPort(device) : notAPort(device);
}

Trouble noSuchPort(const QString &port)
{
    return missingTrouble({.device = port, .running = runningPrograms()});
}

Trouble notAPort(const QString &path)
{
    return {{u"MSG_PORTA_INVALIDA"_s, {path}}, {{u"REMEDY_NOT_A_PORT"_s, {path}}}};
}
