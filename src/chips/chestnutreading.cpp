#include "chestnutreading.h"

#include "catalogue.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMarks = 5;
constexpr ChipManner kRail{.pass = Tinted::Deviation, .fault = Tinted::Deviation, .gap = Tinted::Deviation};
constexpr ChipManner kPlain{.gapText = GapText::Dash};

constexpr auto kLdo1 = "PP5V7_MESON_AVDDH"_L1;
constexpr auto kLdo2 = "PP5V7_LCM_AVDDH"_L1;
constexpr auto kNegative = "PN -5V7_DISPLAY_MESON_AVDDN"_L1;
constexpr auto kBoost = "PP6V0_DISPLAY_BOOST"_L1;

constexpr ChipRow judgedRail(QLatin1StringView label, QLatin1StringView control, QLatin1StringView net,
                             QLatin1StringView reference, QLatin1StringView deviation, int mark, ReportPlace report)
{
    return {label, control, net, ChipUnit::Volt, kRail, reference, Rule::tenPercent(), deviation, mark, {}, report};
}

constexpr ChipRow shownOnly(QLatin1StringView label, QLatin1StringView control, QLatin1StringView net,
                            ChipUnit unit = ChipUnit::Milliampere, ReportPlace report = {})
{
    return {label, control, net, unit, kPlain, {}, {}, {}, -1, {}, report};
}

constexpr std::array kRows = {
    judgedRail("chestnut vldo1 :"_L1, "iLDO_V(1)"_L1, kLdo1, "5.700"_L1, "Porc1"_L1, 2, {3, "5.7 V"_L1}),
    judgedRail("chestnut vldo2 :"_L1, "iLDO_V(2)"_L1, kLdo2, "5.700"_L1, "Porc2"_L1, 3, {4, "5.7 V"_L1}),
    judgedRail("chestnut vldo3 :"_L1, "iLDO_V(3)"_L1, kTouchSupply, "5.100"_L1, "Porc3"_L1, 4, {5, "5.1 V"_L1}),
    shownOnly("chestnut ildo1 :"_L1, "iLDO_A(1)"_L1, kLdo1),
    shownOnly("chestnut ildo2 :"_L1, "iLDO_A(2)"_L1, kLdo2),
    shownOnly("chestnut ildo3 :"_L1, "iLDO_A(3)"_L1, kTouchSupply),
    judgedRail("chestnut vneg :"_L1, "VNEG_V"_L1, kNegative, "-5.700"_L1, "Porc4"_L1, 1, {2, "-5.7 V"_L1}),
    shownOnly("chestnut ineg :"_L1, "VNEG_A"_L1, kNegative),
    shownOnly("chestnut vin :"_L1, "VIN_V"_L1, "PP_VDD_MAIN"_L1, ChipUnit::Volt, {6, {}, RowMark::Yes}),
    shownOnly("chestnut ground :"_L1, "gndV"_L1, "GND"_L1, ChipUnit::Volt),
    judgedRail("chestnut vboost :"_L1, "BOOST_V"_L1, kBoost, "6.000"_L1, "Porc5"_L1, 0, {1, "6.0 V"_L1}),
};

constexpr std::array kDesignators = {
    Designator{"IP 6"_L1, "U1501"_L1},  Designator{"IP 6 Plus"_L1, "U1501"_L1},
    Designator{"IP 6s"_L1, "U4000"_L1}, Designator{"IP 6s Plus"_L1, "U4000"_L1},
    Designator{"IP 7"_L1, "U3703"_L1},  Designator{"IP 7 Plus"_L1, "U3703"_L1},
    Designator{"IP 8"_L1, "U5600"_L1},  Designator{"IP 8 Plus"_L1, "U5600"_L1},
};

} // namespace

Panel readChestnut(const ChipInput &input)
{
    Panel panel = readChip({"Chestnut"_L1, "CHESTNUT"_L1, kRows, kMarks, kDesignators, ReportPage::Chestnut}, input);
    panel.title = u"Chestnut - Tavimo Prelt"_s;
    panel.fields[u"lbVarInfo"_s].text = caption(u"VAR", input.language).remove(u"  "_s);
    return panel;
}

bool isTouchSupplyFaulty(const Panel &panel)
{
    const auto found = std::ranges::find(panel.judgements, QString(kTouchSupply), &Judgement::what);
    return found != panel.judgements.end() && found->verdict == Verdict::Fail;
}
