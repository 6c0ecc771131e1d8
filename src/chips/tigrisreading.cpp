#include "tigrisreading.h"

#include "catalogue.h"
#include "models.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr ChipManner kWarned{.pass = Tinted::Value, .fault = Tinted::Value};
/// USB power counts as present only when it stands well above its reference.
constexpr Rule kPresent = Rule::atLeast(8);
constexpr Rule kNotLow = Rule::above(-10);

constexpr ChipRow watched(QLatin1StringView label, QLatin1StringView control, QLatin1StringView pin,
                          QLatin1StringView reference, const Rule &rule, QLatin1StringView warning)
{
    return {label, control, pin, ChipUnit::Volt, kWarned, reference, rule, {}, -1, warning};
}

constexpr std::array kRows = {
    watched("tigris vbus :"_L1, "VBus_V"_L1, "VBUS"_L1, "4.045"_L1, kPresent, "Baixa1"_L1),
    ChipRow{"tigris ibus :"_L1, "VBus_A"_L1, "VBUS"_L1, ChipUnit::Milliampere},
    watched("tigris vbat :"_L1, "VBat_V"_L1, "VBAT"_L1, "4.000"_L1, kNotLow, "Baixa3"_L1),
    ChipRow{"tigris ibat :"_L1, "VBat_A"_L1, "VBAT"_L1, ChipUnit::Milliampere},
    ChipRow{"tigris vdd :"_L1, "VDD_V"_L1, "VDD"_L1},
    ChipRow{"tigris die_temp :"_L1, "Temp"_L1, "DIE TEMP"_L1, ChipUnit::Celsius},
    watched("tigris vbus1 :"_L1, "VBus_V1"_L1, "VBUS 1"_L1, "4.045"_L1, kPresent, "Baixa2"_L1),
    ChipRow{"tigris vbus2 :"_L1, "VBus_V2"_L1, "VBUS 2"_L1},
    ChipRow{"tigris vldo :"_L1, "lbVldo"_L1, "VLDO"_L1},
    ChipRow{"tigris vntc :"_L1, "lbvntc"_L1, "VNTC"_L1},
};
constexpr std::size_t kRowsOfOneInput = 6;

constexpr std::array kDesignators = {
    Designator{"IP 6"_L1, "U1401"_L1},  Designator{"IP 6 Plus"_L1, "U1401"_L1},
    Designator{"IP 6s"_L1, "U2300"_L1}, Designator{"IP 6s Plus"_L1, "U2300"_L1},
    Designator{"IP 7"_L1, "U2101"_L1},  Designator{"IP 7 Plus"_L1, "U2101"_L1},
    Designator{"IP 8"_L1, "U3300"_L1},  Designator{"IP 8 Plus"_L1, "U3300"_L1},
    Designator{"IP X"_L1, "U3300"_L1},
};

bool isReading(const Panel &panel, QStringView pin)
{
    return std::ranges::any_of(panel.facts, [&](const Row &fact) {
        return fact.cell(u"Malha") == pin && fact.cell(u"Leitura").endsWith(" V"_L1);
    });
}

void tintPlainRails(Panel &panel)
{
    if (isReading(panel, u"VDD") && !isShown(panel, u"Baixa3"_s))
        panel.fields[u"VDD_V"_s].back = Colour::Pass;
    if (isReading(panel, u"VBUS 2"))
        panel.fields[u"VBus_V2"_s].back = Colour::Pass;
}

/// What the chip of the earlier models does not print must not stay from another phone.
void hideSecondInput(Panel &panel)
{
    for (const ChipRow &row : std::span(kRows).subspan(kRowsOfOneInput))
        panel.fields[row.control] = {.text = QString(), .back = Colour::Neutral};
}

/// The models with two inputs show each of them; the current is that of both.
void showInputs(Panel &panel, bool hasTwo)
{
    if (!hasTwo)
        hideSecondInput(panel);
    panel.fields[u"lb_VBus1"_s].text = hasTwo ? u"VBUS 1"_s : u"VBUS"_s;
    panel.fields[u"lb_VBus2"_s].text = u"VBUS 2"_s;
    panel.fields[u"lb_Vbus_Line2"_s].text = u"VBUS"_s;
    panel.fields[u"Label2"_s].text = u"VLDO"_s;
    panel.fields[u"Label3"_s].text = u"VNTC"_s;
    for (const auto &name : {u"VBus_A1"_s, u"VBus_A2"_s})
        panel.fields[name].text = panel.fields[u"VBus_A"_s].text;
    for (const auto &name : {u"FrameVbusX"_s, u"lb_VBus2"_s, u"lb_Vbus_Line2"_s, u"VBus_V1"_s, u"VBus_A1"_s,
                             u"lbVldo"_s, u"lbvntc"_s, u"Label2"_s, u"Label3"_s})
        panel.fields[name].visible = hasTwo;
}

} // namespace

Panel readTigris(const ChipInput &input)
{
    const bool hasTwo = isNewestGeneration(input.model);
    const std::span<const ChipRow> all(kRows);
    Panel panel =
        readChip({"Tigris"_L1, "TIGRIS"_L1, hasTwo ? all : all.first(kRowsOfOneInput), 0, kDesignators}, input);
    panel.title = u"Tigris - Tavimo Prelt"_s;
    panel.fields[u"lbVarInfo"_s].text = caption(u"VAR", input.language).remove(u"  "_s);
    for (const auto &low : {u"Baixa1"_s, u"Baixa2"_s, u"Baixa3"_s}) {
        panel.fields[low].text = caption(u"Baixa", input.language) + "* "_L1;
        panel.fields[low].visible = isShown(panel, low);
    }
    tintPlainRails(panel);
    showInputs(panel, hasTwo);
    return panel;
}
