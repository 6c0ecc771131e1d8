#pragma once

#include <QSerialPort>

/// Whether the other side of an open line is gone for good. False also where the system does not tell.
bool hasHungUp(const QSerialPort &line);
