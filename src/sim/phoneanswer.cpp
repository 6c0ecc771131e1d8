#include "buckanswer.h"
#include "checkanswer.h"
#include "chipoutputs.h"
#include "gaugeanswer.h"
#include "healthyrails.h"
#include "phoneprofile.h"
#include "pmuoutputs.h"
#include "scatter.h"
#include "shellcommands.h"

using namespace Qt::StringLiterals;

namespace {

struct Supply
{
    QLatin1StringView label;
    double value;
    QLatin1StringView unit;
};

constexpr Supply kSupplies[] = {
    {"vddout:"_L1, 3800.0, "mV"_L1},
    {"vbat:"_L1, 3790.0, "mV"_L1},
    {"tcal:"_L1, 4080.0, "Ohm"_L1},
    {"temp_buck0:"_L1, 37.5, "C"_L1},
};

QStringList supplyLines(const QString &model)
{
    constexpr double kShare = 0.008;
    QStringList lines;
    for (const Supply &supply : kSupplies) {
        const double value = supply.value * (1.0 + kShare * scatter(model, QString(supply.label)));
        lines.append(u"%1 %2 %3"_s.arg(supply.label, valueToken(value), supply.unit));
    }
    return lines;
}

QStringList railLines(const PhoneProfile &profile)
{
    QStringList lines;
    const QStringList outputs = pmuOutputs();
    for (const QString &output : outputs) {
        const QString label = pmuLabel(output);
        const auto token = profile.rails.constFind(label);
        if (token != profile.rails.constEnd())
            lines.append(u"%1 %2 %3"_s.arg(label, *token, isCurrent(output) ? u"mA"_s : u"mV"_s));
    }
    return lines;
}

QStringList pmuLines(const PhoneProfile &profile)
{
    const QStringList head = {u"PMU ADC test"_s, u"Read all Channels"_s, u"Read PMU ADC channels"_s};
    return head + supplyLines(profile.model) + railLines(profile) + chipLines(profile, u"acorn");
}

QStringList tigrisLines(const PhoneProfile &profile)
{
    return chipLines(profile, u"tigris");
}

QStringList chestnutLines(const PhoneProfile &profile)
{
    const QStringList lines = chipLines(profile, u"chestnut");
    return lines.isEmpty() ? QStringList{u"ERROR: chestnut not found"_s} : lines;
}

/// A chip that answers fills more than three lines; one that does not leaves one word.
QStringList portChipLines(const PhoneProfile &profile)
{
    static const QStringList kRegisters = {u"port controller, revision 3"_s,
                                           u"dx1: 0x00 switch: open  mode: USB"_s,
                                           u"dx2: 0x00 switch: open  mode: UART"_s,
                                           u"acc1: 0 mV  accessory: none"_s,
                                           u"acc2: 0 mV  accessory: none"_s,
                                           u"idx: 0x10 0x0C 0x00 0x00 0x00 0x00"_s,
                                           u"vdx: 0 mV  passed"_s};
    return profile.portChipAnswers ? kRegisters : QStringList{u"ERROR"_s};
}

QStringList nothing(const PhoneProfile &)
{
    return {};
}

QStringList modelLines(const PhoneProfile &profile)
{
    return {profile.modelNumber};
}

QStringList serialLines(const PhoneProfile &profile)
{
    return {profile.serial.isEmpty() ? u"Not Found!"_s : profile.serial};
}

struct Command
{
    QLatin1StringView line;
    QStringList (*body)(const PhoneProfile &);
};

constexpr Command kCommands[] = {
    {"syscfg print RMd#"_L1, modelLines},
    {"syscfg print SrNm"_L1, serialLines},
    {"pmuadc --read all"_L1, pmuLines},
    {"pmuadc --sel tigris --read all"_L1, tigrisLines},
    {"pmuadc --sel chestnut --read all"_L1, chestnutLines},
    {"touch --on"_L1, nothing},
    {"touch --off"_L1, nothing},
    {"tristar -p"_L1, portChipLines},
    {"tristar --read dx1 --read dx2 --read acc1 --read acc2 --read idx --read vdx"_L1, portChipLines},
    {"battery --properties"_L1, batteryLines},
    {"device --key GasGauge -p"_L1, gaugeLines},
};

QStringList bodyLines(const PhoneProfile &profile, const QString &line)
{
    if (line.isEmpty())
        return {};
    if (const std::optional<QStringList> check = buckAnswer(profile, line))
        return *check;
    for (const Command &command : kCommands) {
        if (line == command.line)
            return command.body(profile);
    }
    for (const auto &own : {checkAnswer(profile, line), shellAnswer(line)})
        if (own)
            return own->lines;
    return {u"Command \"%1\" not found!"_s.arg(line.section(u' ', 0, 0))};
}

QString promptOf(const QString &model)
{
    return u"[%1:%2] :-) "_s.arg(scatteredDigits(model, u"prompt high"), scatteredDigits(model, u"prompt low"));
}

} // namespace

void obey(PhoneProfile &profile, const QByteArray &command)
{
    const QByteArray line = command.simplified();
    if (line == "touch --on" || line == "touch --off")
        profile.touchOn = line == "touch --on";
    obeyCheck(profile, QString::fromLatin1(line));
}

static bool endsWithPrompt(const QByteArray &command)
{
    const auto own = shellAnswer(QString::fromLatin1(command).simplified());
    return !own || own->ending != ShellAnswer::Ending::NoPrompt;
}

QByteArray answer(const PhoneProfile &profile, const QByteArray &command)
{
    const QByteArray lineEnd = profile.crlf ? "\r\n" : "\n";
    QByteArray bytes = command + "\r\n";
    const QByteArray noise = profile.garbage ? QByteArray("\x00\xFF\x1B~\x80", 5) : QByteArray();
    const QStringList lines = bodyLines(profile, QString::fromLatin1(command).simplified());
    for (qsizetype i = 0; i < lines.size(); ++i)
        bytes += (i == 0 ? QByteArray() : noise) + lines.at(i).toLatin1() + lineEnd;
    return endsWithPrompt(command) ? bytes + promptOf(profile.model).toLatin1() : bytes;
}
