#include "healthyrails.h"
#include "phoneprofile.h"
#include "pmuoutputs.h"
#include "scatter.h"

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

// The display supply chip of the IP X; the values without a nominal of its own are for the simulation alone.
constexpr Supply kAcorn[] = {
    {"acorn ground :"_L1, 0.0, "mV"_L1},   {"acorn vin :"_L1, 3800.0, "mV"_L1}, {"acorn vb :"_L1, 5100.0, "mV"_L1},
    {"acorn vp :"_L1, 10000.0, "mV"_L1},   {"acorn vn :"_L1, -6700.0, "mV"_L1}, {"acorn vh :"_L1, 5250.0, "mV"_L1},
    {"acorn vl :"_L1, 4300.0, "mV"_L1},    {"acorn va :"_L1, 3500.0, "mV"_L1},  {"acorn vc :"_L1, 1100.0, "mV"_L1},
    {"acorn die_temp :"_L1, 36.0, "C"_L1}, {"acorn ia :"_L1, 2.5, "mA"_L1},     {"acorn in :"_L1, 6.0, "mA"_L1},
    {"acorn ip :"_L1, 4.0, "mA"_L1},       {"acorn ih :"_L1, 1.5, "mA"_L1},
};

template <typename Supplies>
QStringList supplyLines(const QString &model, const Supplies &supplies)
{
    constexpr double kShare = 0.008;
    QStringList lines;
    for (const Supply &supply : supplies) {
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
    const QStringList acorn = profile.model == "IP X"_L1 ? supplyLines(profile.model, kAcorn) : QStringList();
    return head + supplyLines(profile.model, kSupplies) + railLines(profile) + acorn;
}

QStringList modelLines(const PhoneProfile &profile)
{
    return {profile.modelNumber};
}

struct Command
{
    QLatin1StringView line;
    QStringList (*body)(const PhoneProfile &);
};

constexpr Command kCommands[] = {
    {"syscfg print RMd#"_L1, modelLines},
    {"pmuadc --read all"_L1, pmuLines},
};

QStringList bodyLines(const PhoneProfile &profile, const QString &line)
{
    if (line.isEmpty())
        return {};
    for (const Command &command : kCommands) {
        if (line == command.line)
            return command.body(profile);
    }
    return {u"Command \"%1\" not found!"_s.arg(line.section(u' ', 0, 0))};
}

QString promptOf(const QString &model)
{
    return u"[%1:%2] :-) "_s.arg(scatteredDigits(model, u"prompt high"), scatteredDigits(model, u"prompt low"));
}

} // namespace

QByteArray answer(const PhoneProfile &profile, const QByteArray &command)
{
    const QByteArray lineEnd = profile.crlf ? "\r\n" : "\n";
    QByteArray bytes = command + "\r\n";
    const QStringList lines = bodyLines(profile, QString::fromLatin1(command).simplified());
    for (const QString &line : lines)
        bytes += line.toLatin1() + lineEnd;
    return bytes + promptOf(profile.model).toLatin1();
}
