#pragma once

#include "reportsheet.h"

/// What surrounds the rows.
struct ReportHead
{
    QString date;
    Language language = Language::Portuguese;
    QString model;
    QString name; ///< of the technician or the company; may be empty
};

/// The address that gets the report from the service: exactly this text must be opened. Only blanks are encoded, so
/// an "&" in a name splits the query; the service has to tolerate that. Without a host it begins with the page.
QString reportAddress(const QString &host, const ReportSheet &sheet, const ReportHead &head);
