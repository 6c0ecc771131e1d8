#include "tristar.h"

#include "chipscreens.h"

#include <array>

using namespace Qt::StringLiterals;

static constexpr std::array kPins = {
    ChipPin{.flow = Flow::In,
            .caption = "lbNomeMalha1"_L1,
            .volts = "Malha1_V"_L1,
            .amps = "Malha1_A"_L1,
            .deviation = "Porc1"_L1,
            .mark = 1},
    ChipPin{.flow = Flow::In,
            .caption = "lbNomeMalha2"_L1,
            .volts = "Malha2_V"_L1,
            .amps = "Malha2_A"_L1,
            .deviation = "Porc2"_L1,
            .mark = 2},
    ChipPin{.flow = Flow::Out,
            .pin = u"ACC",
            .caption = "lbNomeMalha3"_L1,
            .volts = "Malha3_V"_L1,
            .amps = "Malha3_A"_L1,
            .deviation = "Porc3"_L1,
            .mark = 3},
};

static constexpr ChipLook kLook{.pins = kPins, .note = "lbStatus2"_L1, .status = "lbStatus"_L1, .mark = 0};

Tristar::Tristar(Session &session, QWidget *parent)
    : ChipForm(std::make_unique<TristarScreen>(session), kLook, {}, parent)
{
}
