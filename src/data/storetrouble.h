#pragma once

#include "result.h"

#include <QSqlError>

/// What keeps a store from being used, by key, with the path as a person reads it and the reason.
Trouble storeTrouble(const QString &key, const QString &path, const QString &reason);

/// The same for what the engine reported.
Trouble storeTrouble(const QSqlError &error, const QString &path);
