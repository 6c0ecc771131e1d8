#include "vcoresreading.h"

#include <array>

using namespace Qt::StringLiterals;

/// Only the voltages of the graphics processor are left out here; its currents are measured.
static constexpr std::array kGraphics = {"Buck1"_L1, "Buck8"_L1};

static constexpr std::array kKinds = {RailKind{0, {}, u"VCore"}};
static constexpr std::array kResting = {"Frame1"_L1};

const RailScreenTraits &vcoresTraits()
{
    static constexpr RailScreenTraits kTraits{
        .name = "VCores"_L1,
        .code = "16"_L1,
        .title = "VCore"_L1,
        .rules = {RailRules::Key::Malha, "mABUCK0"_L1, kGraphics, false},
        .loadOrder = RailOrder::Malha,
        .malhaOrder = RailOrder::ModeloMalha,
        .icOrder = RailOrder::CiMalha,
        .voltDecimals = Combo::VCoreVolts,
        .milliDecimals = Combo::VCoreMilli,
        .kinds = kKinds,
        .readButton = "btExecutaLeitura"_L1,
        .restingControls = kResting,
        .report = "1"_L1,
    };
    return kTraits;
}

std::span<const ChipChoice> chipChoices()
{
    static constexpr std::array kChoices = {ChipChoice{u"IC's", {}}, ChipChoice{u"CPU/NAND", {}},
                                            ChipChoice{u"CPU", u"CPU"}, ChipChoice{u"GPU", u"GPU"},
                                            ChipChoice{u"NAND", u"NAND"}};
    return kChoices;
}
