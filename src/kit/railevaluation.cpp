#include "railevaluation.h"

#include "drift.h"
#include "models.h"
#include "numbertext.h"
#include "railorder.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

static constexpr auto kNeverMeasured = "*"_L1;

static bool isNeverMeasured(const QString &model, const RailRow &row, const RailRules &rules)
{
    const QString orig = withoutBlanks(row.orig);
    const QString key = rules.firstCoreKey == RailRules::Key::Orig ? orig : withoutBlanks(row.malha);
    if (isNewestGeneration(model) && key == rules.firstCore)
        return true;
    return std::ranges::find(rules.never, orig) != rules.never.end() || (rules.skipsCamera && row.ci == "CAM"_L1);
}

static QString shownVolts(const QString &value, int decimals)
{
    const QString cut = value.left((value.startsWith(u'-') ? 3 : 2) + decimals);
    const QString digits = QString(cut).remove(u'0').remove(u'.');
    return digits.isEmpty() || digits == "-"_L1 ? u"0 V"_s : cut + " V"_L1;
}

static QString shownMilliamperes(const QString &value, int decimals)
{
    const qsizetype comma = value.indexOf(u',');
    const qsizetype kept = decimals == 0 ? comma : comma + 1 + decimals;
    return (comma < 0 ? value : value.left(kept)) + " mA"_L1;
}

static QString shown(const RailContext &context, const LabelledValue &value, const RailRules &rules)
{
    const QString missing = context.noReading + kNeverMeasured;
    switch (value.kind) {
    case LabelledValue::Kind::Volt:
        return shownVolts(value.value, context.voltDecimals);
    case LabelledValue::Kind::Milliampere:
        return shownMilliamperes(value.value, context.milliDecimals);
    case LabelledValue::Kind::TimedOut:
        return rules.timeoutText.isEmpty() ? missing : QString(rules.timeoutText);
    case LabelledValue::Kind::Celsius:
    case LabelledValue::Kind::Missing:
        break;
    }
    return missing;
}

static bool isMeasured(const LabelledValue &value)
{
    return value.kind == LabelledValue::Kind::Volt || value.kind == LabelledValue::Kind::Milliampere;
}

/// A time-out counts as a reading of nothing here: its deviation shows -100 %, so that it never looks good.
static void compare(EvaluatedRail &rail, const LabelledValue &value)
{
    RailRow &row = rail.row;
    if (row.refV.isEmpty())
        return;
    const bool isTimedOut = value.kind == LabelledValue::Kind::TimedOut;
    if (row.refV == "0"_L1 || !(isMeasured(value) || isTimedOut)) {
        row.porc = u"0 %"_s;
        return;
    }
    const QString reference = threeDecimals(row.refV);
    const auto deviation = deviationText(comparable(value, reference), reference);
    if (!deviation)
        return;
    row.porc = *deviation + " %"_L1;
    if (isMeasured(value))
        rail.deviation = leadingNumber(*deviation);
}

bool hasReference(const RailRow &row)
{
    return !row.refV.isEmpty() && row.refV != "0"_L1;
}

EvaluatedRail AvaliaLinhaPmu(const RailContext &context, const RailRow &row, const RailRules &rules)
{
    EvaluatedRail rail{row};
    rail.row.leitura.clear();
    rail.row.porc.clear();
    if (hasReference(row))
        rail.rule = context.rule;
    if (row.refT.isEmpty())
        return rail;
    if (isNeverMeasured(context.model, row, rules)) {
        rail.row.leitura = kNeverMeasured;
        rail.row.porc = row.refV.isEmpty() ? QString() : u"0 %"_s;
        return rail;
    }
    const QString label = BistLabel(row.refT);
    rail.output = label;
    rail.indexUnknown = label.isEmpty();
    const LabelledValue value = valueBehind(context.reply, label);
    rail.line = value.line;
    rail.row.leitura = shown(context, value, rules);
    compare(rail, value);
    const bool noMeasure = isMeasured(value) && !rail.deviation; // a nominal of zero: nothing to divide by
    if (hasReference(row) && !noMeasure)
        rail.verdict = judged(rail.deviation, context.rule);
    return rail;
}

QList<EvaluatedRail> sorted(QList<EvaluatedRail> rails, RailOrder order)
{
    std::ranges::stable_sort(rails, [order](const EvaluatedRail &left, const EvaluatedRail &right) {
        return precedes(left.row, right.row, order);
    });
    return rails;
}

static QString shownReference(const RailRow &row)
{
    return row.ref.isEmpty() ? row.refV : row.ref;
}

static Row gridRow(const EvaluatedRail &rail)
{
    const RailRow &row = rail.row;
    return {{{u"Orig"_s, row.orig},
             {u"Malha"_s, row.malha},
             {u"Ci"_s, row.ci},
             {u"Leitura"_s, row.leitura},
             {u"REF"_s, shownReference(row)},
             {u"PORC"_s, row.porc},
             {u"G1"_s, row.g[0]},
             {u"G2"_s, row.g[1]},
             {u"G3"_s, row.g[2]}},
            rail.deviation,
            rail.rule,
            rail.verdict,
            row.source,
            row.confidence,
            {drift(row.leitura, row.g[0]), drift(row.leitura, row.g[1]), drift(row.leitura, row.g[2])}};
}

Judgement judgementOf(const EvaluatedRail &rail, const QString &screen)
{
    const RailRow &row = rail.row;
    return {row.malha, row.leitura,  row.refV, row.source, rail.deviation,
            rail.rule, rail.verdict, screen,   rail.line,  rail.output};
}

QList<Judgement> judgementsOf(const QList<EvaluatedRail> &rails, const QString &screen)
{
    QList<Judgement> judgements;
    for (const EvaluatedRail &rail : rails)
        if (rail.verdict != Verdict::None)
            judgements.append(judgementOf(rail, screen));
    return judgements;
}

void addRails(Panel &panel, const QList<EvaluatedRail> &rails, bool cut)
{
    for (const EvaluatedRail &rail : rails) {
        panel.rows.append(gridRow(rail));
        panel.verdict = worst(panel.verdict, rail.verdict);
    }
    panel.judgements += judgementsOf(rails, panel.screen);
    neverGoodWhenCut(panel, cut);
}
