#include "numbertext.h"

#include <QLocale>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kLastPointPosition = 255;
constexpr qsizetype kDeviationCharacters = 6;
constexpr double kLargestFixedDifference = 3;

QString milliDigitsToUnit(const QString &digits)
{
    const qsizetype length = digits.size();
    if (length == 0 || length > 6)
        return digits;
    if (length <= 3)
        return u"0."_s + digits.rightJustified(3, u'0');
    return digits.left(length - 3) + u'.' + digits.right(3);
}

QString withPoints(QString text)
{
    return text.replace(u',', u'.').replace(u' ', u'.');
}

QString cutAfterPoint(const QString &text, int decimals)
{
    const qsizetype point = text.indexOf(u'.');
    return point < 0 ? text : text.left(point + 1 + qMax(0, decimals));
}

double withoutPoint(QString text)
{
    return leadingNumber(text.remove(u'.'));
}

// One step per count of the last printed digit: a percentage of so small a difference would only show the
// resolution of the reading.
QString fixedDeviation(double difference)
{
    if (difference == 0)
        return u"0"_s;
    const QString steps = QString::number(std::ceil(std::abs(difference)));
    return (difference < 0 ? u"-0."_s : u"0."_s) + steps;
}

// Fifteen digits, so that a whole per cent stays whole however the division was rounded; never with an exponent.
QString generalText(double value)
{
    const QString text = QString::number(value, 'g', 15);
    return text.contains(u'e') ? QString::number(value, 'f', QLocale::FloatingPointShortest) : text;
}

QString percentText(double percent)
{
    const QString text = cutAfterPoint(generalText(percent).left(kDeviationCharacters), 1);
    const bool loneDigit = text.size() == 1 && text != "0"_L1;
    const bool loneNegativeDigit = text.size() == 2 && text.startsWith(u'-');
    if (loneDigit || loneNegativeDigit)
        return text + u".0"_s;
    return text == "0.0"_L1 ? u"0"_s : text;
}

} // namespace

std::optional<QString> milliToUnitText(const QString &value)
{
    const bool negative = value.startsWith(u'-');
    const QString unsignedText = negative ? value.mid(1) : value;
    const qsizetype point = unsignedText.indexOf(u'.');
    if (point < 0)
        return unsignedText;
    if (point + 1 > kLastPointPosition)
        return std::nullopt;
    const QString unit = milliDigitsToUnit(unsignedText.left(point));
    return negative ? u'-' + unit : unit;
}

QString oneDecimalText(const QString &value)
{
    return cutAfterPoint(withPoints(value), 1);
}

QString decimalsText(const QString &value, int decimals)
{
    const QString text = cutAfterPoint(withPoints(value), decimals);
    return text == "-0"_L1 ? u"0"_s : text;
}

std::optional<QString> deviationText(const QString &measured, const QString &reference)
{
    const double referenceCounts = withoutPoint(reference);
    const double difference = withoutPoint(measured) - referenceCounts;
    if (std::abs(difference) <= kLargestFixedDifference)
        return fixedDeviation(difference);
    if (referenceCounts == 0)
        return std::nullopt;
    return oneDecimalText(percentText(difference / (referenceCounts * 100) * 10000));
}

QString withoutBlanks(const QString &text)
{
    return QString(text).remove(u' ');
}

double leadingNumber(const QString &text)
{
    const QStringView trimmed = QStringView(text).trimmed();
    bool pointSeen = false;
    qsizetype end = trimmed.startsWith(u'-') || trimmed.startsWith(u'+') ? 1 : 0;
    for (; end < trimmed.size(); ++end) {
        const char16_t character = trimmed[end].unicode();
        const bool point = character == u'.' && !pointSeen;
        if (!point && (character < u'0' || character > u'9'))
            break;
        pointSeen |= point;
    }
    return QLocale::c().toDouble(trimmed.left(end));
}

std::optional<WrittenNumber> writtenNumber(QStringView text)
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(value))
        return std::nullopt;
    const qsizetype point = text.indexOf(u'.');
    return WrittenNumber{value, point < 0 ? 0 : static_cast<int>(text.size() - point - 1)};
}
