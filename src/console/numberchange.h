#pragma once

#include <QList>
#include <QString>

#include <optional>

/// By how much a number of a live line differs from its counterpart in the recorded line.
struct NumberChange
{
    QString text;                ///< "-600.0000 mV (-33.3 %)"
    std::optional<double> share; ///< of the recorded number, in per cent; nothing when that is zero

    friend bool operator==(const NumberChange &, const NumberChange &) = default;
};

/// The numbers in which two lines differ; none when they differ in anything else.
QList<NumberChange> numberChanges(const QString &live, const QString &recorded);
