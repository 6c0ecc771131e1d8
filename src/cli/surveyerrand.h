#pragma once

#include "modelerrand.h"
#include "surveyscreen.h"

/// What the command line says of a survey.
struct SurveyOptions
{
    SurveyExtras extras = {};
    QString pdfFile;
    QString name;
    QString note;
    Journaling journaling = Journaling::Kept;
};

/// Surveys the board on a phone and prints one table of findings.
class SurveyErrand : public ModelErrand
{
    Q_OBJECT

public:
    SurveyErrand(CommonOptions options, SurveyOptions surveyOptions);

protected:
    void begin() override;
    void linkWasLost() override;
    void timedOut() override;
    void leavePhone() override;

private:
    void printProgress();
    void printSurvey();
    QString jsonText();
    QString readableText();
    ExitCode exitCode() const;

    SurveyOptions m_surveyOptions;
    SurveyScreen m_survey;
    bool m_showsProgress;
};
