#include "railreading.h"

#include "catalogue.h"
#include "models.h"

#include <algorithm>

using namespace Qt::StringLiterals;

/// Some outputs show no value in diagnostics mode; which ones depends on the generation.
static QString note(const QString &model, Language language)
{
    return caption(isNewestGeneration(model) ? u"VAR4" : u"VAR3", language);
}

static EvaluatedRail unread(RailRow row)
{
    row.leitura.clear();
    row.porc.clear();
    return {row};
}

static QList<EvaluatedRail> evaluated(const RailScreenTraits &traits, const RailInput &input,
                                      const QList<RailRow> &rows)
{
    const RailContext context{input.reply, input.model, input.voltDecimals, input.milliDecimals,
                              caption(u"Sem Medição", input.language)};
    QList<EvaluatedRail> rails;
    for (const RailRow &row : rows)
        rails.append(input.reply.isEmpty() ? unread(row) : AvaliaLinhaPmu(context, row, traits.rules));
    return rails;
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

RailReading readRails(const RailScreenTraits &traits, const RailInput &input, const QList<RailRow> &rows)
{
    const QList<EvaluatedRail> rails = sorted(evaluated(traits, input, rows), input.order);
    RailReading reading;
    reading.panel.screen = traits.name;
    reading.panel.title = traits.title + u" - Tavimo Prelt - "_s + input.model;
    reading.panel.fields[u"lbVar"_s].text = note(input.model, input.language);
    reading.panel.messages = unknownIndices(rails);
    addRails(reading.panel, rails, input.cut);
    std::ranges::transform(rails, std::back_inserter(reading.rows), &EvaluatedRail::row);
    return reading;
}
