#pragma once

#include <QString>

/// Closes the program's own folders, where an earlier version left them readable, to all but their owner, and says so
/// in the log. A folder that the owner named is the owner's affair.
void keepFoldersToOwner(const QString &givenHome);
