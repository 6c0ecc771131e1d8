#include "surveyfindings.h"

#include "catalogue.h"
#include "replycodes.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool isOpen(const Judgement &judgement)
{
    return judgement.verdict == Verdict::Incomplete || judgement.verdict == Verdict::Fail;
}

/// What the person is told of a question that has no name of its own.
Judgement gap(const SurveyAnswer &answer, Language language, QStringView reading)
{
    const ReplyCode *row = replyCode(answer.step.code);
    const QString screen = row ? QString(row->screen) : QString();
    return {.what = caption(captionKey(answer.step.part), language) + u": "_s + answer.step.command,
            .reading = caption(reading, language),
            .verdict = Verdict::Incomplete,
            .screen = screen,
            .output = screen + u'/' + answer.step.command};
}

QList<Judgement> judgementsOf(const SurveyAnswer &answer, const SurveyInput &input)
{
    if (!answer.step.judge)
        return {};
    if (!answer.stray.isEmpty())
        return {gap(answer, input.language, u"Outra resposta")};
    if (answer.reply.trimmed().isEmpty())
        return {gap(answer, input.language, u"Sem resposta")};
    QList<Judgement> judgements = answer.step.judge(input);
    if (answer.cut && std::ranges::none_of(judgements, isOpen)) // what is missing does not look good
        judgements.append(gap(answer, input.language, u"Leitura interrompida"));
    return judgements;
}

} // namespace

SurveyInput inputOf(const SurveyAnswer &answer, const QString &model, Language language,
                    const SurveyReference &reference)
{
    return {replyForCode(answer.step.code, answer.reply, answer.step.command),
            answer.cut,
            answer.step.index,
            model,
            language,
            reference};
}

QList<Finding> findingsOf(const QList<SurveyAnswer> &answers, const QString &model, Language language,
                          const SurveyReference &reference)
{
    QList<Finding> findings;
    for (const SurveyAnswer &answer : answers)
        for (const Judgement &judgement : judgementsOf(answer, inputOf(answer, model, language, reference)))
            addFinding(findings, judgement);
    return findings;
}
