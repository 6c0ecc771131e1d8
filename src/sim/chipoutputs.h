#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

struct PhoneProfile;

/// The value tokens of the chips beside the power chip by label ("tigris vbus :"), for the chips that a model has.
QMap<QString, QString> healthyChips(const QString &model);

/// The label of a chip's output as a fault names it, "tigris.vbus" or, where only one chip has it, "vbus"; empty for
/// an output that the phone does not have.
QString chipLabel(const PhoneProfile &profile, const QString &name);
/// Every such name of a phone.
QStringList chipOutputNames(const PhoneProfile &profile);

/// The lines of a chip as the phone prints them. The touch supply is up only while it is switched on.
QStringList chipLines(const PhoneProfile &profile, QStringView chip);
