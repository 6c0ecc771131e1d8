#include "icreading.h"

#include "catalogue.h"
#include "models.h"

using namespace Qt::StringLiterals;

static constexpr qsizetype kShortestAnswer = 151;

QString portChip(const QString &model)
{
    return isNewestGeneration(model) ? u"HYDRA"_s : u"TRISTAR"_s;
}

/// The first line behind the echo.
static QString answerIn(const QString &reply)
{
    return reply.trimmed().section(u'\n', 1, 1).trimmed();
}

static void judge(Panel &panel, const PortChipInput &input)
{
    const bool answers = input.reply.size() >= kShortestAnswer;
    const QString status = caption(answers ? u"COMUNICAÇÃO OK" : u"COMUNICAÇÃO OFF", input.language);
    const QString chip = portChip(input.model);
    panel.verdict = answers ? Verdict::Pass : Verdict::Fail;
    panel.fields[u"lbStatus"_s].text = status;
    panel.fields[u"lbIC"_s].text = chip;
    panel.fields[u"OK"_s] = {.text = u"OK"_s, .visible = answers};
    panel.fields[u"NO"_s] = {.text = caption(u"Falha", input.language), .visible = !answers};
    panel.fields[u"lbStatus2"_s].visible = true;
    panel.facts.append({{{u"Dado"_s, chip}, {u"Leitura"_s, status}}, {}, {}, panel.verdict});
    panel.judgements.append({chip, status, {}, {}, {}, {}, panel.verdict, panel.screen, answerIn(input.reply)});
}

static void tellGap(Panel &panel, const PortChipInput &input)
{
    panel.verdict = Verdict::Incomplete;
    panel.judgements.append({portChip(input.model),
                             caption(u"Sem Medição", input.language),
                             {},
                             {},
                             {},
                             {},
                             panel.verdict,
                             panel.screen,
                             answerIn(input.reply)});
}

Panel readIC(const PortChipInput &input)
{
    Panel panel;
    panel.screen = u"IC"_s;
    panel.title = caption(u"Testes IC's", input.language) + " - Tavimo Prelt"_L1;
    panel.fields[u"lbDispositivo"_s].text = input.model;
    panel.fields[u"lbStatus2"_s] = {.text = caption(u"ANALISE COMPLETA", input.language), .visible = false};
    for (const auto &label : {u"lbStatus"_s, u"lbIC"_s})
        panel.fields[label].text = QString();
    for (const auto &mark : {u"OK"_s, u"NO"_s})
        panel.fields[mark].visible = false;
    if (input.reply.size() > kNoPortChipReply)
        judge(panel, input);
    else if (!input.reply.isEmpty())
        tellGap(panel, input);
    neverGoodWhenCut(panel, input.cut);
    return panel;
}
