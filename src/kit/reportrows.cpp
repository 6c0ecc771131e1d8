#include "reportrows.h"

#include "judgedfinding.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const Judgement *judgementOf(const Panel &panel, const QString &what)
{
    const auto found = std::ranges::find(panel.judgements, what, &Judgement::what);
    return found == panel.judgements.end() ? nullptr : &*found;
}

/// What only paper shows, beside the texts.
void judge(ReportFinding &finding, const Judgement &judgement)
{
    finding.source = judgement.source;
    finding.line = judgement.line;
    finding.deviation = judgement.deviation;
    finding.tolerance = drawnTolerance(judgement.rule);
    finding.verdict = findingVerdict(judgement);
}

RowMark markOf(Verdict verdict)
{
    static constexpr RowMark kMarks[] = {RowMark::NotJudged, RowMark::Yes, RowMark::NotJudged, RowMark::No};
    return kMarks[static_cast<std::size_t>(verdict)];
}

ReportRow gridRow(const Panel &panel, const Row &row)
{
    ReportRow report{{.what = row.cell(u"Malha"),
                      .reading = row.cell(u"Leitura"),
                      .reference = row.cell(u"REF"),
                      .deviationText = row.cell(u"PORC")},
                     markOf(row.verdict)};
    const Judgement *const judgement = row.verdict == Verdict::None ? nullptr : judgementOf(panel, report.finding.what);
    if (judgement)
        judge(report.finding, *judgement);
    return report;
}

QString textOf(const Panel &panel, const QString &control)
{
    return panel.fields.value(control).text.value_or(QString());
}

QString readingOf(const ChipTable &table, const Panel &panel, const ChipRow &row)
{
    const auto isItsCurrent = [&row](const ChipRow &other) {
        return other.unit == ChipUnit::Milliampere && other.what == row.what;
    };
    const QString volts = textOf(panel, row.control);
    const auto current = std::ranges::find_if(table.rows, isItsCurrent);
    const bool isTold = table.page == ReportPage::Chestnut && current != table.rows.end();
    return isTold ? u"%1   (%2)"_s.arg(volts, textOf(panel, current->control)) : volts;
}

ReportRow chipRow(const ChipTable &table, const Panel &panel, const ChipRow &row)
{
    const bool isPlain = row.report.nominal.isEmpty();
    ReportRow report{{.what = row.what, .reading = readingOf(table, panel, row), .reference = u"-"_s},
                     row.report.plain};
    report.finding.deviationText = isPlain ? u"-"_s : textOf(panel, row.deviation);
    if (const Judgement *const judgement = judgementOf(panel, row.what))
        judge(report.finding, *judgement);
    if (isPlain)
        return report;
    report.finding.reference = row.report.nominal;
    report.mark = isShown(panel, element(u"OK", row.mark)) ? RowMark::Yes : RowMark::No;
    return report;
}

} // namespace

QList<ReportRow> reportRows(const Panel &panel)
{
    QList<ReportRow> rows;
    for (const Row &row : panel.rows)
        rows.append(gridRow(panel, row));
    return rows;
}

QList<ReportRow> reportRows(const ChipTable &table, const Panel &panel)
{
    QList<const ChipRow *> told;
    for (const ChipRow &row : table.rows)
        if (row.report.row > 0)
            told.append(&row);
    std::ranges::sort(told, {}, [](const ChipRow *row) { return row->report.row; });
    QList<ReportRow> rows;
    for (const ChipRow *const row : told)
        rows.append(chipRow(table, panel, *row));
    return rows;
}
