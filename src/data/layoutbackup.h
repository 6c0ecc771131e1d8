#pragma once

#include "result.h"

#include <QString>

/// Keeps a store in its backup folder before its layout changes, under a name that tells layout and content, so that
/// a change that fails again and again leaves one backup. Trouble: STORE_LOCKED or BACKUP_FAILED.
Result<Done> keepLayout(const QString &path, int version);
