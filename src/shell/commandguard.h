#pragma once

#include <QString>

/// Whether a command line leaves the phone as it is. The phone's own configuration may be read and not written.
bool leavesPhoneAsItIs(const QString &command);
