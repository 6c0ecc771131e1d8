#include "drift.h"

#include "numbertext.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

struct Shown
{
    WrittenNumber number;
    QStringView unit;
};

/// A missing reading ("Sem Medição*", "*") has no number before its first blank.
std::optional<Shown> shownValue(QStringView text)
{
    const qsizetype blank = text.indexOf(u' ');
    if (blank <= 0 || blank + 1 == text.size())
        return {};
    const auto number = writtenNumber(text.first(blank).toString().replace(u',', u'.'));
    if (!number)
        return {};
    return Shown{*number, text.sliced(blank + 1)};
}

/// How far a value lies outside of what another one with fewer decimals may have been before it was cut.
double beyond(double value, const WrittenNumber &coarse)
{
    const double end = coarse.value + std::copysign(std::pow(10, -coarse.decimals), coarse.value);
    const auto [low, high] = std::minmax(coarse.value, end);
    if (value < low)
        return value - low;
    return value > high ? value - high : 0;
}

double difference(const WrittenNumber &now, const WrittenNumber &before)
{
    // Zero is shown without decimals, however many are chosen.
    if (now.decimals == before.decimals || now.value == 0 || before.value == 0)
        return now.value - before.value;
    return now.decimals > before.decimals ? beyond(now.value, before) : -beyond(before.value, now);
}

} // namespace

std::optional<double> drift(const QString &reading, const QString &recorded)
{
    const auto before = shownValue(recorded);
    const auto now = before ? shownValue(reading) : before;
    if (!now || !before || now->unit != before->unit)
        return {};
    const double gap = difference(now->number, before->number);
    if (before->number.value == 0)
        return gap == 0 ? 0 : std::copysign(100, gap);
    return gap / std::abs(before->number.value) * 100;
}
