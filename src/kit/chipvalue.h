#pragma once

#include "chipreading.h"
#include "labelledvalue.h"

/// What the reply gave for a row of a chip.
struct ChipValue
{
    LabelledValue value;
    bool isRead = false;
    QString deviationText = {};
    std::optional<double> deviation = {};
    Verdict verdict = Verdict::None;
};

ChipValue chipValue(const ChipRow &row, const LabelledReply &reply);

/// The value with its unit, or what stands in its place.
QString shownText(const ChipRow &row, const ChipValue &value, Language language);
/// The reference with its unit, and the limit where there is one on one side alone.
QString shownReference(const ChipRow &row);
