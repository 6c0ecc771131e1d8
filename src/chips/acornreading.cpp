#include "acornreading.h"

#include "catalogue.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int kOverall = 11;
constexpr int kMarks = 12;
constexpr ChipManner kRail{.pass = Tinted::Deviation, .fault = Tinted::Deviation};
constexpr ChipManner kPlain{.gapText = GapText::Dash};

/// A rail with a reference; mark n goes with the controls Mn and Pn.
constexpr ChipRow judgedRail(QLatin1StringView label, QLatin1StringView control, QLatin1StringView net,
                             QLatin1StringView reference, QLatin1StringView deviation, int mark, ReportPlace report)
{
    return {label, control, net, ChipUnit::Volt, kRail, reference, Rule::tenPercent(), deviation, mark, {}, report};
}

/// A rail that only has to be there.
constexpr ChipRow plainRail(QLatin1StringView label, QLatin1StringView control, QLatin1StringView net, int mark,
                            int reportRow)
{
    return {label, control, net, ChipUnit::Volt, {}, {}, {}, {}, mark, {}, {reportRow}};
}

constexpr ChipRow shownOnly(QLatin1StringView label, QLatin1StringView control, QLatin1StringView net, ChipUnit unit)
{
    return {label, control, net, unit, kPlain};
}

constexpr std::array kRows = {
    plainRail("acorn ground :"_L1, "M0"_L1, "GND"_L1, 0, 10),
    plainRail("acorn vin :"_L1, "M1"_L1, "PP_VDD_MAIN"_L1, 1, 11),
    plainRail("acorn vb :"_L1, "M2"_L1, "PP_BOOST1_ACORN"_L1, 2, 9),
    judgedRail("acorn vp :"_L1, "M3"_L1, "PP10V0_RACER"_L1, "10.000"_L1, "P3"_L1, 3, {5, "10.0 V"_L1}),
    judgedRail("acorn vn :"_L1, "M4"_L1, "PN6V7_RACER"_L1, "-6.700"_L1, "P4"_L1, 4, {4, "6.7 V"_L1}),
    judgedRail("acorn vh :"_L1, "M5"_L1, "PP5V25_TOUCH_VDDH"_L1, "5.250"_L1, "P5"_L1, 5, {3, "5.25 V"_L1}),
    plainRail("acorn vl :"_L1, "M6"_L1, "PP_CP1_OUT_ACORN"_L1, 6, 8),
    judgedRail("acorn va :"_L1, "M7"_L1, "PP3V5_RACER"_L1, "3.500"_L1, "P7"_L1, 7, {2, "3.5 V"_L1}),
    judgedRail("acorn vc :"_L1, "M8"_L1, "PP1V1_RACER"_L1, "1.100"_L1, "P8"_L1, 8, {1, "1.1 V"_L1}),
    judgedRail("BIST buck4:"_L1, "M9"_L1, "PP1V1_S2"_L1, "1.100"_L1, "P9"_L1, 9, {7, "1.1 V"_L1}),
    judgedRail("BIST buck3_sw2:"_L1, "M10"_L1, "PP1V8_TOUCH_RACER_S2"_L1, "1.800"_L1, "P10"_L1, 10, {6, "1.8 V"_L1}),
    shownOnly("acorn die_temp :"_L1, "Temp"_L1, "DIE TEMP"_L1, ChipUnit::Celsius),
    shownOnly("acorn ia :"_L1, "AMP1"_L1, "PP3V5_RACER"_L1, ChipUnit::Milliampere),
    shownOnly("acorn in :"_L1, "AMP2"_L1, "PN6V7_RACER"_L1, ChipUnit::Milliampere),
    shownOnly("acorn ip :"_L1, "AMP3"_L1, "PP10V0_RACER"_L1, ChipUnit::Milliampere),
    shownOnly("acorn ih :"_L1, "AMP4"_L1, "PP5V25_TOUCH_VDDH"_L1, ChipUnit::Milliampere),
};

/// The overall mark rests on the rails that have a reference, read or not.
Verdict overall(const Panel &panel)
{
    const auto isBad = [](const Judgement &judgement) {
        return !judgement.reference.isEmpty() && judgement.verdict != Verdict::Pass;
    };
    return std::ranges::any_of(panel.judgements, isBad) ? Verdict::Fail : Verdict::Pass;
}

} // namespace

Panel readAcorn(const ChipInput &input)
{
    Panel panel = readChip({"Acorn"_L1, "ACORN"_L1, kRows, kMarks, {}, ReportPage::Acorn}, input);
    panel.title = u"Acorn - Tavimo Prelt"_s;
    panel.fields[u"lbStatus2"_s].text = caption(u"ANALISE COMPLETA", input.language);
    if (!input.reply.isEmpty())
        setMark(panel, kOverall, overall(panel), input.language);
    return panel;
}
