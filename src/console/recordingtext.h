#pragma once

#include <QString>

/// A recording as an editor shows it: one line end for all, and everything else visible.
QString editable(const QString &recording);

/// The recording that a person made of one in the editor: lines that were left alone are what they were to the byte,
/// the others end CR LF.
QString edited(const QString &recording, const QString &inEditor);
