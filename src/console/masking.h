#pragma once

#include <QStringList>

/// What stands in a text in place of a masked one.
inline constexpr QStringView kMasked{u"xxxxx®"};

/// The stored mask texts as the comparator takes them: without their marker tokens.
QStringList withoutMarkers(const QStringList &stored);

/// The text with every occurrence of these texts masked, whatever its letter case, in their order. An empty one masks
/// nothing.
QString masked(QString text, const QStringList &masks);
