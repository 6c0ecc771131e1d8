#include "i2creading.h"

#include "catalogue.h"
#include "communication.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

QString busName(int bus)
{
    return u"I2C %1"_s.arg(bus);
}

enum class Presence
{
    Answers,
    Silent,
    NotAsked ///< the bus did not answer, or its answer was cut before this device
};

/// A device that was looked for.
struct Looked
{
    BusDevice device;
    Presence presence = Presence::NotAsked;
};

Presence presenceOf(const BusDevice &device, const BusReply &reply)
{
    if (reply.reply.contains(device.key))
        return Presence::Answers;
    return reply.reply.isEmpty() || reply.cut ? Presence::NotAsked : Presence::Silent;
}

QList<Looked> lookedFor(const BusReply &reply, const I2CInput &input)
{
    QList<Looked> looked;
    for (const BusDevice &device : input.expected.value_or(QList<BusDevice>()))
        if (device.bus == reply.bus)
            looked.append({device, presenceOf(device, reply)});
    return looked;
}

QString statusOf(Presence presence, Language language)
{
    return presence == Presence::NotAsked ? caption(u"Sem Medição", language)
                                          : communicationText(presence == Presence::Answers, language);
}

Verdict verdictOf(Presence presence)
{
    static constexpr std::array kVerdicts = {Verdict::Pass, Verdict::Fail, Verdict::Incomplete};
    return kVerdicts.at(static_cast<std::size_t>(presence));
}

QString resultLine(const Looked &looked, Language language)
{
    return u"%1 - %2 - %3"_s.arg(looked.device.key, looked.device.name, statusOf(looked.presence, language));
}

void addDevice(Panel &panel, const Looked &looked, const I2CInput &input)
{
    const QString address = u'0' + looked.device.key;
    const QString status = statusOf(looked.presence, input.language);
    const Verdict verdict = verdictOf(looked.presence);
    const QString likely =
        looked.presence == Presence::Silent ? likelyFailure(input.model, looked.device.bus) : QString();
    panel.rows.append({.cells = {{u"Barramento"_s, busName(looked.device.bus)},
                                 {u"Endereço"_s, address},
                                 {u"Componente"_s, looked.device.name},
                                 {u"Leitura"_s, status},
                                 {u"Falha"_s, QString(likely).replace("\r\n"_L1, " "_L1)}},
                       .verdict = verdict,
                       .source = looked.device.source});
    panel.verdict = worst(panel.verdict, verdict);
    panel.judgements.append({.what = u"%1 %2 %3"_s.arg(busName(looked.device.bus), address, looked.device.name),
                             .reading = status,
                             .source = looked.device.source,
                             .verdict = verdict,
                             .screen = panel.screen,
                             .line = likely});
}

/// A bus of which nothing is expected is told too, with the addresses that answered.
void addUnknownBus(Panel &panel, const BusReply &reply, const I2CInput &input)
{
    QStringList answered;
    for (const BusDevice &device : answeringDevices(reply, {}))
        answered.append(u'0' + device.key);
    panel.rows.append({.cells = {{u"Barramento"_s, busName(reply.bus)},
                                 {u"Endereço"_s, answered.join(u' ')},
                                 {u"Componente"_s, caption(u"Sem referência", input.language)},
                                 {u"Leitura"_s, QString()},
                                 {u"Falha"_s, QString()}}});
}

bool isAnySilent(const QList<Looked> &looked)
{
    return std::ranges::find(looked, Presence::Silent, &Looked::presence) != looked.end();
}

void addFailure(QString &failures, const BusReply &reply, const I2CInput &input)
{
    if (!failures.isEmpty())
        failures += "\r\n\r\n"_L1;
    failures += busName(reply.bus) + "\r\n- "_L1 + likelyFailure(input.model, reply.bus);
}

