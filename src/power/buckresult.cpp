#include "buckresult.h"

#include "catalogue.h"

#include <QRegularExpression>

#include <optional>

using namespace Qt::StringLiterals;

static constexpr auto kUnit = "mV"_L1;
static constexpr qsizetype kTargetCharacters = 5;

QString voltsOf(const QString &millivolts)
{
    static const QRegularExpression kNumber(u"^(-?)([0-9]+)(\\.[0-9]*)?\\z"_s);
    const QRegularExpressionMatch match = kNumber.match(millivolts);
    if (!match.hasMatch())
        return {};
    QString digits = match.captured(2).rightJustified(4, u'0');
    return match.captured(1) + digits.insert(digits.size() - 3, u'.');
}

namespace {

/// A value of the reply and where the reply goes on behind its unit.
struct Found
{
    QString volts;
    qsizetype end = 0;
};

/// What stands between a word and the unit behind it. A ":" or "=" after the word is not part of the value.
std::optional<Found> valueBehind(const QString &reply, QLatin1StringView word, qsizetype from)
{
    const qsizetype start = reply.indexOf(word, from);
    const qsizetype unit = start < 0 ? -1 : reply.indexOf(kUnit, start);
    if (unit < 0)
        return {};
    static const QRegularExpression kSeparator(u"^\\s*[:=]?\\s*"_s);
    const qsizetype value = start + word.size();
    const QString text = reply.sliced(value, unit - value).remove(kSeparator).trimmed();
    return Found{voltsOf(text), unit + kUnit.size()};
}

/// The shell's prompt is no part of what it says.
QString withoutPrompt(const QString &reply)
{
    const qsizetype prompt = reply.lastIndexOf(":-)"_L1);
    const qsizetype bracket = prompt < 0 ? -1 : reply.lastIndexOf(u'[', prompt);
    return bracket < 0 ? reply : reply.first(bracket);
}

bool namesAnother(const QString &reply, int buck)
{
    static const QRegularExpression kName(u"\\bbuck([0-9]+)\\b"_s);
    const QRegularExpressionMatch match = kName.match(reply);
    return match.hasMatch() && match.captured(1).toInt() != buck;
}

QString lettersFrom(const QString &reply, qsizetype start)
{
    QString letters;
    for (qsizetype place = start; place < reply.size() && letters.size() < kVerdictLetters; ++place)
        if (reply.at(place).isLetter())
            letters += reply.at(place);
    return letters;
}

BuckResult checkIn(const QString &reply, qsizetype word)
{
    const auto target = valueBehind(reply, "target"_L1, word);
    const auto measured = target ? valueBehind(reply, "measured"_L1, target->end) : std::nullopt;
    if (!measured || target->volts.isEmpty() || measured->volts.isEmpty())
        return {};
    return {BuckResult::Kind::Check, target->volts, measured->volts, lettersFrom(reply, measured->end)};
}

BuckResult voltageIn(const QString &reply)
{
    const qsizetype unit = reply.indexOf(kUnit);
    const qsizetype colon = unit < 0 ? -1 : reply.lastIndexOf(u':', unit);
    if (colon < 0)
        return {};
    const QString volts = voltsOf(reply.sliced(colon + 1, unit - colon - 1).trimmed());
    return volts.isEmpty() ? BuckResult() : BuckResult{BuckResult::Kind::Voltage, {}, volts, {}};
}

} // namespace

BuckResult buckResult(const QString &reply, int buck)
{
    const QString said = withoutPrompt(reply);
    if (namesAnother(said, buck))
        return {};
    const qsizetype target = said.indexOf("target"_L1);
    return target < 0 ? voltageIn(said) : checkIn(said, target);
}

QString resultLine(const BuckResult &result, int buck, Language language)
{
    switch (result.kind) {
    case BuckResult::Kind::Voltage:
        return u"   buck%1 voltage: %2 V"_s.arg(buck).arg(result.measured);
    case BuckResult::Kind::Check:
        return u"   buck%1: %2: %3 V - %4:  %5 V : %6"_s.arg(buck).arg(
            caption(u"Referência", language), result.target.left(kTargetCharacters), caption(u"Leitura", language),
            result.measured, result.verdict);
    case BuckResult::Kind::None:
        break;
    }
    return {};
}
