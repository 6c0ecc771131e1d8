#pragma once

#include "finding.h"
#include "surveysteps.h"

/// A question that was asked, and what came of it.
struct SurveyAnswer
{
    SurveyStep step;
    QString reply; ///< as the phone sent it
    bool cut = false;
    std::chrono::milliseconds took{0};
    QString stray = {}; ///< what came in place of a reply
};

/// What an answer is judged as: the reply as its screen would get it.
SurveyInput inputOf(const SurveyAnswer &answer, const QString &model, Language language,
                    const SurveyReference &reference);

/// What the answers come to, one finding per output. A question without an answer is one thing that was not measured.
QList<Finding> findingsOf(const QList<SurveyAnswer> &answers, const QString &model, Language language,
                          const SurveyReference &reference);
