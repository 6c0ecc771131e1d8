#pragma once

#include "result.h"

#include <QString>

/// Gives a finished file its name, on the same disk. It never overwrites: STORE_EXISTS when the name is taken. The old
/// name may stay; whoever made the file removes it.
Result<Done> moveIntoPlace(const QString &finished, const QString &path);
