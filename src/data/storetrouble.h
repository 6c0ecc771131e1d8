#pragma once

#include "result.h"

#include <QSqlError>

/// What keeps a store from being used, by key, with the path as a person reads it and the reason.
Trouble storeTrouble(const QString &key, const QString &path, const QString &reason);

/// The same for what the engine reported.
Trouble storeTrouble(const QSqlError &error, const QString &path);

/// The same trouble, told of another file: of the one that a person knows, where the work was done on a copy.
Trouble toldOf(const QString &path, const Trouble &trouble);
