#pragma once

#include <QList>

#include <utility>

/// Places of two sequences that hold the same, in order.
using Pairs = QList<std::pair<qsizetype, qsizetype>>;

/// Where two sequences run alike, in as many places as a reasonable time allows.
Pairs aligned(const QList<int> &left, const QList<int> &right);
