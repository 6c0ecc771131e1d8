#include "buckldoreading.h"

#include <array>

using namespace Qt::StringLiterals;

/// The graphics processor is off in diagnostics mode: its supplies show nothing.
static constexpr std::array kGraphics = {"Buck1"_L1, "Buck8"_L1, "mABuck1"_L1, "mABuck8"_L1};

static constexpr std::array kResting = {"Frame1"_L1, "Botao3"_L1};

static constexpr std::array kKinds = {RailKind{2, u"Botao1", u"Bucks"}, RailKind{1, u"Botao2", u"LDOs"}};

const RailScreenTraits &buckLdoTraits()
{
    static constexpr RailScreenTraits kTraits{
        .name = "BuckLdo"_L1,
        .code = "15"_L1,
        .title = "Buck & Ldo"_L1,
        .rules = {RailRules::Key::Orig, "mABuck0"_L1, kGraphics, true},
        .loadOrder = RailOrder::Orig,
        .malhaOrder = RailOrder::ModeloOrig,
        .icOrder = RailOrder::CiOrig,
        .voltDecimals = Combo::BuckLdoVolts,
        .milliDecimals = Combo::BuckLdoMilli,
        .kinds = kKinds,
        .readButton = "Botao4"_L1,
        .restingControls = kResting,
        .report = "2"_L1,
    };
    return kTraits;
}
