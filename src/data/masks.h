#pragma once

#include "store.h"

#include <QStringList>

/// The texts that differ from phone to phone, as they are stored, in descending order: of two of which one begins the
/// other the longer comes first.
Result<QStringList> maskTexts(const Store &store);

Result<Done> addMask(Store &store, const QString &text);
