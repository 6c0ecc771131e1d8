#pragma once

#include "surveyfindings.h"

/// How far a survey is, and how long it is likely to take from here. What is expected of each question is corrected by
/// how long those before it took on this phone.
struct SurveyPace
{
    int percent = 0;
    std::chrono::milliseconds remaining{0};
};

/// The first of what waits may be in flight since `sinceAsked`.
SurveyPace paceOf(const QList<SurveyAnswer> &done, const QList<SurveyStep> &waiting,
                  std::chrono::milliseconds sinceAsked);
