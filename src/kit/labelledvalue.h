#pragma once

#include <QString>

/// What the phone printed behind a label of a reply.
struct LabelledValue
{
    enum class Kind
    {
        Missing,  ///< no such label, or what stands there is no whole value
        TimedOut, ///< the phone says that the output did not answer
        Volt,
        Milliampere,
    };

    Kind kind = Kind::Missing;
    QString value; ///< volts with "." and three decimals; milliamperes with ",", less their last character
    QString line;  ///< the line of the reply

    friend bool operator==(const LabelledValue &, const LabelledValue &) = default;
};

/// The value behind the first occurrence of a label: label, one blank, token, one blank, two-letter unit ("mV" or
/// "mA"). A token without the blank and the unit behind it was cut in transit and is missing, and so is one that is
/// no number.
LabelledValue valueBehind(const QString &reply, const QString &label);
