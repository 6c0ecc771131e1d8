#pragma once

#include <QMap>
#include <QString>

/// The value tokens of a healthy phone by output label, for the outputs that the seed tables know of the model. A
/// rail with a nominal lies within 1 % of it; what has none gets a value that is plausible and nothing more: it is
/// for the simulation alone and no reference.
QMap<QString, QString> healthyRails(const QString &model);

/// What an output of a healthy phone stands at, before the scatter; 0 for one that the seed tables do not know.
double typicalMillivolts(const QString &model, const QString &output);

/// A value as phones print it: four decimals.
QString valueToken(double value);
