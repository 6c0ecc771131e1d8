#include "icreading.h"

#include "catalogue.h"
#include "communication.h"
#include "models.h"
#include "replytext.h"

#include <array>

using namespace Qt::StringLiterals;

static constexpr qsizetype kShortestAnswer = 151;

QLatin1StringView portChipCommand(int selector)
{
    static constexpr std::array kCommands = {
        "tristar -p"_L1, "tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx"_L1};
    return kCommands.at(static_cast<std::size_t>(selector - 1));
}

QString portChip(const QString &model)
{
    return isNewestGeneration(model) ? u"HYDRA"_s : u"TRISTAR"_s;
}

static void judge(Panel &panel, const PortChipInput &input)
{
    const bool answers = input.reply.size() >= kShortestAnswer;
    const QString chip = portChip(input.model);
    panel.fields[u"lbStatus"_s].text = communicationText(answers, input.language);
    panel.fields[u"lbIC"_s].text = chip;
    panel.fields[u"lbStatus2"_s].visible = true;
    addCommunication(panel, {chip, answers, input.cut, lineBehindEcho(input.reply), input.language});
    panel.fields[u"OK"_s].text = u"OK"_s;
    panel.fields[u"NO"_s].text = caption(u"Falha", input.language);
}

static void tellGap(Panel &panel, const PortChipInput &input)
{
    addFact(panel, {.what = portChip(input.model),
                    .reading = caption(u"Sem Medição", input.language),
                    .verdict = Verdict::Incomplete,
                    .line = lineBehindEcho(input.reply)});
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
    hideMarks(panel);
    if (input.reply.size() > kNoPortChipReply)
        judge(panel, input);
    else if (!input.reply.isEmpty())
        tellGap(panel, input);
    return panel;
}
