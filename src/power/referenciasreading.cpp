#include "referenciasreading.h"

#include "catalogue.h"
#include "railevaluation.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// An output that is off says nothing of its nominal.
constexpr double kLeastVolts = 0.05;
// What the rail screens tolerate on either side: boards that differ more would fail each other.
constexpr double kMostSpread = 10;

struct Boards
{
    int count = 0;
    double median = 0;
    double spread = 0; ///< from the lowest to the highest, in per cent of the median

    bool agree() const { return count > 0 && spread < kMostSpread; }
    QString refV() const { return agree() ? QString::number(median, 'f', 3) : QString(); }
    bool change(const RailRow &row) const { return refV() != row.refV; }
};

bool wantsReference(const RailRow &row)
{
    return !row.refT.isEmpty() && !row.orig.startsWith("mA"_L1) && (row.refV.isEmpty() || row.isTaken);
}

bool isOf(const GoodReading &reading, const RailRow &row)
{
    return reading.tipo == row.tipo && reading.orig.compare(row.orig, Qt::CaseInsensitive) == 0;
}

Boards boardsOf(const RailRow &row, const QList<GoodReading> &readings)
{
    QList<double> volts;
    for (const GoodReading &reading : readings) {
        if (isOf(reading, row))
            volts.append(reading.volts);
    }
    if (volts.isEmpty())
        return {};
    std::ranges::sort(volts);
    const qsizetype middle = volts.size() / 2;
    const double median = volts.size() % 2 == 1 ? volts.at(middle) : (volts.at(middle - 1) + volts.at(middle)) / 2;
    return {static_cast<int>(volts.size()), median, 100 * (volts.constLast() - volts.constFirst()) / median};
}

QString spreadText(const Boards &boards)
{
    return QString::number(boards.spread, 'f', 1) + " %"_L1;
}

QString voltText(double volts)
{
    return QString::number(volts, 'f', 3) + " V"_L1;
}

std::optional<double> voltsOf(const LabelledReply &reply, const RailRow &row)
{
    const LabelledValue value = valueBehind(reply, BistLabel(row.refT));
    const double volts = value.kind == LabelledValue::Kind::Volt ? value.value.toDouble() : 0;
    return volts < kLeastVolts ? std::nullopt : std::optional(volts);
}

QList<GoodReading> readingsOf(const LabelledReply &reply, const QList<RailRow> &rows)
{
    QList<GoodReading> readings;
    for (const RailRow &row : rows) {
        if (const auto volts = voltsOf(reply, row); volts && wantsReference(row))
            readings.append({row.tipo, row.orig, {}, *volts});
    }
    return readings;
}

int faultsIn(const ReferenciasInput &input)
{
    const RailContext context{.reply = input.reply, .model = input.model, .noReading = {}};
    QSet<QString> outputs;
    for (const RailRow &row : input.rows) {
        if (!row.isTaken && AvaliaLinhaPmu(context, row, {}).verdict == Verdict::Fail)
            outputs.insert(row.orig.toLower());
    }
    return static_cast<int>(outputs.size());
}

QString outcome(const RailRow &row, const Boards &boards, Language language)
{
    if (boards.count == 0)
        return {};
    if (!boards.agree())
        return caption(u"varia demais", language);
    return boards.change(row) ? voltText(boards.median) : QString();
}

/// What a reference of these boards says of itself, before the date.
QString sourceOf(const Boards &boards)
{
    return u"recorded here, n = %1, Δ %2, "_s.arg(boards.count).arg(spreadText(boards));
}

void addRow(ReferenciasReading &reading, const RailRow &rail, const ReferenciasInput &input)
{
    const auto here = std::ranges::find_if(reading.here, [&](const GoodReading &of) { return isOf(of, rail); });
    const Boards boards = boardsOf(rail, input.earlier + reading.here);
    const bool isRead = here != reading.here.end();
    reading.outputs += isRead ? 1 : 0;
    reading.changes += boards.change(rail) ? 1 : 0;
    const bool isAny = boards.count > 0;
    reading.panel.rows.append(Row{.cells = {{u"Orig"_s, rail.orig},
                                            {u"Malha"_s, rail.malha},
                                            {u"Ci"_s, rail.ci},
                                            {u"Leitura"_s, isRead ? voltText(here->volts) : QString()},
                                            {u"Placas"_s, QString::number(boards.count)},
                                            {u"Mediana"_s, isAny ? voltText(boards.median) : QString()},
                                            {u"Dispersao"_s, isAny ? spreadText(boards) : QString()},
                                            {u"REF"_s, rail.ref},
                                            {u"Nova"_s, outcome(rail, boards, input.language)}},
                                  .source = rail.source,
                                  .confidence = rail.confidence});
}

} // namespace

ReferenciasReading readReferencias(const ReferenciasInput &input)
{
    ReferenciasReading reading;
    if (!input.reply.isEmpty()) {
        reading.here = readingsOf(input.reply, input.rows);
        reading.faults = faultsIn(input);
    }
    QSet<QString> shown; // an output stands in more than one kind
    for (const RailRow &row : input.rows) {
        const QString name = row.orig.toLower() + u'\n' + row.malha;
        if (!wantsReference(row) || shown.contains(name))
            continue;
        shown.insert(name);
        addRow(reading, row, input);
    }
    reading.panel.screen = u"Referencias"_s;
    reading.panel.title = caption(u"Placas de referência", input.language) + " - Tavimo Prelt - "_L1 + input.model;
    return reading;
}

QList<TakenReference> referencesFrom(const QList<RailRow> &rows, const QList<GoodReading> &readings, QDate date)
{
    QList<TakenReference> references;
    for (const RailRow &row : rows) {
        if (!wantsReference(row))
            continue;
        const Boards boards = boardsOf(row, readings);
        const QString source = sourceOf(boards);
        const bool isStale = !row.refV.isEmpty() && !row.source.startsWith(source);
        if (boards.change(row) || isStale)
            references.append({row.id, row.tipo, row.orig, boards.refV(), source + date.toString(Qt::ISODate)});
    }
    return references;
}
