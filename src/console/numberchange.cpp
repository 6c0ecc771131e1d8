#include "numberchange.h"

#include "numbertext.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// A number with what is written on to it: "37.5C", "80%".
struct Number
{
    WrittenNumber digits;
    QStringView tail;
};

std::optional<Number> numberOf(QStringView word)
{
    const auto isPart = [](QChar c) { return (c >= u'0' && c <= u'9') || c == u'.' || c == u'-' || c == u'+'; };
    const qsizetype length = std::ranges::find_if_not(word, isPart) - word.begin();
    const auto digits = writtenNumber(word.first(length));
    return digits ? std::optional(Number{*digits, word.sliced(length)}) : std::nullopt;
}

bool isUnit(QStringView word)
{
    return !word.isEmpty() && word.size() <= 4 && std::ranges::all_of(word, [](QChar c) { return c.isLetter(); });
}

QString signedText(double number, int decimals)
{
    const QString text = QString::number(number, 'f', decimals);
    return text.startsWith(u'-') ? text : u'+' + text;
}

NumberChange changeOf(const WrittenNumber &live, const WrittenNumber &recorded, QStringView tail, QStringView unit)
{
    const double apart = live.value - recorded.value;
    NumberChange change{signedText(apart, std::max(live.decimals, recorded.decimals)), {}};
    change.text += tail;
    if (isUnit(unit))
        (change.text += u' ') += unit;
    if (recorded.value == 0)
        return change;
    change.share = 100 * apart / std::abs(recorded.value);
    const double cut = std::trunc(*change.share * 10) / 10; // not rounded, as every deviation of the program
    change.text += " ("_L1 + signedText(cut, 1) + " %)"_L1;
    return change;
}

} // namespace

QList<NumberChange> numberChanges(const QString &live, const QString &recorded)
{
    const auto now = QStringView(live).split(u' ', Qt::SkipEmptyParts);
    const auto then = QStringView(recorded).split(u' ', Qt::SkipEmptyParts);
    if (now.size() != then.size())
        return {};
    QList<NumberChange> changes;
    for (qsizetype i = 0; i < now.size(); ++i) {
        if (now[i].compare(then[i], Qt::CaseInsensitive) == 0)
            continue;
        const auto one = numberOf(now[i]);
        const auto other = numberOf(then[i]);
        if (!one || !other || one->tail != other->tail)
            return {};
        changes.append(changeOf(one->digits, other->digits, one->tail, now.value(i + 1)));
    }
    return changes;
}
