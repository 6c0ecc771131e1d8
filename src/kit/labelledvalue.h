#pragma once

#include <QList>
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
        Celsius,
    };

    Kind kind = Kind::Missing;
    QString value; ///< volts with "." and three decimals; the others with ",", less their last character
    QString line;  ///< the line of the reply

    friend bool operator==(const LabelledValue &, const LabelledValue &) = default;
};

/// A reply in which many labels are looked up: labels end with a colon, and it remembers where the colons are.
class LabelledReply
{
public:
    LabelledReply(const QString &text); // not explicit: most replies are asked once

    const QString &text() const { return m_text; }
    /// Where the label stands for the first time, or -1.
    qsizetype positionOf(QStringView label) const;

private:
    QString m_text;
    QList<qsizetype> m_colons;
};

/// The value behind the first occurrence of a label: label, one blank, token, one blank, unit ("mV", "mA" or "C"). A
/// token without the blank and the unit behind it was cut in transit and is missing, and so is one that is no number.
LabelledValue valueBehind(const LabelledReply &reply, const QString &label);

/// The value as a text with "." and as many decimals as the reference has: their points are dropped to compare them.
QString comparable(const LabelledValue &value, const QString &reference);

/// A reference with the three decimals that a reading has: beside one of "1.8" a rail at 0.019 V would look good.
QString threeDecimals(const QString &reference);
