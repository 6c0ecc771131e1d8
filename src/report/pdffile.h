#pragma once

#include "result.h"

#include <QString>

/// Writes a text in Markdown as an A4 document with page numbers, whole or not at all: every chapter ("# …") begins a
/// page, and "{{map MODEL}}" is the bus map of a model. Trouble: FILE_NOT_WRITTEN.
Result<Done> writePdf(const QString &markdown, const QString &title, const QString &path);
