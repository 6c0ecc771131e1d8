#pragma once

#include <QString>
#include <QStringList>

/// Whether the live reply stands in the recording behind its first character: without the line break before it and
/// without the phone's prompt behind it, masked, whatever the letter case.
bool standsInRecording(const QString &console, const QString &recording, const QStringList &masks);
