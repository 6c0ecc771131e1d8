#include "communication.h"

#include "catalogue.h"

#include <algorithm>

using namespace Qt::StringLiterals;

QString communicationText(bool answers, Language language)
{
    return caption(answers ? u"COMUNICAÇÃO OK" : u"COMUNICAÇÃO OFF", language);
}

QString shownReply(const QString &reply)
{
    const auto begin = std::ranges::find_if_not(reply, [](QChar c) { return c == u'\r' || c == u'\n'; });
    return reply.sliced(begin - reply.begin());
}

void addFact(Panel &panel, const Judgement &fact)
{
    panel.facts.append(
        {{{u"Dado"_s, fact.what}, {u"Leitura"_s, fact.reading}, {u"Linha"_s, fact.line}}, {}, {}, fact.verdict});
    panel.verdict = worst(panel.verdict, fact.verdict);
    if (fact.verdict == Verdict::None)
        return;
    panel.judgements.append(fact);
    panel.judgements.last().screen = panel.screen;
}

static Verdict verdictOf(const Communication &communication)
{
    if (communication.cut)
        return Verdict::Incomplete;
    return communication.answers ? Verdict::Pass : Verdict::Fail;
}

void addCommunication(Panel &panel, const Communication &communication)
{
    panel.fields[u"OK"_s].visible = communication.answers;
    panel.fields[u"NO"_s].visible = !communication.answers;
    const QString status = communicationText(communication.answers, communication.language);
    const QString cut = u" ("_s + caption(u"Leitura interrompida", communication.language) + u')';
    addFact(panel, {.what = communication.what,
                    .reading = communication.cut ? status + cut : status,
                    .verdict = verdictOf(communication),
                    .line = communication.line});
}

void hideMarks(Panel &panel)
{
    for (const auto &mark : {u"OK"_s, u"NO"_s})
        panel.fields[mark].visible = false;
}
