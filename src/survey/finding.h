#pragma once

#include "judgedfinding.h"

#include <QStringList>

/// What a survey says of one output, whichever and however many screens show it.
struct Finding
{
    QString key; ///< the same output has the same key, on every screen and in every reply
    QString what;
    QStringList screens; ///< forms' names
    QString reading;
    QString reference = {};
    QString source = {};
    std::optional<double> deviation = {};
    std::optional<Rule> rule = {};
    FindingVerdict verdict = FindingVerdict::NotJudged;
    QString line = {};

    friend bool operator==(const Finding &, const Finding &) = default;
};

/// Adds what a screen judged. Of two screens that judge one output differently the worse verdict stands, with what was
/// read and held against there, and both are named.
void addFinding(QList<Finding> &findings, const Judgement &judgement);

/// Faults first, then what was not measured, what is marginal, what passed, and last what was not judged.
QList<Finding> worstFirst(QList<Finding> findings);

/// The verdict on the whole board.
Verdict overall(const QList<Finding> &findings);

qsizetype countOf(const QList<Finding> &findings, FindingVerdict verdict);

/// The word for a verdict in scripts and in the journal: "pass", "marginal", "fail", "not measured", "not judged".
QString word(FindingVerdict verdict);
/// The verdict of such a word; not judged for any other.
FindingVerdict findingVerdictOf(QStringView word);
/// The caption key of the verdict's word.
QStringView captionKey(FindingVerdict verdict);
