#pragma once

#include <QString>

/// Hands an address or the path of a document to the system, exactly as it is written: a report address would be
/// another one if a class of the toolkit encoded it anew. False when there is nothing to hand it to.
bool openWithSystem(const QString &address);
