#include "chipreading.h"

#include "catalogue.h"
#include "chipvalue.h"
#include "reportrows.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kSource = u"constant of the screen";

void tint(Panel &panel, const ChipRow &row, Tinted which, Colour colour)
{
    if (which == Tinted::Value || which == Tinted::Both)
        panel.fields[row.control].back = colour;
    if (which == Tinted::Deviation || which == Tinted::Both)
        panel.fields[row.deviation].back = colour;
}

void tint(Panel &panel, const ChipRow &row, const ChipValue &value)
{
    const ChipManner &manner = row.manner;
    switch (value.verdict) {
    case Verdict::Pass:
        return tint(panel, row, manner.pass, Colour::Pass);
    case Verdict::Fail:
        return tint(panel, row, manner.fault, Colour::Fault);
    case Verdict::Incomplete:
        return tint(panel, row, manner.gap, Colour::Fault);
    case Verdict::None:
        break;
    }
}

void show(Panel &panel, const ChipRow &row, const ChipValue &value, Language language)
{
    panel.fields[row.control].text = shownText(row, value, language);
    tint(panel, row, value);
    const bool isFault = value.verdict == Verdict::Fail;
    if (!row.warning.isEmpty())
        panel.fields[row.warning].visible = isFault;
    if (row.manner.speaks == Speaks::AtFault && !isFault)
        return;
    if (row.manner.speaks == Speaks::Always && !row.deviation.isEmpty())
        panel.fields[row.deviation].text = value.deviationText;
    if (row.mark >= 0)
        setMark(panel, row.mark, value.isRead ? worst(value.verdict, Verdict::Pass) : Verdict::Incomplete, language);
}

/// Voltage and current of one net are two things.
QString nameOf(const ChipRow &row)
{
    return row.unit == ChipUnit::Milliampere ? row.what + " (mA)"_L1 : QString(row.what);
}

/// A current that is only shown stands beside the voltage of its net.
bool standsBeside(Panel &panel, const ChipRow &row, const QString &reading)
{
    if (row.unit != ChipUnit::Milliampere || !row.reference.isEmpty())
        return false;
    const auto found =
        std::ranges::find_if(panel.facts, [&row](const Row &fact) { return fact.cell(u"Malha") == QString(row.what); });
    if (found != panel.facts.end())
        found->cells.append({u"LEITURA_A"_s, reading});
    return found != panel.facts.end();
}

std::optional<Rule> ruleOf(const ChipRow &row)
{
    return row.reference.isEmpty() ? std::nullopt : std::optional(row.rule);
}

Row factOf(const ChipRow &row, const ChipValue &value, const QString &reading)
{
    return {{{u"Malha"_s, nameOf(row)},
             {u"Leitura"_s, reading},
             {u"REF"_s, shownReference(row)},
             {u"PORC"_s, value.deviationText}},
            value.deviation,
            ruleOf(row),
            value.verdict};
}

void tell(Panel &panel, const ChipRow &row, const ChipValue &value)
{
    const QString reading = *panel.fields[row.control].text;
    const std::optional<Rule> rule = ruleOf(row);
    if (!standsBeside(panel, row, reading))
        panel.facts.append(factOf(row, value, reading));
    panel.verdict = worst(panel.verdict, value.verdict);
    if (value.verdict == Verdict::None)
        return;
    panel.judgements.append({nameOf(row), reading, row.reference, rule ? kSource.toString() : QString(),
                             value.deviation, rule, value.verdict, panel.screen, value.value.line, row.label});
}

void clear(Panel &panel, const ChipTable &table)
{
    for (const ChipRow &row : table.rows) {
        panel.fields[row.control] = {.text = QString(), .back = Colour::Neutral};
        if (!row.deviation.isEmpty())
            panel.fields[row.deviation] = {.text = QString(), .back = Colour::Neutral};
        if (!row.warning.isEmpty())
            panel.fields[row.warning].visible = false;
    }
    for (int mark = 0; mark < table.marks; ++mark)
        for (const auto &picture : {u"OK"_s, u"NO"_s})
            panel.fields[element(picture, mark)].visible = false;
}

void showDesignator(Panel &panel, const ChipTable &table, const QString &model)
{
    const auto found = std::ranges::find(table.designators, model, &Designator::model);
    if (found != table.designators.end())
        panel.fields[u"lbUC"_s].text = found->name;
}

} // namespace

QString element(QStringView array, int index)
{
    return u"%1(%2)"_s.arg(array).arg(index);
}

void setMark(Panel &panel, int mark, Verdict verdict, Language language)
{
    const bool isGood = verdict == Verdict::Pass;
    const QString bad = caption(verdict == Verdict::Incomplete ? u"Não medido" : u"Falha", language);
    panel.fields[element(u"OK", mark)] = {.text = u"OK"_s, .visible = isGood};
    panel.fields[element(u"NO", mark)] = {.text = bad, .visible = !isGood};
}

bool isShown(const Panel &panel, const QString &control)
{
    return panel.fields.value(control).visible.value_or(false);
}

Panel readChip(const ChipTable &table, const ChipInput &input)
{
    Panel panel;
    panel.screen = table.screen;
    panel.fields[u"lb"_s].text = table.chip;
    clear(panel, table);
    showDesignator(panel, table, input.model);
    if (input.reply.isEmpty())
        return panel;
    const LabelledReply reply(input.reply);
    for (const ChipRow &row : table.rows) {
        const ChipValue value = chipValue(row, reply);
        show(panel, row, value, input.language);
        tell(panel, row, value);
    }
    neverGoodWhenCut(panel, input.cut);
    if (table.page)
        panel.report = ReportSheet{*table.page, {}, reportRows(table, panel)};
    return panel;
}
