#include "railreading.h"

#include "catalogue.h"
#include "models.h"
#include "reportrows.h"

#include <algorithm>

using namespace Qt::StringLiterals;

QString generationNote(const QString &model, Language language)
{
    return caption(isNewestGeneration(model) ? u"VAR4" : u"VAR3", language);
}

static EvaluatedRail unread(RailRow row)
{
    row.leitura.clear();
    row.porc.clear();
    return {row};
}

QList<EvaluatedRail> evaluatedRails(const RailScreenTraits &traits, const RailInput &input, const QList<RailRow> &rows)
{
    const RailContext context{
        input.reply, input.model, input.voltDecimals, input.milliDecimals, caption(u"Sem Medição", input.language),
        input.rule};
    QList<EvaluatedRail> rails;
    for (const RailRow &row : rows)
        rails.append(input.reply.isEmpty() ? unread(row) : AvaliaLinhaPmu(context, row, traits.rules));
    return sorted(rails, input.order);
}

/// A hole in the numbering of the reading indices is a mistake in the reference data: the technician is told.
static QList<Notice> unknownIndices(const QList<EvaluatedRail> &rails)
{
    QList<Notice> notices;
    for (const EvaluatedRail &rail : rails) {
        const Notice notice{{}, {u"Tavimo Prelt"_s, rail.row.refT + "NOT "_L1}};
        if (rail.indexUnknown && !notices.contains(notice))
            notices.append(notice);
    }
    return notices;
}

QList<RailRow> rowsOf(const QList<EvaluatedRail> &rails)
{
    QList<RailRow> rows;
    std::ranges::transform(rails, std::back_inserter(rows), &EvaluatedRail::row);
    return rows;
}

RailReading railReading(const RailScreenTraits &traits, const RailInput &input, const QList<EvaluatedRail> &rails)
{
    RailReading reading;
    reading.panel.screen = traits.name;
    reading.panel.title = traits.title + u" - Tavimo Prelt - "_s + input.model;
    reading.panel.fields[u"lbVar"_s].text = generationNote(input.model, input.language);
    reading.panel.messages = unknownIndices(rails);
    reading.rows = rowsOf(rails);
    reading.judgements = judgementsOf(rails, traits.name);
    return reading;
}

RailReading readRails(const RailScreenTraits &traits, const RailInput &input, const QList<RailRow> &rows)
{
    const QList<EvaluatedRail> rails = evaluatedRails(traits, input, rows);
    QList<EvaluatedRail> shown;
    std::ranges::copy_if(rails, std::back_inserter(shown), [&input](const EvaluatedRail &rail) {
        return rail.row.ci.contains(input.chip, Qt::CaseInsensitive);
    });
    RailReading reading = railReading(traits, input, rails);
    addRails(reading.panel, shown, input.cut);
    if (!traits.report.isEmpty() && !input.reply.isEmpty())
        reading.panel.report = ReportSheet{ReportPage::Index, traits.report, reportRows(reading.panel)};
    reading.shown = rowsOf(shown);
    return reading;
}
