#pragma once

#include <QString>

/// The program's own folder: the given one, else $PRELT_HOME, else the executable's folder if it holds a store, else
/// the user's data folder.
QString homeFolder(const QString &given = {});

/// Nobody named a folder: it is the one in the user's data folder.
bool isHomeByDefault(const QString &given);

/// The reference store in a folder.
QString configStore(const QString &home);

/// The user's folder for what the program keeps by itself: the exchange log, the window's layout.
QString stateFolder();

/// The user store of an earlier version beside it.
QString userStore(const QString &home);
