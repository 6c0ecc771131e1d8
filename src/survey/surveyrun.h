#pragma once

#include "surveyfindings.h"

#include "receiver.h"

#include <QDateTime>

/// How a survey ended.
enum class SurveyEnd
{
    Open, ///< it has not
    Finished,
    Cancelled,
    LinkLost
};

/// A word that stays the same in the journal and in scripts.
QString word(SurveyEnd end);
/// The caption key of how it ended.
QStringView captionKey(SurveyEnd end);

/// A survey of one board: what is still to be asked and what was answered.
struct SurveyRun
{
    QString id;
    QString model;
    QString port;
    Language language = Language::Portuguese; ///< of the journal, whatever is shown meanwhile
    QDateTime started;
    QDateTime ended = {};
    SurveyEnd end = SurveyEnd::Open;
    SurveyReference reference = {};
    QList<SurveyStep> waiting = {};
    QList<SurveyAnswer> answers = {};

    QString serial() const;
    QList<Finding> findings(Language shown) const { return findingsOf(answers, model, shown, reference); }
};

/// Takes the reply to the first step that waits. Where it calls for a remedy that and the same question come next, and
/// what the reply said counts no more.
void takeAnswer(SurveyRun &run, const Delivery &delivery, std::chrono::milliseconds took);

/// A survey that did not come to its end is never good, and neither is one that was broken off before it judged
/// anything.
Verdict verdictOf(const QList<Finding> &findings, SurveyEnd end);
