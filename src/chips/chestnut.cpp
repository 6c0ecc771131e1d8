#include "chestnut.h"

#include "chestnutscreen.h"

#include <QPushButton>

#include <array>

using namespace Qt::StringLiterals;

static constexpr std::array kPins = {
    ChipPin{.flow = Flow::In, .pin = u"VIN", .net = "PP_VDD_MAIN"_L1, .volts = "VIN_V"_L1},
    ChipPin{.flow = Flow::In, .pin = u"GND", .net = "GND"_L1, .volts = "gndV"_L1},
    ChipPin{.flow = Flow::Out,
            .pin = u"BOOST",
            .net = "PP6V0_DISPLAY_BOOST"_L1,
            .volts = "BOOST_V"_L1,
            .deviation = "Porc5"_L1,
            .mark = 0},
    ChipPin{.flow = Flow::Out,
            .pin = u"VNEG",
            .net = "PN -5V7_DISPLAY_MESON_AVDDN"_L1,
            .volts = "VNEG_V"_L1,
            .amps = "VNEG_A"_L1,
            .deviation = "Porc4"_L1,
            .mark = 1},
    ChipPin{.flow = Flow::Out,
            .pin = u"LDO 1",
            .net = "PP5V7_MESON_AVDDH"_L1,
            .volts = "iLDO_V(1)"_L1,
            .amps = "iLDO_A(1)"_L1,
            .deviation = "Porc1"_L1,
            .mark = 2},
    ChipPin{.flow = Flow::Out,
            .pin = u"LDO 2",
            .net = "PP5V7_LCM_AVDDH"_L1,
            .volts = "iLDO_V(2)"_L1,
            .amps = "iLDO_A(2)"_L1,
            .deviation = "Porc2"_L1,
            .mark = 3},
    ChipPin{.flow = Flow::Out,
            .pin = u"LDO 3",
            .net = "PP5V1_TOUCH_VDDH"_L1,
            .volts = "iLDO_V(3)"_L1,
            .amps = "iLDO_A(3)"_L1,
            .deviation = "Porc3"_L1,
            .mark = 4},
};

static constexpr ChipLook kLook{.pins = kPins, .note = "lbVarInfo"_L1};

Chestnut::Chestnut(Session &session, QWidget *parent)
    : ChipForm(std::make_unique<ChestnutScreen>(session), kLook, {named(new QPushButton, u"btTouch"_s)}, parent)
{
    auto &chestnut = static_cast<ChestnutScreen &>(screen());
    connect(findChild<QPushButton *>(u"btTouch"_s), &QPushButton::clicked, &chestnut, &ChestnutScreen::btTouch_Click);
}
