#pragma once

#include "surveyjudges.h"

#include <chrono>

/// A part of the board, as the person who waits is told of it.
enum class SurveyPart
{
    Serial,
    Power,
    Charger,
    DisplayChip,
    PortChip,
    Battery,
    Buses,
    Storage,
    Radios,
    Configuration,
    Memory
};

/// The caption key of a part.
QStringView captionKey(SurveyPart part);

/// What takes long or tells much and is done only when it is asked for.
enum class SurveyExtra
{
    Syscfg = 1,
    Memory = 2
};
Q_DECLARE_FLAGS(SurveyExtras, SurveyExtra)

/// One question to the phone.
struct SurveyStep
{
    SurveyPart part = SurveyPart::Serial;
    QString command;
    QLatin1StringView code;                  ///< of the screen whose reply it is: echo and ending follow it
    SurveyJudge judge = nullptr;             ///< none: it only prepares the next one
    int index = 0;                           ///< of the bus, the radio or the test
    std::chrono::milliseconds expected{400}; ///< how long it takes, from the lengths of the replies
    std::chrono::milliseconds rest{0};       ///< after it, until the phone has done it
    QLatin1StringView remedy = {};           ///< is sent once where the reply calls for it, and the question repeated
    bool (*needsRemedy)(const SurveyInput &input) = nullptr;

    QLatin1StringView sentUnder() const; ///< the survey's own code
};

/// The questions that fit a model, in their order.
QList<SurveyStep> surveySteps(const QString &model, SurveyExtras extras);

/// What a step sends before it is repeated.
SurveyStep remedyOf(const SurveyStep &step);
