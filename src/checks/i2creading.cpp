#include "i2creading.h"

#include "catalogue.h"
#include "communication.h"
#include "replytext.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

QString busName(int bus)
{
    return u"I2C %1"_s.arg(bus);
}

QString addressOf(const BusDevice &device)
{
    return u'0' + device.key;
}

QString nameOf(const BusDevice &device)
{
    const QString address = addressOf(device);
    const QStringList parts{busName(device.bus), address, device.name == address ? QString() : device.name};
    return parts.join(u' ').trimmed();
}

enum class Presence
{
    Answers,
    Silent,
    NoAnswer, ///< the bus did not answer, or its answer was cut before this device
    Untested, ///< its bus was not tested
};

/// A device that was looked for.
struct Looked
{
    BusDevice device;
    Presence presence = Presence::Untested;
    QString line = {}; ///< of the reply
};

const BusReply *replyOf(const I2CInput &input, int bus)
{
    const auto reply = std::ranges::find(input.replies, bus, &BusReply::bus);
    return reply == input.replies.end() ? nullptr : &*reply;
}

Looked lookedAt(const BusDevice &device, const BusReply *reply)
{
    if (!reply)
        return {device};
    if (const QString line = lineWith(reply->reply, device.key); !line.isNull())
        return {device, Presence::Answers, line};
    return {device, reply->reply.isEmpty() || reply->cut ? Presence::NoAnswer : Presence::Silent};
}

QList<Looked> lookedFor(int bus, const I2CInput &input)
{
    QList<Looked> looked;
    for (const BusDevice &device : input.expected.value_or(QList<BusDevice>()))
        if (device.bus == bus)
            looked.append(lookedAt(device, replyOf(input, bus)));
    return looked;
}

/// A run that was broken off leaves buses untested that it set out to test; otherwise nobody asked for them.
bool isOwed(const I2CInput &input)
{
    return input.run == BusRun::Cancelled;
}

QString statusOf(Presence presence, const I2CInput &input)
{
    if (presence == Presence::Untested)
        return isOwed(input) ? caption(u"Não testado", input.language) : QString();
    return presence == Presence::NoAnswer ? caption(u"Sem Medição", input.language)
                                          : communicationText(presence == Presence::Answers, input.language);
}

Verdict verdictOf(Presence presence, const I2CInput &input)
{
    static constexpr std::array kVerdicts = {Verdict::Pass, Verdict::Fail, Verdict::Incomplete, Verdict::Incomplete};
    const bool isOfNoConcern = presence == Presence::Untested && !isOwed(input);
    return isOfNoConcern ? Verdict::None : kVerdicts.at(static_cast<std::size_t>(presence));
}

QString resultLine(const Looked &looked, const I2CInput &input)
{
    return u"%1 - %2 - %3"_s.arg(looked.device.key, looked.device.name, statusOf(looked.presence, input));
}

void addDevice(Panel &panel, const Looked &looked, const I2CInput &input)
{
    const QString status = statusOf(looked.presence, input);
    const Verdict verdict = verdictOf(looked.presence, input);
    const QString likely =
        looked.presence == Presence::Silent ? likelyFailure(input.model, looked.device.bus) : QString();
    panel.rows.append({.cells = {{u"Barramento"_s, busName(looked.device.bus)},
                                 {u"Endereço"_s, addressOf(looked.device)},
                                 {u"Componente"_s, looked.device.name},
                                 {u"Leitura"_s, status},
                                 {u"Falha"_s, QString(likely).replace("\r\n"_L1, " "_L1)}},
                       .verdict = verdict,
                       .source = looked.device.source,
                       .confidence = looked.device.confidence});
    if (verdict == Verdict::None)
        return;
    panel.verdict = worst(panel.verdict, verdict);
    panel.judgements.append({.what = nameOf(looked.device),
                             .reading = status,
                             .source = looked.device.source,
                             .verdict = verdict,
                             .screen = panel.screen,
                             .line = looked.line.isEmpty() ? likely : looked.line});
}

/// A bus of which nothing is expected is told too, with the addresses that answered.
void addUnknownBus(Panel &panel, const BusReply &reply, const I2CInput &input)
{
    QStringList answered;
    for (const BusDevice &device : answeringDevices(reply, {}))
        answered.append(addressOf(device));
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
        list.append(resultLine(device, input));
}

/// The result of one bus: its lines, and which marks show.
void showBus(Panel &panel, const BusReply &reply, const QList<Looked> &looked, const I2CInput &input)
{
    QStringList lines;
    for (const Looked &device : looked) {
        lines.append(resultLine(device, input));
        if (device.presence != Presence::NoAnswer)
            panel.fields[device.presence == Presence::Answers ? u"OK"_s : u"NO"_s].visible = true;
    }
    panel.fields[u"lbResultado"_s].text = lines.join("\r\n\r\n"_L1);
    panel.fields[u"txtDados"_s].text = shownReply(reply.reply);
}

/// The buses that a run would have tested still.
QString busesOwed(const I2CInput &input)
{
    QStringList buses;
    for (int bus = 0; bus < kBuses; ++bus)
        if (busButton(input.model, bus) == BusButton::Testable && !replyOf(input, bus))
            buses.append(QString::number(bus));
    return buses.join(", "_L1);
}

