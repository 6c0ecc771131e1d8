#pragma once

#include "result.h"

#include <QString>

/// Writes a text in Markdown as an A4 document with page numbers, whole or not at all. Trouble: PDF_NOT_WRITTEN.
Result<Done> writePdf(const QString &markdown, const QString &title, const QString &path);
