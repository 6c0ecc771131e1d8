#pragma once

#include "shellcommands.h"

struct PhoneProfile;

/// What the parts of the board answer to the commands that test them: buses, radios, storage, display and memory.
/// Nothing for a command that is none of these.
std::optional<ShellAnswer> checkAnswer(const PhoneProfile &profile, const QString &line);

/// What a test command changes in the phone.
void obeyCheck(PhoneProfile &profile, const QString &line);

/// Takes a fault of a part as it was typed, "i2c1:75" and "off". False for one that the phone does not have.
bool breakPart(PhoneProfile &profile, const QString &part, const QString &how);
/// Every such fault of a phone, as it is typed.
QStringList partFaults(const PhoneProfile &profile);
