#pragma once

#include "reportdocument.h"
#include "result.h"

/// Writes a report as an A4 document with selectable text and page numbers, whole or not at all. Texts are shown as
/// they are, whatever they hold. Only values are touched, so it may run in a worker; a QGuiApplication must be there.
/// Trouble: FILE_NOT_WRITTEN.
Result<Done> writeReport(const ReportDocument &report, const QString &path);

/// Why a report goes without the shop's logo: LOGO_NOT_READ. Nothing when it is there, or when there is to be none.
std::optional<Notice> logoTrouble(const QString &file);
