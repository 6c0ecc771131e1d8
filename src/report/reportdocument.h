#pragma once

#include "findingverdict.h"
#include "language.h"

#include <QList>
#include <QString>

#include <optional>

/// One row of a report.
struct ReportFinding
{
    QString what;
    QString reading;
    QString reference = {};
    QString source = {};                  ///< of the reference: a caption key or the technician's own words
    QString deviationText = {};           ///< as the screen shows it
    QString line = {};                    ///< of the reply
    QString screen = {};                  ///< where it was read
    QString hint = {};                    ///< what to look at next
    std::optional<double> deviation = {}; ///< per cent, for the bar
    std::optional<double> tolerance = {}; ///< per cent to either side
    FindingVerdict verdict = FindingVerdict::NotJudged;

    friend bool operator==(const ReportFinding &, const ReportFinding &) = default;
};

/// What a customer is handed: who read which phone when, and what was found. What is empty is left out.
struct ReportDocument
{
    QString title;
    QString shop = {};
    QString logoFile = {}; ///< a picture; one that cannot be read is left out
    QString model = {};
    QString serial = {};
    QString date = {};
    QString note = {};
    Language language = Language::Portuguese;
    QList<ReportFinding> findings = {};
};
