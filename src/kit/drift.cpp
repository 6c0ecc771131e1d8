#include "drift.h"

#include <QLocale>
#include <QStringView>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

struct Shown
{
    double value = 0;
    int decimals = 0;
    QStringView unit;
};

/// A missing reading ("Sem Medição*", "*") has no number before its first blank.
std::optional<Shown> shownValue(QStringView text)
{
    const qsizetype blank = text.indexOf(u' ');
    if (blank <= 0 || blank + 1 == text.size())
        return {};
    const QString number = text.first(blank).toString().replace(u',', u'.');
    const qsizetype point = number.indexOf(u'.');
    bool isNumber = false;
    const double value = QLocale::c().toDouble(number, &isNumber);
    if (!isNumber)
        return {};
    return Shown{value, point < 0 ? 0 : static_cast<int>(number.size() - point - 1), text.sliced(blank + 1)};
}

/// How far a value lies outside of what another one with fewer decimals may have been before it was cut.
double beyond(double value, const Shown &coarse)
{
    const double end = coarse.value + std::copysign(std::pow(10, -coarse.decimals), coarse.value);
    const auto [low, high] = std::minmax(coarse.value, end);
    if (value < low)
        return value - low;
    return value > high ? value - high : 0;
}

double difference(const Shown &now, const Shown &before)
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
    const double gap = difference(*now, *before);
    if (before->value == 0)
        return gap == 0 ? 0 : std::copysign(100, gap);
    return gap / std::abs(before->value) * 100;
}
