#pragma once

#include <QList>
#include <QString>

#include <optional>

/// One measured thing: our figure, the other's, and the limit it is held to. Not measured stays empty.
struct Figure
{
    QString what;
    QString unit;
    std::optional<double> ours = {};
    std::optional<double> others = {};
    std::optional<double> most = {};      ///< our figure at most this
    std::optional<double> mostTimes = {}; ///< our figure at most so many times the other's
    QString othersName = QStringLiteral("peer");
};

/// Whether the limit was met; nothing when there is none or a figure is missing.
std::optional<bool> isMet(const Figure &figure);

/// Prints a figure as one line of tab-separated cells: what, unit, ours, the other's, ratio, limit, whether it was met.
void print(const Figure &figure);

double median(QList<double> values);
