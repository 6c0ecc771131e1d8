#include "displaysreading.h"

#include "catalogue.h"
#include "communication.h"
#include "models.h"

#include <QStringTokenizer>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

// The two blanks behind "magenta" are part of the command as technicians know it.
static constexpr std::array kColours = {
    ColourButton{"Cor_Amarelo"_L1, u"Amarelo", "-b yellow -c white -w"_L1},
    ColourButton{"Cor_Azul"_L1, u"Azul", "-b blue -c white -w"_L1},
    ColourButton{"Cor_Branco"_L1, u"Branco", "-b white -c black -w"_L1},
    ColourButton{"Cor_Cinza"_L1, u"Cinza", "-b gray -c white -w"_L1},
    ColourButton{"Cor_Cyan"_L1, u"Ciano", "-b cyan -c black -w"_L1},
    ColourButton{"Cor_Preto"_L1, u"Preto", "-b black -c white -w"_L1},
    ColourButton{"Cor_Rosa"_L1, u"Rosa", "-b magenta  -c white -w"_L1},
    ColourButton{"Cor_Verde"_L1, u"Verde", "-b green -c white -w"_L1},
    ColourButton{"Cor_Vermelho"_L1, u"Vermelho", "-b red -c white -w"_L1},
};

static constexpr std::array<QLatin1StringView, kLastLightButton + 1> kLight = {
    "bl -n"_L1, "bl --off"_L1, "bl -r"_L1, "bl -l"_L1, "bl -m"_L1, "bl -h"_L1, {}, {}, "display --getmode"_L1};

std::span<const ColourButton> colourButtons()
{
    return kColours;
}

std::optional<QString> colourCommand(const QString &button, const QString &text)
{
    const auto row = std::ranges::find(kColours, button, &ColourButton::name);
    if (row == kColours.end())
        return {};
    return "displaytext -t "_L1 + text + u' ' + row->options;
}

QLatin1StringView lightCommand(int index)
{
    return index < 0 || index > kLastLightButton ? QLatin1StringView() : kLight.at(static_cast<std::size_t>(index));
}

static bool isDigits(QStringView text)
{
    return !text.isEmpty() && std::ranges::all_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
}

/// Of the first line that is a width and a height, and nothing else.
static QString resolutionIn(const QString &reply)
{
    for (const QStringView line : QStringTokenizer{reply, u'\n'}) {
        const QStringView said = line.trimmed();
        const qsizetype by = said.indexOf(u'x');
        if (by > 0 && isDigits(said.first(by)) && isDigits(said.sliced(by + 1)))
            return said.toString();
    }
    return {};
}

Panel readDisplay(const DisplayInput &input)
{
    Panel panel;
    panel.screen = u"Displays"_s;
    panel.title = caption(u"Testes de Display", input.language) + " - Tavimo Prelt"_L1;
    panel.fields[u"txtDados"_s].text = shownReply(input.reply);
    panel.fields[u"lbResolucao"_s].text = QString();
    const QString watch = caption(u"Observe a tela", input.language);
    const bool isMode = input.command == kLight[kModeButton];
    panel.fields[u"lbStatus2"_s] = {.text = watch, .visible = input.isWhole && !isMode};
    if (!input.isWhole)
        return panel;
    addFact(panel, {.what = caption(u"Comando", input.language), .reading = input.command});
    if (!isMode)
        return panel;
    const QString mode = resolutionIn(input.reply);
    const QString shown = mode.isEmpty() ? caption(u"Sem Medição", input.language) : mode;
    panel.fields[u"lbResolucao"_s].text = shown;
    addFact(panel, {.what = caption(u"Resolução", input.language), .reading = shown});
    return panel;
}

QString displayChipScreen(const QString &model)
{
    return hasOledPanel(model) ? u"Acorn"_s : u"Chestnut"_s;
}
