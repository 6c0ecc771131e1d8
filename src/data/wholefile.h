#pragma once

#include "result.h"

#include <QByteArray>
#include <QString>

/// Writes a document to a file, whole or not at all; what was there before stays unless the new one is complete.
/// Trouble: FILE_NOT_WRITTEN.
Result<Done> writeWhole(const QByteArray &document, const QString &path);

/// The same for a copy of a file.
Result<Done> copyWhole(const QString &original, const QString &path);

/// Whether what could not be written there had no room: the system does not always say so.
bool isDiskFull(const QString &path, qint64 size);
