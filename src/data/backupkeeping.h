#pragma once

#include <QDateTime>
#include <QList>

/// Which backups may go, by their places among the times at which they were made, newest first. The last five stay,
/// then one of each day for a week and one of each week for a quarter.
QList<qsizetype> spareBackups(const QList<QDateTime> &made, const QDate &today);
