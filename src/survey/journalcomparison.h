#pragma once

#include "finding.h"

/// What became of one output from one survey to the next, what matters most first.
enum class SurveyChange
{
    NewFault,   ///< it was good before
    FaultFound, ///< what it was before is not known
    FaultStays,
    Repaired,
    FaultUnjudged, ///< it was faulty, and nothing has judged it since
    Unjudged,      ///< it was good, and nothing has judged it since
    PassesNow,     ///< what it was before is not known
    Changed,       ///< good both times, but near its limit one time
    Same
};

/// One output in two surveys; nothing where one did not read it.
struct ComparedOutput
{
    QString what;
    std::optional<Finding> before;
    std::optional<Finding> after;
    SurveyChange change = SurveyChange::Same;

    friend bool operator==(const ComparedOutput &, const ComparedOutput &) = default;
};

/// Every output of two surveys, side by side; what changed comes first. What was not measured or not judged is
/// neither faulty nor good.
QList<ComparedOutput> compareSurveys(const QList<Finding> &before, const QList<Finding> &after);

/// The word for a change in exported files.
QString word(SurveyChange change);
/// The caption key of a change.
QStringView captionKey(SurveyChange change);
