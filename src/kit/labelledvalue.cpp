#include "labelledvalue.h"

#include "numbertext.h"

#include <algorithm>

using namespace Qt::StringLiterals;

/// Labels further back than this are not found: the phone never prints so much in one reply.
static constexpr qsizetype kLastPosition = 32767;

/// A flood without line ends is not copied for each label.
static constexpr qsizetype kLongestLine = 4096;

static QString lineAt(const QString &reply, qsizetype position)
{
    const QStringView rest = QStringView(reply).sliced(position);
    const QStringView line = rest.first(std::min(rest.size(), kLongestLine));
    const qsizetype end = line.indexOf(u'\n');
    return (end < 0 ? line : line.first(end)).trimmed().toString();
}

/// Digits, one sign before and one point between or after them.
static bool isNumber(QStringView text)
{
    if (text.startsWith(u'-'))
        text = text.sliced(1);
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    return !text.isEmpty() && isDigit(text.front()) && text.count(u'.') <= 1 &&
           std::ranges::all_of(text, [&](QChar c) { return c == u'.' || isDigit(c); });
}

/// No rail of a phone comes near a thousand volts or amperes: so many digits are noise, on whichever side of a limit.
static constexpr qsizetype kMostWholeDigits = 6;

static bool isPlausible(QStringView text)
{
    const qsizetype point = text.indexOf(u'.');
    const qsizetype sign = text.startsWith(u'-') ? 1 : 0;
    return isNumber(text) && (point < 0 ? text.size() : point) - sign <= kMostWholeDigits;
}

/// The shell prints decimals always; a token without a point is whole millivolts all the same.
static QString volts(const QString &millivolts)
{
    const QString withPoint = millivolts.contains(u'.') ? millivolts : millivolts + u'.';
    return milliToUnitText(withPoint).value_or(QString());
}

static LabelledValue::Kind kindOf(QStringView unit)
{
    using Kind = LabelledValue::Kind;
    if (unit.front() == u'C' && !unit.back().isLetter())
        return Kind::Celsius;
    if (unit == u"mV")
        return Kind::Volt;
    return unit == u"mA" ? Kind::Milliampere : Kind::Missing; // "1800.0000 m", "1800.0000 uV": noise took the unit
}

static LabelledValue number(const QString &token, LabelledValue::Kind kind, const QString &line)
{
    if (kind == LabelledValue::Kind::Volt)
        return isPlausible(token) ? LabelledValue{kind, volts(token), line} : LabelledValue{};
    const QString shortened = token.chopped(1);
    if (kind == LabelledValue::Kind::Missing || !isPlausible(shortened))
        return {};
    return {kind, QString(shortened).replace(u'.', u','), line};
}

LabelledReply::LabelledReply(const QString &text) : m_text(text)
{
    constexpr qsizetype kFar = 2 * kLastPosition; // no label ends so far behind the last place it is looked for
    for (qsizetype colon = text.indexOf(u':'); colon >= 0 && colon < kFar; colon = text.indexOf(u':', colon + 1))
        m_colons.append(colon);
}

qsizetype LabelledReply::positionOf(QStringView label) const
{
    if (label.size() < 2 || !label.endsWith(u':'))
        return label.isEmpty() ? -1 : m_text.indexOf(label);
    const QStringView text = m_text;
    const QChar last = label.at(label.size() - 2); // most labels differ there: few are compared whole
    for (const qsizetype colon : m_colons)
        if (colon > 0 && text.at(colon - 1) == last && text.first(colon + 1).endsWith(label))
            return colon + 1 - label.size();
    return -1;
}

LabelledValue valueBehind(const LabelledReply &reply, const QString &label)
{
    const QString &text = reply.text();
    const qsizetype position = reply.positionOf(label);
    const qsizetype start = position + label.size() + 1;
    if (position < 0 || position >= kLastPosition || start >= text.size())
        return {};
    if (text.at(start - 1) != u' ') // the blank was lost, or a digit stands where it should be
        return {};
    const qsizetype blank =
        start + QStringView(text).sliced(start, std::min(text.size() - start, kLongestLine)).indexOf(u' ');
    if (blank <= start || blank + 2 >= text.size())
        return {};
    const QString token = text.mid(start, blank - start);
    const QString line = lineAt(text, position);
    if (token.size() > 3 && token.contains("tim"_L1))
        return {LabelledValue::Kind::TimedOut, token, line};
    return number(token, kindOf(QStringView(text).sliced(blank + 1, 2)), line);
}

/// The digits after the point, so many of them: a current is printed with more than its reference has.
static QString withDecimals(const QString &text, qsizetype decimals)
{
    const qsizetype point = text.indexOf(u'.');
    const QString whole = text.left(point < 0 ? text.size() : point);
    const QString fraction = point < 0 ? QString() : text.mid(point + 1, decimals);
    return decimals == 0 ? whole : whole + u'.' + fraction.leftJustified(decimals, u'0');
}

QString comparable(const LabelledValue &value, const QString &reference)
{
    if (value.kind != LabelledValue::Kind::Milliampere)
        return value.value;
    const qsizetype point = reference.indexOf(u'.');
    return withDecimals(QString(value.value).replace(u',', u'.'), point < 0 ? 0 : reference.size() - point - 1);
}

QString threeDecimals(const QString &reference)
{
    return withDecimals(QString(reference).replace(u',', u'.'), 3);
}
