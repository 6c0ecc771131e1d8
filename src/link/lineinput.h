#pragma once

#include <QSerialPort>

/// Takes from an open line what the system holds of its input and Qt has not seen yet; never waits. Where it cannot be
/// looked at, it is dropped unseen.
QByteArray takeInput(QSerialPort &line);
