#include "journalcomparison.h"

#include <QMap>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

enum class State : quint8
{
    Good,
    Faulty,
    Unknown
};

State stateOf(const std::optional<Finding> &finding)
{
    if (!finding || finding->verdict == FindingVerdict::NotMeasured || finding->verdict == FindingVerdict::NotJudged)
        return State::Unknown;
    return finding->verdict == FindingVerdict::Fail ? State::Faulty : State::Good;
}

/// By the state before and the state after.
constexpr std::array<std::array<SurveyChange, 3>, 3> kChanges = {{
    {SurveyChange::Same, SurveyChange::NewFault, SurveyChange::Unjudged},
    {SurveyChange::Repaired, SurveyChange::FaultStays, SurveyChange::FaultUnjudged},
    {SurveyChange::PassesNow, SurveyChange::FaultFound, SurveyChange::Same},
}};

struct ChangeRow
{
    QLatin1StringView word;
    QStringView key;
};

constexpr std::array kRows = {
    ChangeRow{"new fault"_L1, u"Falha nova"},
    ChangeRow{"fault, unknown before"_L1, u"Falha, antes desconhecida"},
    ChangeRow{"still faulty"_L1, u"Falha permanece"},
    ChangeRow{"repaired"_L1, u"Reparado"},
    ChangeRow{"fault, not judged since"_L1, u"Falha, não julgada depois"},
    ChangeRow{"not judged any more"_L1, u"Não julgado depois"},
    ChangeRow{"passes now"_L1, u"Aprovado agora"},
    ChangeRow{"verdict changed"_L1, u"Veredito mudou"},
    ChangeRow{"same"_L1, u"Igual"},
};

const ChangeRow &rowOf(SurveyChange change)
{
    return kRows.at(static_cast<std::size_t>(change));
}

SurveyChange changeOf(const std::optional<Finding> &before, const std::optional<Finding> &after)
{
    const State was = stateOf(before);
    const State is = stateOf(after);
    if (was == State::Good && is == State::Good && before->verdict != after->verdict)
        return SurveyChange::Changed;
    return kChanges.at(static_cast<std::size_t>(was)).at(static_cast<std::size_t>(is));
}

} // namespace

QList<ComparedOutput> compareSurveys(const QList<Finding> &before, const QList<Finding> &after)
{
    QList<ComparedOutput> outputs;
    QMap<QString, qsizetype> places;
    for (const Finding &finding : worstFirst(after)) {
        places.insert(finding.key, outputs.size());
        outputs.append({.what = finding.what, .before = {}, .after = finding});
    }
    for (const Finding &finding : worstFirst(before)) {
        if (const auto known = places.constFind(finding.key); known != places.constEnd())
            outputs[*known].before = finding;
        else
            outputs.append({.what = finding.what, .before = finding, .after = {}});
    }
    for (ComparedOutput &output : outputs)
        output.change = changeOf(output.before, output.after);
    std::ranges::stable_sort(outputs, {}, &ComparedOutput::change);
    return outputs;
}

QString word(SurveyChange change)
{
    return rowOf(change).word;
}

QStringView captionKey(SurveyChange change)
{
    return rowOf(change).key;
}
