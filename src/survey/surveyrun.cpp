#include "surveyrun.h"

#include "serialnumber.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

QString word(SurveyEnd end)
{
    static constexpr std::array kWords = {"running"_L1, "finished"_L1, "cancelled"_L1, "link lost"_L1};
    return kWords.at(static_cast<std::size_t>(end));
}

QStringView captionKey(SurveyEnd end)
{
    static constexpr std::array<QStringView, 4> kKeys = {u"VISTORIA_INICIADA", u"VISTORIA_CONCLUIDA",
                                                         u"VISTORIA_CANCELADA", u"VISTORIA_INTERROMPIDA"};
    return kKeys.at(static_cast<std::size_t>(end));
}

QString SurveyRun::serial() const
{
    const auto asked = std::ranges::find_if(
        answers, [](const SurveyAnswer &answer) { return answer.step.part == SurveyPart::Serial; });
    return asked == answers.end() ? QString() : serialIn(asked->reply);
}

void takeAnswer(SurveyRun &run, const Delivery &delivery, std::chrono::milliseconds took)
{
    SurveyAnswer answer{run.waiting.takeFirst(), delivery.reply, delivery.cut, took, delivery.stray};
    const SurveyStep &step = answer.step;
    if (step.needsRemedy && !answer.cut && step.needsRemedy(inputOf(answer, run.model, run.language, run.reference))) {
        SurveyStep again = step;
        again.needsRemedy = nullptr;
        run.waiting.prepend(again);
        run.waiting.prepend(remedyOf(step));
        answer.step.judge = nullptr;
    }
    run.answers.append(answer);
}

Verdict verdictOf(const QList<Finding> &findings, SurveyEnd end)
{
    const Verdict verdict = overall(findings);
    return end == SurveyEnd::Finished ? verdict : worst(verdict, Verdict::Incomplete);
}
