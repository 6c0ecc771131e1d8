#include "powercommands.h"

#include "buckldoscreen.h"
#include "bucktestescreen.h"
#include "pmuscreen.h"
#include "vcoresreading.h"
#include "vcoresscreen.h"

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

static RailScreen &rails(Screen &screen)
{
    return static_cast<RailScreen &>(screen);
}

static constexpr std::array kVoltPlaces = {"1", "2", "3"};
static constexpr std::array kMilliPlaces = {"0", "1", "2", "3"};
static constexpr std::array kBuckLdoKinds = {"1", "2"};

static constexpr ScreenOption kVolts{
    "--volts", "decimal places of volts",
    [](Screen &screen, const QString &text) { rails(screen).ComboDecimais_Click(text); }, kVoltPlaces};
static constexpr ScreenOption kAmps{
    "--amps", "decimal places of milliamperes",
    [](Screen &screen, const QString &text) { rails(screen).ComboDecimaisAmp_Click(text); }, kMilliPlaces};

static void chooseKind(Screen &screen, const QString &text)
{
    rails(screen).chooseKind(text.toInt());
}

static constexpr ScreenOption kBuckLdoKind{"--kind", "1 LDOs, 2 bucks", chooseKind, kBuckLdoKinds, "2"};

static constexpr std::array kBuckLdoOptions = {kBuckLdoKind, kVolts, kAmps};

static constexpr std::array kPmuKinds = {"0", "1", "2"};

static std::string notAPercentage(const std::string &text)
{
    bool isNumber = false;
    const double percent = QString::fromStdString(text).replace(u',', u'.').toDouble(&isNumber);
    return isNumber && std::isfinite(percent) && percent > 0 ? "" : text + " is no number above 0";
}

static constexpr ScreenOption kPmuKind{"--kind", "0 core rails, 1 LDOs, 2 bucks", chooseKind, kPmuKinds, "0"};
static constexpr ScreenOption kTolerance{
    .name = "--tolerance",
    .help = "per cent that an output may be off",
    .give = [](Screen &screen, const QString &text) { static_cast<PMUScreen &>(screen).PorcTolerancia_Change(text); },
    .preset = "10",
    .complaint = notAPercentage};

static constexpr std::array kPmuOptions = {kPmuKind, kTolerance, kVolts, kAmps};

static constexpr std::array kVCoreEntries = {"IC's", "CPU/NAND", "CPU", "GPU", "NAND"};

static void chooseChip(Screen &screen, const QString &text)
{
    const auto choices = chipChoices();
    const auto found = std::ranges::find(choices, text, &ChipChoice::entry);
    static_cast<VCoresScreen &>(screen).cbICs_Click(static_cast<int>(found - choices.begin()));
}

static constexpr ScreenOption kVCoreChip{"--ic", "only the rails of this chip", chooseChip, kVCoreEntries};

static constexpr std::array kVCoreOptions = {kVCoreChip, kVolts, kAmps};

static constexpr std::array kBucks = {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11"};

static BuckTesteScreen &bucks(Screen &screen)
{
    return static_cast<BuckTesteScreen &>(screen);
}

static constexpr ScreenOption kBuck{
    .name = "--buck",
    .help = "number of the buck",
    .give = [](Screen &screen, const QString &text) { bucks(screen).Combo1_Change(text); },
    .choices = kBucks,
    .need = ScreenOption::Need::OneOf};
static constexpr ScreenOption kAllBucks{.name = "--all",
                                        .help = "every buck of the model",
                                        .give = [](Screen &screen, const QString &) { bucks(screen).chooseAll(); },
                                        .need = ScreenOption::Need::OneOf,
                                        .takes = ScreenOption::Takes::Nothing,
                                        .use = ScreenOption::Use::OnPhone};

static constexpr std::array kBuckTestOptions = {kBuck, kAllBucks};

static constexpr std::array kScreens = {
    ScreenCommand{"buckldo"_L1, "bucks and LDOs beside their references"_L1, makeScreen<BuckLdoScreen>, kBuckLdoOptions,
                  Reported::Yes},
    ScreenCommand{"vcore"_L1, "core rails beside their references"_L1, makeScreen<VCoresScreen>, kVCoreOptions,
                  Reported::Yes},
    ScreenCommand{"pmu"_L1, "outputs of the PMU by a tolerance"_L1, makeScreen<PMUScreen>, kPmuOptions},
    ScreenCommand{"bucktest"_L1, "the phone's own check of its bucks"_L1, makeScreen<BuckTesteScreen>,
                  kBuckTestOptions},
};

std::span<const ScreenCommand> powerCommands()
{
    return kScreens;
}
