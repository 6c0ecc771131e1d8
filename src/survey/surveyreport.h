#pragma once

#include "reportdocument.h"
#include "surveyrun.h"

/// Who a survey's report is from, and what is noted on it.
struct SurveySigning
{
    QString name;
    QString note;
};

/// The findings of a survey as the document that a customer is handed.
ReportDocument reportOf(const SurveyRun &run, const QList<Finding> &findings, const SurveySigning &signing,
                        Language language);
