#pragma once

#include <QString>

#include <sys/types.h>

/// What the system tells of a running process.
struct Memory
{
    double residentMb = 0;     ///< everything that is mapped and present
    double proportionalMb = 0; ///< shared pages counted by share
};

Memory memoryOf(pid_t process);
/// Processor time of all its threads so far, in seconds.
double processorSeconds(pid_t process);
/// How often its threads went to sleep by themselves so far: each is a wakeup before.
qint64 voluntarySwitches(pid_t process);
/// Whether it has this device open now.
bool holdsOpen(pid_t process, const QString &device);
