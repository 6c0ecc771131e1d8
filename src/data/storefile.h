#pragma once

#include "result.h"

#include <QString>

#include <optional>

/// What keeps a path from being a store at all: things that the engine would only call "unable to open".
std::optional<Trouble> troubleWithFile(const QString &path);

/// What is wrong with a path at which there is nothing: a link whose file is gone, a name that is no UTF-8.
std::optional<Trouble> troubleWithPath(const QString &path);

/// Whether the file itself may be changed.
enum class FileMode
{
    ReadOnly,
    Writable
};

/// A path as the engine's address: the one way to say that a missing file must not be made.
QString storeAddress(const QString &path, FileMode mode);
