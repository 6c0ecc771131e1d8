#pragma once

#include <QString>

/// An address that is asked without anybody's doing is asked only where somebody set it: a store may come from
/// anywhere.
bool isAcceptedHere(const QString &address);

void acceptHere(const QString &address);
