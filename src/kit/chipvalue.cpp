#include "chipvalue.h"

#include "catalogue.h"
#include "numbertext.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct UnitRow
{
    LabelledValue::Kind kind;
    QStringView suffix;
};

const UnitRow &unitRow(ChipUnit unit)
{
    static constexpr std::array<UnitRow, 3> kUnits = {{{LabelledValue::Kind::Volt, u" V"},
                                                       {LabelledValue::Kind::Milliampere, u" mA"},
                                                       {LabelledValue::Kind::Celsius, u" º"}}};
    return kUnits.at(static_cast<std::size_t>(unit));
}

QString suffix(ChipUnit unit)
{
    return unitRow(unit).suffix.toString();
}

/// Where a rail without a reference has a mark it is expected to be read, no more.
Verdict verdictOf(const ChipRow &row, const ChipValue &value)
{
    if (!row.reference.isEmpty())
        return judged(value.deviation, row.rule);
    return row.mark >= 0 && !value.isRead ? Verdict::Incomplete : Verdict::None;
}

} // namespace

ChipValue chipValue(const ChipRow &row, const LabelledReply &reply)
{
    ChipValue value{valueBehind(reply, row.label)};
    value.isRead = value.value.kind == unitRow(row.unit).kind;
    if (value.isRead && !row.reference.isEmpty()) {
        const auto text = deviationText(comparable(value.value, row.reference), row.reference);
        value.deviationText = text ? *text + " %"_L1 : QString();
        value.deviation = text ? std::optional(leadingNumber(*text)) : std::nullopt;
    }
    value.verdict = verdictOf(row, value);
    return value;
}

QString shownText(const ChipRow &row, const ChipValue &value, Language language)
{
    if (!value.isRead && row.manner.gapText == GapText::NoReading)
        return caption(u"Sem Medição", language);
    const QString number = value.isRead ? value.value.value : u"-"_s;
    return (row.unit == ChipUnit::Celsius ? oneDecimalText(number) : number) + suffix(row.unit);
}

QString shownReference(const ChipRow &row)
{
    if (row.reference.isEmpty())
        return {};
    const QString nominal = row.reference + suffix(row.unit);
    if (row.rule == Rule::ceiling())
        return u"< "_s + nominal;
    if (row.rule.lowest && !row.rule.highest) // "4.045 V" would not tell why 4.300 V is a fault
        return u"%1 %2%3 %"_s.arg(nominal, *row.rule.lowest > 0 ? u"+"_s : QString()).arg(*row.rule.lowest);
    return nominal;
}
