#pragma once

#include "locknote.h"

#include <QStringList>

/// The program that holds a device, when it can be known: named by a lock file or seen with the device open.
std::optional<PortHolder> holderOf(const QString &canonicalDevice);

/// A lock file of another program that has ended and left it behind; empty when there is none.
QString orphanedLockOf(const QString &canonicalDevice);

/// The names of the programs that run, as far as the system tells.
QStringList runningPrograms();
