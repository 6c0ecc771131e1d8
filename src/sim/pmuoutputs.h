#pragma once

#include <QString>
#include <QStringList>

/// The outputs of the power chip in the order in which a phone prints them, each by its own name: "ibuck0", "buck3",
/// "buck3_sw1", "ldo2", "ildo2", "vrtc".
QStringList pmuOutputs();

/// What stands before an output's value in a reply: "ibuck0:", "BIST ldo2:".
QString pmuLabel(const QString &output);

/// The output that a reference row is about: "Ldo2" gives "ldo2", the current row "mALdo2" gives "ildo2".
QString outputOfRow(const QString &orig);

/// Whether the output is a current in milliamperes; the others are voltages in millivolts.
bool isCurrent(const QString &output);
