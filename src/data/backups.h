#pragma once

#include "result.h"

#include <QString>

/// Writes a consistent copy of a store to a new file. STORE_EXISTS when there is one: nothing is overwritten. A copy
/// that could not be made whole leaves no file.
Result<Done> backupStore(const QString &path, const QString &target);

/// The folder beside a store that holds its backups.
QString backupFolder(const QString &path);

/// Keeps the last contents of a store as NAME.bak1 (the newest) to NAME.bak`keep` in its backup folder. A new one is
/// made only when the content differs from the newest; true when one was. Trouble BACKUP_FAILED, which is to be told
/// once and stops nothing: the older backups stay as they are and no half one is left.
Result<bool> rollBackups(const QString &path, int keep = 5);
