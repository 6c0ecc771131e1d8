#pragma once

#include "result.h"

#include <QByteArray>

/// A command as it goes over the line, closed by its carriage return. The trouble where it is no single line: a control
/// in it would end it or begin another one, and what is outside Latin-1 cannot be carried.
Result<QByteArray> lineBytes(const QString &command);
