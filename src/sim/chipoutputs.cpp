#include "chipoutputs.h"

#include "healthyrails.h"
#include "models.h"
#include "phoneprofile.h"
#include "scatter.h"

using namespace Qt::StringLiterals;

namespace {

enum class Fitted
{
    Everywhere,
    Newest,     ///< two charging inputs
    OledPanel,  ///< IP X
    OtherPanels ///< all others
};

/// One line of a chip. What has no nominal is for the simulation alone and no reference.
struct ChipOutput
{
    QLatin1StringView chip;
    QLatin1StringView name;
    double healthy;
    QLatin1StringView unit;
    Fitted fitted;
};

constexpr ChipOutput kOutputs[] = {
    {"tigris"_L1, "vbus"_L1, 4975.0, "mV"_L1, Fitted::Everywhere},
    {"tigris"_L1, "ibus"_L1, 486.3, "mA"_L1, Fitted::Everywhere},
    {"tigris"_L1, "vbat"_L1, 4123.0, "mV"_L1, Fitted::Everywhere},
    {"tigris"_L1, "ibat"_L1, -215.0, "mA"_L1, Fitted::Everywhere},
    {"tigris"_L1, "vdd"_L1, 4160.0, "mV"_L1, Fitted::Everywhere},
    {"tigris"_L1, "die_temp"_L1, 25.492, "C"_L1, Fitted::Everywhere},
    {"tigris"_L1, "vbus1"_L1, 4975.0, "mV"_L1, Fitted::Newest},
    {"tigris"_L1, "vbus2"_L1, 4968.0, "mV"_L1, Fitted::Newest},
    {"tigris"_L1, "vldo"_L1, 2985.0, "mV"_L1, Fitted::Newest},
    {"tigris"_L1, "vntc"_L1, 1187.0, "mV"_L1, Fitted::Newest},
    {"chestnut"_L1, "vldo1"_L1, 5701.3281, "mV"_L1, Fitted::OtherPanels},
    {"chestnut"_L1, "vldo2"_L1, 5699.2, "mV"_L1, Fitted::OtherPanels},
    {"chestnut"_L1, "vldo3"_L1, 5111.0, "mV"_L1, Fitted::OtherPanels},
    {"chestnut"_L1, "ildo1"_L1, 12.4, "mA"_L1, Fitted::OtherPanels},
    {"chestnut"_L1, "ildo2"_L1, 3.1, "mA"_L1, Fitted::OtherPanels},
    {"chestnut"_L1, "ildo3"_L1, 1.8, "mA"_L1, Fitted::OtherPanels},
    {"chestnut"_L1, "vneg"_L1, -5721.0, "mV"_L1, Fitted::OtherPanels},
    {"chestnut"_L1, "ineg"_L1, 9.6, "mA"_L1, Fitted::OtherPanels},
    {"chestnut"_L1, "vin"_L1, 3800.0, "mV"_L1, Fitted::OtherPanels},
    {"chestnut"_L1, "ground"_L1, 0.0, "mV"_L1, Fitted::OtherPanels},
    {"chestnut"_L1, "vboost"_L1, 6043.0, "mV"_L1, Fitted::OtherPanels},
    {"acorn"_L1, "ground"_L1, 0.0, "mV"_L1, Fitted::OledPanel},
    {"acorn"_L1, "vin"_L1, 3800.0, "mV"_L1, Fitted::OledPanel},
    {"acorn"_L1, "vb"_L1, 5100.0, "mV"_L1, Fitted::OledPanel},
    {"acorn"_L1, "vp"_L1, 10000.0, "mV"_L1, Fitted::OledPanel},
    {"acorn"_L1, "vn"_L1, -6700.0, "mV"_L1, Fitted::OledPanel},
    {"acorn"_L1, "vh"_L1, 5250.0, "mV"_L1, Fitted::OledPanel},
    {"acorn"_L1, "vl"_L1, 4300.0, "mV"_L1, Fitted::OledPanel},
    {"acorn"_L1, "va"_L1, 3500.0, "mV"_L1, Fitted::OledPanel},
    {"acorn"_L1, "vc"_L1, 1100.0, "mV"_L1, Fitted::OledPanel},
    {"acorn"_L1, "die_temp"_L1, 31.25, "C"_L1, Fitted::OledPanel},
    {"acorn"_L1, "ia"_L1, 2.5, "mA"_L1, Fitted::OledPanel},
    {"acorn"_L1, "in"_L1, 6.0, "mA"_L1, Fitted::OledPanel},
    {"acorn"_L1, "ip"_L1, 4.0, "mA"_L1, Fitted::OledPanel},
    {"acorn"_L1, "ih"_L1, 1.5, "mA"_L1, Fitted::OledPanel},
};

bool isFitted(Fitted fitted, const QString &model)
{
    const bool isOled = hasOledPanel(model);
    switch (fitted) {
    case Fitted::Newest:
        return isNewestGeneration(model);
    case Fitted::OledPanel:
        return isOled;
    case Fitted::OtherPanels:
        return !isOled;
    case Fitted::Everywhere:
        break;
    }
    return true;
}

QString labelOf(const ChipOutput &output)
{
    return output.chip + u' ' + output.name + " :"_L1;
}

bool isTouchSupply(const ChipOutput &output)
{
    return output.name == "vldo3"_L1 || output.name == "ildo3"_L1;
}

/// A value that has no decimals to lose is still printed with four.
QString healthyToken(const QString &model, const ChipOutput &output)
{
    constexpr double kShare = 0.002;
    return valueToken(output.healthy * (1.0 + kShare * scatter(model, labelOf(output))));
}

} // namespace

QMap<QString, QString> healthyChips(const QString &model)
{
    QMap<QString, QString> tokens;
    for (const ChipOutput &output : kOutputs) {
        if (isFitted(output.fitted, model))
            tokens.insert(labelOf(output), healthyToken(model, output));
    }
    return tokens;
}

QString chipLabel(const PhoneProfile &profile, const QString &name)
{
    QString found;
    for (const ChipOutput &output : kOutputs) {
        const bool isNamed = name == output.name || name == output.chip + u'.' + output.name;
        if (!isNamed || !profile.rails.contains(labelOf(output)))
            continue;
        if (!found.isEmpty())
            return {}; // two chips of this phone have it
        found = labelOf(output);
    }
    return found;
}

QStringList chipOutputNames(const PhoneProfile &profile)
{
    QStringList names;
    for (const ChipOutput &output : kOutputs) {
        if (profile.rails.contains(labelOf(output)))
            names.append(output.chip + u'.' + output.name);
    }
    return names;
}

QStringList chipLines(const PhoneProfile &profile, QStringView chip)
{
    QStringList lines;
    for (const ChipOutput &output : kOutputs) {
        const auto token = profile.rails.constFind(labelOf(output));
        if (output.chip != chip || token == profile.rails.constEnd())
            continue;
        const bool isDown = isTouchSupply(output) && !profile.touchOn && *token != "timeout"_L1;
        lines.append(u"%1 %2 %3"_s.arg(labelOf(output), isDown ? valueToken(0.0) : *token, output.unit));
    }
    return lines;
}
