#include "labelledvalue.h"

#include "numbertext.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

/// Labels further back than this are not found: the phone never prints so much in one reply.
static constexpr qsizetype kLastPosition = 32767;

static QString lineAt(const QString &reply, qsizetype position)
{
    const qsizetype end = reply.indexOf(u'\n', position);
    return reply.mid(position, end < 0 ? -1 : end - position).trimmed();
}

static bool isNumber(const QString &text)
{
    static const QRegularExpression number(u"^-?[0-9]+(\\.[0-9]*)?\\z"_s); // "$" would let a line end pass
    return number.match(text).hasMatch();
}

/// The shell prints decimals always; a token without a point is whole millivolts all the same.
static QString volts(const QString &millivolts)
{
    const QString withPoint = millivolts.contains(u'.') ? millivolts : millivolts + u'.';
    return milliToUnitText(withPoint).value_or(QString());
}

static LabelledValue number(const QString &token, QChar unit, const QString &line)
{
    if (!unit.isLetter()) // the unit itself was lost: "1800.0000 m" must not pass for a current
        return {};
    if (unit == u'V')
        return isNumber(token) ? LabelledValue{LabelledValue::Kind::Volt, volts(token), line} : LabelledValue{};
    const QString shortened = token.chopped(1);
    if (!isNumber(shortened))
        return {};
    return {LabelledValue::Kind::Milliampere, QString(shortened).replace(u'.', u','), line};
}

LabelledValue valueBehind(const QString &reply, const QString &label)
{
    const qsizetype position = label.isEmpty() ? -1 : reply.indexOf(label);
    const qsizetype start = position + label.size() + 1;
    if (position < 0 || position >= kLastPosition || start >= reply.size())
        return {};
    const qsizetype blank = reply.indexOf(u' ', start);
    if (blank <= start || blank + 2 >= reply.size())
        return {};
    const QString token = reply.mid(start, blank - start);
    const QString line = lineAt(reply, position);
    if (token.size() > 3 && token.contains("tim"_L1))
        return {LabelledValue::Kind::TimedOut, token, line};
    return number(token, reply.at(blank + 2), line);
}
