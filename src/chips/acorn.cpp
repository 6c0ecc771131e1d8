#include "acorn.h"

#include "chipscreens.h"

#include <array>

using namespace Qt::StringLiterals;

static constexpr std::array kPins = {
    ChipPin{.flow = Flow::In, .pin = u"VIN", .net = "PP_VDD_MAIN"_L1, .volts = "M1"_L1, .mark = 1},
    ChipPin{.flow = Flow::In, .pin = u"GND", .net = "GND"_L1, .volts = "M0"_L1, .mark = 0},
    ChipPin{.flow = Flow::In, .pin = u"PMU", .net = "PP1V1_S2"_L1, .volts = "M9"_L1, .deviation = "P9"_L1, .mark = 9},
    ChipPin{.flow = Flow::In,
            .pin = u"PMU",
            .net = "PP1V8_TOUCH_RACER_S2"_L1,
            .volts = "M10"_L1,
            .deviation = "P10"_L1,
            .mark = 10},
    ChipPin{.flow = Flow::Out, .pin = u"VB", .net = "PP_BOOST1_ACORN"_L1, .volts = "M2"_L1, .mark = 2},
    ChipPin{.flow = Flow::Out,
            .pin = u"VP",
            .net = "PP10V0_RACER"_L1,
            .volts = "M3"_L1,
            .amps = "AMP3"_L1,
            .deviation = "P3"_L1,
            .mark = 3},
    ChipPin{.flow = Flow::Out,
            .pin = u"VN",
            .net = "PN6V7_RACER"_L1,
            .volts = "M4"_L1,
            .amps = "AMP2"_L1,
            .deviation = "P4"_L1,
            .mark = 4},
    ChipPin{.flow = Flow::Out,
            .pin = u"VH",
            .net = "PP5V25_TOUCH_VDDH"_L1,
            .volts = "M5"_L1,
            .amps = "AMP4"_L1,
            .deviation = "P5"_L1,
            .mark = 5},
    ChipPin{.flow = Flow::Out, .pin = u"VL", .net = "PP_CP1_OUT_ACORN"_L1, .volts = "M6"_L1, .mark = 6},
    ChipPin{.flow = Flow::Out,
            .pin = u"VA",
            .net = "PP3V5_RACER"_L1,
            .volts = "M7"_L1,
            .amps = "AMP1"_L1,
            .deviation = "P7"_L1,
            .mark = 7},
    ChipPin{
        .flow = Flow::Out, .pin = u"VC", .net = "PP1V1_RACER"_L1, .volts = "M8"_L1, .deviation = "P8"_L1, .mark = 8},
};

static constexpr ChipLook kLook{.pins = kPins, .note = "lbStatus2"_L1, .temp = "Temp"_L1, .mark = 11};

Acorn::Acorn(Session &session, QWidget *parent) : ChipForm(std::make_unique<AcornScreen>(session), kLook, {}, parent) {}
