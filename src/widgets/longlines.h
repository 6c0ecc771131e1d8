#pragma once

#include <QString>

/// Endless lines cost the square of their length to lay out.
inline constexpr qsizetype kLongestLine = 1000;

/// The text with its endless lines broken.
QString brokenLines(const QString &text);

/// The last so many lines of a text.
QStringView lastLines(const QString &text, int count);
