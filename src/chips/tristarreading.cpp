#include "tristarreading.h"

#include "catalogue.h"
#include "models.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr ChipManner kRail{.pass = Tinted::Deviation, .fault = Tinted::Both, .gap = Tinted::Deviation};
/// A current at its ceiling overrules the voltage of its rail; the percentage shown stays the voltage's.
constexpr ChipManner kCeiling{.fault = Tinted::Both, .gapText = GapText::Dash, .speaks = Speaks::AtFault};
constexpr ChipManner kPlain{.gapText = GapText::Dash};

/// What differs between the models: the output of the first rail, the names of the nets, the ceiling.
struct Generation
{
    QLatin1StringView models; ///< how their names begin; empty: all others
    QLatin1StringView ldo;
    QLatin1StringView ildo;
    std::array<QLatin1StringView, 3> nets;
    QLatin1StringView ceiling;
};

using Rows = std::array<ChipRow, 6>;

constexpr Rows rowsOf(const Generation &generation)
{
    const auto [first, second, accessory] = generation.nets;
    return {{
        {generation.ldo, "Malha1_V"_L1, first, ChipUnit::Volt, kRail, "3.000"_L1, Rule::tenPercent(), "Porc1"_L1, 1},
        {generation.ildo, "Malha1_A"_L1, first, ChipUnit::Milliampere, kCeiling, generation.ceiling, Rule::ceiling(),
         "Porc1"_L1, 1},
        {"BIST buck3:"_L1, "Malha2_V"_L1, second, ChipUnit::Volt, kRail, "1.800"_L1, Rule::tenPercent(), "Porc2"_L1, 2},
        {"ibuck3:"_L1, "Malha2_A"_L1, second, ChipUnit::Milliampere, kPlain},
        {"BIST ldo6:"_L1, "Malha3_V"_L1, accessory, ChipUnit::Volt, kPlain},
        {"BIST ildo6:"_L1, "Malha3_A"_L1, accessory, ChipUnit::Milliampere, kPlain},
    }};
}

constexpr std::array<QLatin1StringView, 3> kNets6 = {"PP3V0_TRISTAR"_L1, "PP1V8_SDRAM"_L1, "PP3V3_ACC"_L1};
constexpr std::array<QLatin1StringView, 3> kNets7 = {"PP3V0_TRISTAR_ANT_PROX"_L1, "PP1V8_SDRAM"_L1, "PP_ACC_VAR"_L1};
constexpr std::array<QLatin1StringView, 3> kNets8 = {"PP3V0_S2"_L1, "PP1V8_S2"_L1, "PP_ACC_VAR"_L1};

constexpr std::array kGenerations = {
    Generation{"IP 6"_L1, "BIST ldo3:"_L1, "BIST ildo3:"_L1, kNets6, "1.700"_L1},
    Generation{"IP 7"_L1, "BIST ldo7:"_L1, "BIST ildo7:"_L1, kNets7, "1.700"_L1},
    Generation{"IP 8"_L1, "BIST ldo7:"_L1, "BIST ildo7:"_L1, kNets8, "3.350"_L1},
    Generation{"IP X"_L1, "BIST ldo7:"_L1, "BIST ildo7:"_L1, kNets8, "3.350"_L1},
    Generation{{}, "BIST ldo7:"_L1, "BIST ildo7:"_L1, kNets8, "1.700"_L1},
};

constexpr std::array kDesignators = {
    Designator{"IP 6"_L1, "U1700"_L1}, Designator{"IP 6 Plus"_L1, "U1700"_L1},  Designator{"IP 6s"_L1, "U4500"_L1},
    Designator{"IP 7"_L1, "U4001"_L1}, Designator{"IP 6s Plus"_L1, "U4500"_L1}, Designator{"IP 7 Plus"_L1, "U4001"_L1},
    Designator{"IP 8"_L1, "U6300"_L1}, Designator{"IP 8 Plus"_L1, "U6300"_L1},  Designator{"IP X"_L1, "U6300"_L1},
};

const Generation &generationOf(const QString &model)
{
    const auto last = kGenerations.end() - 1; // all others: a model that is not known yet, too
    return *std::find_if(kGenerations.begin(), last,
                         [&](const Generation &row) { return model.startsWith(row.models); });
}

bool isFault(const Judgement &judgement)
{
    return judgement.verdict == Verdict::Fail;
}

/// The head of the reading says "NORMAL" in any case, in green only without a fault; nothing is expected of the
/// accessory rail.
void showHead(Panel &panel, Language language)
{
    const bool isFaulty = std::ranges::any_of(panel.judgements, isFault);
    panel.fields[u"lbStatus"_s] = {.text = caption(u"NORMAL", language),
                                   .fore = isFaulty ? Colour::Text : Colour::Status};
    panel.fields[u"Porc3"_s] = {.text = u"ACC"_s, .back = Colour::Pass};
    setMark(panel, 0, Verdict::Pass, language);
    setMark(panel, 3, Verdict::Pass, language);
}

} // namespace

Panel readTristar(const ChipInput &input)
{
    const Generation &generation = generationOf(input.model);
    const Rows rows = rowsOf(generation);
    const bool isHydra = isNewestGeneration(input.model);
    Panel panel = readChip({"Tristar"_L1, isHydra ? "HYDRA"_L1 : "TRISTAR"_L1, rows, 4, kDesignators}, input);
    panel.title = (isHydra ? u"Hydra"_s : u"Tristar"_s) + " - Tavimo Prelt"_L1;
    for (int rail = 1; rail <= 3; ++rail)
        panel.fields[u"lbNomeMalha%1"_s.arg(rail)].text = generation.nets.at(static_cast<std::size_t>(rail - 1));
    panel.fields[u"lbStatus"_s] = {.text = QString(), .fore = Colour::Status};
    panel.fields[u"Porc3"_s] = {.text = QString(), .back = Colour::Neutral};
    panel.fields[u"lbStatus2"_s] = {.text = caption(u"ANALISE COMPLETA", input.language) + " * ACC = 0 V"_L1,
                                    .visible = !input.reply.isEmpty()};
    if (!input.reply.isEmpty())
        showHead(panel, input.language);
    return panel;
}
