#pragma once

#include "reportdocument.h"

/// The pages of the report service.
enum class ReportPage
{
    Acorn,
    Chestnut,
    Index
};

/// What the service is told of a row: the OK mark is shown or not, or the row is not judged.
enum class RowMark
{
    No,
    Yes,
    NotJudged
};

/// One row of a report: its texts as shown on the screen, and what is drawn of them on paper.
struct ReportRow
{
    ReportFinding finding;
    RowMark mark = RowMark::NotJudged;

    friend bool operator==(const ReportRow &, const ReportRow &) = default;
};

/// What a screen has to report.
struct ReportSheet
{
    ReportPage page = ReportPage::Index;
    QString type = {}; ///< which screen fills the page that several share
    QList<ReportRow> rows = {};

    friend bool operator==(const ReportSheet &, const ReportSheet &) = default;
};
