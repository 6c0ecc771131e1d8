#pragma once

#include <QString>
#include <QStringList>

/// The nine model names, the keys of every per-model table, in the order the selectors list them.
const QStringList &modelNames();

/// The model of a regulatory number ("A1660"). Exact and case-sensitive; empty when the number is not known.
QString modelForNumber(const QString &number);

/// The generation from the IP 8 on: another port controller, and a processor current that is not shown.
bool isNewestGeneration(const QString &model);

/// The one model with an OLED panel, which has another display supply chip.
bool hasOledPanel(const QString &model);
