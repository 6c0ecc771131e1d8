#pragma once

#include "result.h"

#include <QSerialPort>

/// Why a device did not open, in words for a person: in use or not permitted, not there, or no serial port at all.
Trouble openError(const QString &device, QSerialPort::SerialPortError error);

/// The trouble with a path that is plainly no serial port: a directory or an ordinary file.
Trouble notAPort(const QString &path);
