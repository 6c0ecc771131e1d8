#pragma once

#include <QtGlobal>

/// What a check of a board says of one thing.
enum class FindingVerdict : quint8
{
    Pass,
    Marginal, ///< good, but within the last fifth of the tolerance
    Fail,
    NotMeasured, ///< has a reference, but gave no reading
    NotJudged    ///< read, with nothing to hold it against
};
