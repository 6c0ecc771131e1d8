#pragma once

#include "language.h"
#include "result.h"

#include <QString>

/// A document that comes with the program: looked for in the program's own folder, then where the program's data is
/// installed. Trouble: GUIDE_MISSING.
Result<QString> guide(const QString &home, const QString &fileName);

/// The reference of the commands in a language.
QString commandReference(Language language);
