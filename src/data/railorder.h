#pragma once

#include "railrows.h"

/// The order of two texts as the store sees it: without regard to the case of the letters A to Z, otherwise by code
/// point. Below, at or above zero.
int compareAsStore(const QString &left, const QString &right);

/// Whether a row stands before another in an order.
bool precedes(const RailRow &left, const RailRow &right, RailOrder order);

/// The rows in an order, exactly as the store would list them. PorcDescending: the farthest off first, whichever way;
/// then rows whose reading has no deviation; last those without a reading.
QList<RailRow> sorted(QList<RailRow> rows, RailOrder order);
