#include "rfsreading.h"

#include "catalogue.h"
#include "communication.h"
#include "replytext.h"

#include <QStringTokenizer>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

static constexpr std::array<Radio, kRadios> kTable = {{
    {u"Baseband",
     "lbFundoBase"_L1,
     {"baseband --on"_L1, "baseband --off"_L1, "baseband -p"_L1},
     {"Baseband is already powered on"_L1, "BB_HSIC_RDY"_L1, "on success"_L1, "OK"_L1}},
    {u"Bluetooth",
     "lbFundoBlue"_L1,
     {"bluetooth --on"_L1, "bluetooth --off"_L1, "bluetooth -p"_L1},
     {"Already on"_L1, "on success"_L1, "OK"_L1}},
    {u"Wifi",
     "lbFundoWifi"_L1,
     {"wifi --on"_L1, "wifi --off"_L1, "wifi --properties"_L1},
     {"Wifi is already on"_L1, "on success"_L1, "OK"_L1}},
    {u"Gps",
     "lbFundoGps"_L1,
     {"gps --on"_L1, "gps --off"_L1, "gps --getinfo"_L1},
     {"GPS is already on"_L1, "on success"_L1, "OK"_L1},
     true},
}};

const Radio &radio(int index)
{
    return kTable.at(static_cast<std::size_t>(index));
}

bool cameUp(int index, const QString &reply)
{
    return std::ranges::any_of(radio(index).markers,
                               [&](QLatin1StringView word) { return !word.isEmpty() && reply.contains(word); });
}

static Colour colourOf(RadioState state)
{
    static constexpr std::array kColours = {Colour::Face, Colour::Neutral, Colour::Answered, Colour::Silent};
    return kColours.at(static_cast<std::size_t>(state));
}

/// The line with the marker, else the first line behind the echo.
static QString tellingLine(int index, const QString &reply)
{
    qsizetype first = reply.size();
    for (const QLatin1StringView word : radio(index).markers)
        if (const qsizetype place = word.isEmpty() ? -1 : reply.indexOf(word); place >= 0)
            first = std::min(first, place);
    return first < reply.size() ? lineAround(reply, first) : lineBehindEcho(reply);
}

static void judge(Panel &panel, const RadioInput &input)
{
    const Radio &asked = radio(input.radio);
    const bool isUp = cameUp(input.radio, input.reply);
    const QString status = communicationText(isUp, input.language);
    panel.fields[u"lbStatus2"_s] = {.text = asked.name.toString() + "\r\n"_L1 + status, .visible = true};
    panel.fields[asked.field].back = colourOf(isUp ? RadioState::Up : RadioState::Silent);
    if (!isUp)
        panel.fields[u"txtDados"_s].text =
            shownReply(input.reply) + u"\r\n\r\n"_s + caption(u"REPITA PROCESSO", input.language);
    addCommunication(panel,
                     {asked.name.toString(), isUp, input.cut, tellingLine(input.radio, input.reply), input.language});
}

/// Far more than a radio says of itself; the console holds a flood whole.
static constexpr qsizetype kMostLines = 200'000;

/// What was asked for without a judgement is shown line by line.
static void tell(Panel &panel, const RadioInput &input)
{
    bool isEcho = true;
    for (const QStringView line : QStringTokenizer{QStringView(input.reply).trimmed(), u'\n'}) {
        if (panel.lines.size() == kMostLines)
            return panel.lines.append(u"…"_s);
        if (!std::exchange(isEcho, false) && !line.contains(u"] :-)"))
            panel.lines.append(line.trimmed().toString());
    }
}

Panel readRadio(const RadioInput &input)
{
    Panel panel;
    panel.screen = u"RFs"_s;
    panel.title = caption(u"Testes de Comunicação RF", input.language) + " - Tavimo Prelt"_L1;
    for (std::size_t i = 0; i < kTable.size(); ++i)
        panel.fields[kTable[i].field] = {.text = kTable[i].name.toString(), .back = colourOf(input.states[i])};
    panel.fields[u"lbStatius"_s].text = QString();
    panel.fields[u"lbStatus2"_s] = {.text = QString(), .visible = false};
    panel.fields[u"txtDados"_s].text = shownReply(input.reply);
    hideMarks(panel);
    if (input.isWhole && input.action == RadioAction::On)
        judge(panel, input);
    else if (input.isWhole)
        tell(panel, input);
    return panel;
}
