#pragma once

#include <QString>

// Where something stands in a reply. A reply may be a flood of megabytes, so it is searched, and never taken apart.

/// The line around a position, without the blanks at its ends.
QString lineAround(QStringView reply, qsizetype position);

/// The first line with this word in it; null when none has it.
QString lineWith(QStringView reply, QStringView word);

/// The first line behind the echo.
QString lineBehindEcho(QStringView reply);
