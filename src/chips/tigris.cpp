#include "tigris.h"

#include "chipscreens.h"

#include <array>

using namespace Qt::StringLiterals;

static constexpr std::array kPins = {
    ChipPin{.flow = Flow::In,
            .pin = u"VBUS 1",
            .caption = "lb_VBus1"_L1,
            .volts = "VBus_V1"_L1,
            .amps = "VBus_A1"_L1,
            .warning = "Baixa2"_L1},
    ChipPin{.flow = Flow::In,
            .pin = u"VBUS 2",
            .caption = "lb_VBus2"_L1,
            .volts = "VBus_V2"_L1,
            .amps = "VBus_A2"_L1,
            .frame = "FrameVbusX"_L1},
    // On the models with one input the two above are hidden, and the first caption stands over these readings.
    ChipPin{.flow = Flow::In,
            .pin = u"VBUS",
            .caption = "lb_Vbus_Line2"_L1,
            .volts = "VBus_V"_L1,
            .amps = "VBus_A"_L1,
            .warning = "Baixa1"_L1},
    ChipPin{.flow = Flow::In, .pin = u"NTC", .caption = "Label3"_L1, .volts = "lbvntc"_L1},
    ChipPin{.flow = Flow::Out, .pin = u"VDD", .net = "VDD"_L1, .volts = "VDD_V"_L1},
    ChipPin{.flow = Flow::Out,
            .pin = u"VBAT",
            .net = "VBAT"_L1,
            .volts = "VBat_V"_L1,
            .amps = "VBat_A"_L1,
            .warning = "Baixa3"_L1},
    ChipPin{.flow = Flow::Out, .pin = u"LDO", .caption = "Label2"_L1, .volts = "lbVldo"_L1},
};

static constexpr ChipLook kLook{.pins = kPins, .note = "lbVarInfo"_L1, .temp = "Temp"_L1};

Tigris::Tigris(Session &session, QWidget *parent) : ChipForm(std::make_unique<TigrisScreen>(session), kLook, {}, parent)
{
}
