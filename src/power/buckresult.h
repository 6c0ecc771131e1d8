#pragma once

#include "language.h"

#include <QString>

/// What the phone's own check said of one buck.
struct BuckResult
{
    enum class Kind
    {
        None,    ///< nothing that can be read
        Voltage, ///< only how much it is: there is nothing to hold it against
        Check
    };

    Kind kind = Kind::None;
    QString target = {};   ///< volts
    QString measured = {}; ///< volts
    QString verdict = {};  ///< the phone's word, up to four letters
};

/// Reads the reply to "buckcheck" for this buck. A reply that names another buck came late and says nothing of this
/// one.
BuckResult buckResult(const QString &reply, int buck);

/// The result as the lists show it; empty when there is none.
QString resultLine(const BuckResult &result, int buck, Language language);

/// The letters of a whole verdict.
inline constexpr qsizetype kVerdictLetters = 4;

/// Whole millivolts as volts, the decimals dropped: "1099.5115" gives "1.099". Empty for what is no number.
QString voltsOf(const QString &millivolts);