/// The list of an automatic run: the older groups part their buses by blank rows.
void addToList(QStringList &list, const BusReply &reply, const QList<Looked> &looked, const I2CInput &input)
{
    const bool isClose = input.model.startsWith("IP 8"_L1) || input.model.startsWith("IP X"_L1);
    if (!isClose)
        list.append(QString());
    list.append(u"  "_s + busName(reply.bus));
    for (const Looked &device : looked)
        list.append(resultLine(device, input.language));
}

/// The result of one bus: its lines, and which marks show.
void showBus(Panel &panel, const BusReply &reply, const QList<Looked> &looked, Language language)
{
    QStringList lines;
    for (const Looked &device : looked) {
        lines.append(resultLine(device, language));
        if (device.presence != Presence::NotAsked)
            panel.fields[device.presence == Presence::Answers ? u"OK"_s : u"NO"_s].visible = true;
    }
    panel.fields[u"lbResultado"_s].text = lines.join("\r\n\r\n"_L1);
    panel.fields[u"txtDados"_s].text = shownReply(reply.reply);
}

void showRun(Panel &panel, QStringList list, const QString &failures, const I2CInput &input)
{
    const bool isOver = input.run == BusRun::Finished;
    const bool isGood = isOver && panel.verdict == Verdict::Pass;
    if (isOver)
        list.append({QString(), caption(u"Teste Finalizados", input.language)});
    QString told = failures;
    if (isGood)
        told = "\r\n"_L1 + QString(7, u' ') + caption(u"Nenhuma falha detectada em I2C", input.language);
    else if (isOver && panel.judgements.isEmpty())
        told = caption(u"NADA_ESPERADO_I2C", input.language).arg(input.model);
    panel.fields[u"ListView"_s].items = list;
    panel.fields[u"txtDadosI2C"_s].text = told;
    panel.fields[u"FrameResultadoOK"_s].visible = isGood;
    panel.fields[u"FrameAutoI2C"_s].visible = input.run != BusRun::None;
}

} // namespace

QString busCommand(int bus)
{
    return u"i2c -s %1"_s.arg(bus);
}

QList<BusDevice> answeringDevices(const BusReply &reply, const QList<BusDevice> &expected)
{
    static const QRegularExpression kAddress(u"0(x[0-9A-F]{2})(?![0-9A-Za-z])"_s);
    QList<BusDevice> devices;
    for (auto found = kAddress.globalMatch(reply.reply); found.hasNext();) {
        const QString key = found.next().captured(1);
        const auto isKey = [&](const BusDevice &device) { return device.bus == reply.bus && device.key == key; };
        if (std::ranges::any_of(devices, isKey))
            continue;
        const auto known = std::ranges::find_if(expected, isKey);
        devices.append(known == expected.end() ? BusDevice{reply.bus, key, u'0' + key} : *known);
    }
    return devices;
}

Panel readI2C(const I2CInput &input)
{
    Panel panel;
    panel.screen = u"I2C"_s;
    panel.title = caption(u"Testes de Leitura I2C", input.language) + " - Tavimo Prelt"_L1;
    panel.fields[u"FrameI2C"_s].text = caption(u"Resultado do teste:", input.language) + u' ' + input.model;
    panel.fields[u"lbResultado"_s].text = QString();
    panel.fields[u"txtDados"_s].text = QString();
    hideMarks(panel);
    QStringList list;
    QString failures;
    for (const BusReply &reply : input.replies) {
        const QList<Looked> looked = lookedFor(reply, input);
        for (const Looked &device : looked)
            addDevice(panel, device, input);
        if (looked.isEmpty())
            addUnknownBus(panel, reply, input);
        if (isAnySilent(looked))
            addFailure(failures, reply, input);
        addToList(list, reply, looked, input);
        if (reply.bus == input.bus)
            showBus(panel, reply, looked, input.language);
    }
    if (!input.expected && !input.replies.isEmpty())
        panel.verdict = worst(panel.verdict, Verdict::Incomplete);
    showRun(panel, input.run == BusRun::None ? QStringList() : list, failures, input);
    return panel;
}
