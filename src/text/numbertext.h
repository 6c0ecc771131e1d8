#pragma once

#include <QString>

#include <optional>

/// A value printed in thousandths (millivolts) as text of the whole unit with ".": "1800.0000" gives "1.800". The
/// digits after the point are dropped, never rounded. A text without a "." comes back as it is, less its minus sign;
/// seven or more whole digits are left as they are. Nothing when the first "." stands beyond the 255th character.
std::optional<QString> milliToUnitText(const QString &value);

/// The text cut after the first digit behind its point ("," and blanks count as points): "3,14" gives "3.1".
QString oneDecimalText(const QString &value);

/// The text cut to so many decimals ("," and blanks count as points); a result of exactly "-0" becomes "0".
QString decimalsText(const QString &value, int decimals);

/// The deviation of a measured text from a reference text in per cent, as text with "." and one decimal, truncated.
/// Both texts must carry the same number of decimals: their points are dropped before they are compared. Differences
/// of up to three counts of the last digit give the fixed texts 0.1, 0.2 and 0.3. Nothing when the reference is zero
/// and the difference is larger than that.
std::optional<QString> deviationText(const QString &measured, const QString &reference);

/// The text without any of its blanks.
QString withoutBlanks(const QString &text);

/// The number at the start of a text, as the shell and the store write numbers; a text that holds none is 0.
double leadingNumber(const QString &text);

/// A number as it is written: its value, and how many digits stand behind its point.
struct WrittenNumber
{
    double value = 0;
    int decimals = 0;
};

/// The number that a text is, whole and with a "."; nothing when it is none.
std::optional<WrittenNumber> writtenNumber(QStringView text);
