#pragma once

#include "result.h"

#include <QDateTime>
#include <QString>

#include <chrono>

/// Writes a consistent copy of a store to a new file. STORE_EXISTS when there is one: nothing is overwritten. A copy
/// that could not be made whole leaves no file.
Result<Done> backupStore(const QString &path, const QString &target, std::chrono::milliseconds patience = {});

/// A name for a backup that a person makes now, which is not taken.
QString freeBackupName(const QString &path);

/// The folder beside a store that holds its backups.
QString backupFolder(const QString &path);

/// Keeps the contents of a store as NAME.bak-DATE-TIME in its backup folder (see `spareBackups`). A new one is made
/// only when the content differs from the newest; true when one was. Trouble: STORE_LOCKED, or BACKUP_FAILED, which is
/// to be told once and stops nothing: the older backups stay as they are and no half one is left.
Result<bool> rollBackups(const QString &path, std::chrono::milliseconds patience = {},
                         const QDateTime &now = QDateTime::currentDateTimeUtc());