QString toldOfRun(const Panel &panel, const QString &failures, const I2CInput &input)
{
    if (input.run == BusRun::Cancelled) {
        const QString owed = caption(u"CANCELADO_I2C", input.language).arg(busesOwed(input));
        return failures.isEmpty() ? owed : failures + "\r\n\r\n"_L1 + owed;
    }
    if (input.run != BusRun::Finished)
        return failures;
    if (panel.verdict == Verdict::Pass)
        return "\r\n"_L1 + QString(7, u' ') + caption(u"Nenhuma falha detectada em I2C", input.language);
    return panel.judgements.isEmpty() ? caption(u"NADA_ESPERADO_I2C", input.language).arg(input.model) : failures;
}

void showRun(Panel &panel, QStringList list, const QString &failures, const I2CInput &input)
{
    const bool isOver = input.run == BusRun::Finished;
    if (isOver)
        list.append({QString(), caption(u"Teste Finalizados", input.language)});
    panel.fields[u"ListView"_s].items = list;
    panel.fields[u"txtDadosI2C"_s].text = toldOfRun(panel, failures, input);
    panel.fields[u"FrameResultadoOK"_s].visible = isOver && panel.verdict == Verdict::Pass;
    panel.fields[u"FrameAutoI2C"_s].visible = input.run != BusRun::None;
}

/// The map: what is expected on every bus, and what was found on those that were tested.
void addBuses(Panel &panel, const I2CInput &input)
{
    for (int bus = 0; bus < kBuses; ++bus) {
        const QList<Looked> looked = lookedFor(bus, input);
        for (const Looked &device : looked)
            addDevice(panel, device, input);
        const BusReply *const reply = replyOf(input, bus);
        if (reply && looked.isEmpty())
            addUnknownBus(panel, *reply, input);
    }
}

/// What was not asked for, was cut, or had nothing to be held against never makes a pass.
bool isPartial(const I2CInput &input)
{
    return isOwed(input) || input.run == BusRun::Running || std::ranges::any_of(input.replies, &BusReply::cut) ||
           (!input.expected && !input.replies.isEmpty());
}

} // namespace

QString busCommand(int bus)
{
    return u"i2c -s %1"_s.arg(bus);
}

/// Two digits as the phone prints them, in capitals, and no third.
static std::optional<std::size_t> addressAt(QStringView text)
{
    static constexpr QStringView kDigits = u"0123456789ABCDEF";
    if (text.size() < 2 || (text.size() > 2 && text.at(2).unicode() < 0x80 && text.at(2).isLetterOrNumber()))
        return {};
    const qsizetype high = kDigits.indexOf(text.at(0));
    const qsizetype low = kDigits.indexOf(text.at(1));
    return high < 0 || low < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(16 * high + low));
}

QList<BusDevice> answeringDevices(const BusReply &reply, const QList<BusDevice> &expected)
{
    QList<BusDevice> devices;
    std::array<bool, 0x100> isTaken{};
    const QStringView text = reply.reply;
    for (qsizetype place = text.indexOf(u"0x"); place >= 0; place = text.indexOf(u"0x", place + 1)) {
        const auto address = addressAt(text.sliced(place + 2));
        if (!address || std::exchange(isTaken.at(*address), true))
            continue;
        const QString key = text.sliced(place + 1, 3).toString();
        const auto known = std::ranges::find_if(
            expected, [&](const BusDevice &device) { return device.bus == reply.bus && device.key == key; });
        devices.append(known == expected.end() ? BusDevice{reply.bus, key, u'0' + key} : *known);
    }
    return devices;
}

static void compare(KnownGood &known, const QList<BusDevice> &answering, const QList<BusDevice> &expected)
{
    const auto isIn = [](const BusDevice &device, const QList<BusDevice> &devices) {
        return std::ranges::any_of(
            devices, [&](const BusDevice &other) { return other.bus == device.bus && other.key == device.key; });
    };
    for (const BusDevice &device : answering)
        if (!isIn(device, expected))
            known.added.append(nameOf(device));
    for (const BusDevice &device : expected)
        if (!isIn(device, answering))
            known.dropped.append(nameOf(device));
}

KnownGood knownGood(const I2CInput &input, const QString &source)
{
    KnownGood known;
    for (const BusReply &reply : input.replies) {
        if (reply.reply.isEmpty() || reply.cut)
            continue;
        QList<BusDevice> expected = input.expected.value_or(QList<BusDevice>());
        expected.removeIf([&](const BusDevice &device) { return device.bus != reply.bus; });
        QList<BusDevice> devices = answeringDevices(reply, expected);
        compare(known, devices, expected);
        for (BusDevice &device : devices) {
            device.source = source;
            device.confidence.clear();
        }
        known.devices += static_cast<int>(devices.size());
        known.buses.append({input.model, reply.bus, devices});
    }
    return known;
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
    addBuses(panel, input);
    if (isPartial(input))
        panel.verdict = worst(panel.verdict, Verdict::Incomplete);
    QStringList list;
    QString failures;
    for (const BusReply &reply : input.replies) {
        const QList<Looked> looked = lookedFor(reply.bus, input);
        if (isAnySilent(looked))
            addFailure(failures, reply, input);
        addToList(list, reply, looked, input);
        if (reply.bus == input.bus)
            showBus(panel, reply, looked, input);
    }
    showRun(panel, input.run == BusRun::None ? QStringList() : list, failures, input);
    return panel;
}
