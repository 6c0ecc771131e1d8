#include "finding.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct VerdictRow
{
    FindingVerdict verdict;
    QLatin1StringView word;
    QStringView key;
};

/// The worst first.
constexpr std::array kRows = {
    VerdictRow{FindingVerdict::Fail, "fail"_L1, u"Falha"},
    VerdictRow{FindingVerdict::NotMeasured, "not measured"_L1, u"Não medido"},
    VerdictRow{FindingVerdict::Marginal, "marginal"_L1, u"No limite"},
    VerdictRow{FindingVerdict::Pass, "pass"_L1, u"Aprovado"},
    VerdictRow{FindingVerdict::NotJudged, "not judged"_L1, u"Sem julgamento"},
};

const VerdictRow *rowOf(FindingVerdict verdict)
{
    return std::ranges::find(kRows, verdict, &VerdictRow::verdict);
}

bool isWorse(FindingVerdict one, FindingVerdict other)
{
    return rowOf(one) < rowOf(other);
}

QString keyOf(const Judgement &judgement)
{
    return judgement.output.isEmpty() ? judgement.screen + u'/' + judgement.what : judgement.output;
}

/// A mark that points to a screen's footnote has nothing to point to here.
QString withoutMark(QString reading)
{
    while (reading.endsWith(u'*') && reading.size() > 2)
        reading.chop(1);
    return reading;
}

} // namespace

void addFinding(QList<Finding> &findings, const Judgement &judgement)
{
    Finding added{.key = keyOf(judgement),
                  .what = judgement.what,
                  .screens = {judgement.screen},
                  .reading = withoutMark(judgement.reading),
                  .reference = judgement.reference,
                  .source = judgement.source,
                  .deviation = judgement.deviation,
                  .rule = judgement.rule,
                  .verdict = findingVerdict(judgement),
                  .line = judgement.line};
    if (added.verdict == FindingVerdict::NotJudged && added.reference == "0"_L1) // held against nothing
        added.reference.clear();
    if (added.reference.isEmpty() && added.verdict == FindingVerdict::NotJudged)
        added.source.clear();
    const auto known = std::ranges::find(findings, added.key, &Finding::key);
    if (known == findings.end())
        return findings.append(added);
    added.what = known->what;
    added.screens = known->screens;
    if (!added.screens.contains(judgement.screen))
        added.screens.append(judgement.screen);
    if (isWorse(added.verdict, known->verdict))
        *known = added;
    else
        known->screens = added.screens;
}

QList<Finding> worstFirst(QList<Finding> findings)
{
    std::ranges::stable_sort(findings, isWorse, &Finding::verdict);
    return findings;
}

qsizetype countOf(const QList<Finding> &findings, FindingVerdict verdict)
{
    return std::ranges::count(findings, verdict, &Finding::verdict);
}

Verdict overall(const QList<Finding> &findings)
{
    if (countOf(findings, FindingVerdict::Fail) > 0)
        return Verdict::Fail;
    if (countOf(findings, FindingVerdict::NotMeasured) > 0)
        return Verdict::Incomplete;
    const bool isAnyJudged = countOf(findings, FindingVerdict::NotJudged) < findings.size();
    return isAnyJudged ? Verdict::Pass : Verdict::None;
}

QString word(FindingVerdict verdict)
{
    return rowOf(verdict)->word;
}

FindingVerdict findingVerdictOf(QStringView word)
{
    const auto row = std::ranges::find_if(kRows, [word](const VerdictRow &known) { return word == known.word; });
    return row == kRows.end() ? FindingVerdict::NotJudged : row->verdict;
}

QStringView captionKey(FindingVerdict verdict)
{
    return rowOf(verdict)->key;
}
