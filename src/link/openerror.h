#pragma once

#include "portholder.h"
#include "portpermission.h"
#include "result.h"

#include <QSerialPort>

/// What can be learned about a device that did not open.
struct OpenFacts
{
    QString device;                        ///< as the person named it
    QString canonicalDevice = {};          ///< its one true path
    std::optional<DeviceGroup> group = {}; ///< that the user lacks
    std::optional<PortHolder> holder = {};
    QString orphanedLock = {}; ///< lock file of a program that is gone
    QStringList running = {};  ///< names of the programs that run
};

/// The trouble with a device that is there but was not given to us, and what may mend it.
Trouble refusedTrouble(const OpenFacts &facts);
/// The trouble with a device, or a port number, that is not there.
Trouble missingTrouble(const OpenFacts &facts);

/// Why a device did not open, in words for a person: in use or not permitted, not there, or no serial port at all.
Trouble openError(const QString &device, QSerialPort::SerialPortError error);

/// The trouble with a path or port number behind which there is nothing.
Trouble noSuchPort(const QString &port);

/// The trouble with a path that is plainly no serial port: a directory or an ordinary file.
Trouble notAPort(const QString &path);
