#pragma once

#include <QString>

/// Makes a folder, with those above it that are missing, for its owner alone. In a folder that a group may write the
/// group may use it too: who opened that folder wanted to share it.
bool makeOwnFolder(const QString &path);

/// Makes a file readable by its owner alone, or by the group as well where `folder`, in which it is to be, is shared.
void keepToOwner(const QString &file, const QString &folder);

/// Takes from all but the owner what an earlier version left readable in a folder; done once, as what is opened later
/// is opened on purpose. Gives the number of files and folders that were open.
int closeToOthers(const QString &folder);
