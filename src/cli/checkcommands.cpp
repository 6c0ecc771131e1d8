#include "checkcommands.h"

#include "complaint.h"
#include "displaysscreen.h"
#include "i2cscreen.h"
#include "nandscreen.h"
#include "outrosscreen.h"
#include "rfsscreen.h"

#include <array>

using namespace Qt::StringLiterals;

static constexpr std::array kNandTests = {"0", "1", "2", "3"};
static constexpr std::array kNandOptions = {ScreenOption{
    "--test", "0 unique number, 1 size, 2 information, 3 stored configuration",
    [](Screen &screen, const QString &text) { static_cast<NandScreen &>(screen).chooseTest(text.toInt()); }, kNandTests,
    "0"}};

static constexpr std::array kMemoryTests = {"5", "6"};
static constexpr std::array kMemoryOptions = {ScreenOption{
    "--test", "5 all of it, 6 one megabyte, read and write",
    [](Screen &screen, const QString &text) { static_cast<OutrosScreen &>(screen).chooseTest(text.toInt()); },
    kMemoryTests, "5"}};

static RFsScreen &radios(Screen &screen)
{
    return static_cast<RFsScreen &>(screen);
}

static void chooseAction(Screen &screen, const QString &text)
{
    const bool isOn = text == "on"_L1;
    radios(screen).chooseAction(isOn ? RadioAction::On : text == "off"_L1 ? RadioAction::Off : RadioAction::Properties);
}

static constexpr std::array kRadioNumbers = {"0", "1", "2", "3"};
static constexpr std::array kActions = {"on", "off", "properties"};
static constexpr std::array kRadioOptions = {
    ScreenOption{"--radio", "0 baseband, 1 Bluetooth, 2 Wi-Fi, 3 GPS",
                 [](Screen &screen, const QString &text) { radios(screen).chooseRadio(text.toInt()); }, kRadioNumbers,
                 "0"},
    ScreenOption{"--action", "what it is to do", chooseAction, kActions, "on"},
};

static constexpr std::array kBusNumbers = {"0", "1", "2", "3", "4", "5", "6", "7"};
static constexpr std::array kBusOptions = {
    ScreenOption{
        .name = "--bus",
        .help = "the bus to scan",
        .give = [](Screen &screen, const QString &text) { static_cast<I2CScreen &>(screen).chooseBus(text.toInt()); },
        .choices = kBusNumbers,
        .need = ScreenOption::Need::OneOf},
    ScreenOption{.name = "--auto",
                 .help = "every bus of the model",
                 .give = [](Screen &screen, const QString &) { static_cast<I2CScreen &>(screen).chooseAuto(); },
                 .need = ScreenOption::Need::OneOf,
                 .takes = ScreenOption::Takes::Nothing,
                 .use = ScreenOption::Use::OnPhone},
};

static std::string notAButton(const std::string &text)
{
    return DisplaysScreen::isButton(QString::fromStdString(text)) ? "" : text + " is no button of the display";
}

static constexpr std::array kDisplayOptions = {
    ScreenOption{
        .name = "--text",
        .help = "what stands on the colour, one word",
        .give = [](Screen &screen,
                   const QString &text) { static_cast<DisplaysScreen &>(screen).txt_Texto_Cores_Change(text); },
        .complaint = displayTextComplaint},
    ScreenOption{
        .name = "--button",
        .help = "Cor_Azul and the other colours, bl:0 to bl:5, bl:8 (mode) or level:1 to level:3",
        .give = [](Screen &screen, const QString &text) { static_cast<DisplaysScreen &>(screen).chooseButton(text); },
        .preset = "bl:8",
        .complaint = notAButton},
};

static constexpr std::array kScreens = {
    ScreenCommand{"i2c"_L1, "which devices answer on the I2C buses"_L1, makeScreen<I2CScreen>, kBusOptions},
    ScreenCommand{"display"_L1, "display: colours, light and mode"_L1, makeScreen<DisplaysScreen>, kDisplayOptions},
    ScreenCommand{"rf"_L1, "radios: on, off, and what they say of themselves"_L1, makeScreen<RFsScreen>, kRadioOptions},
    ScreenCommand{"nand"_L1, "storage: whether it answers, its size and number"_L1, makeScreen<NandScreen>,
                  kNandOptions},
    ScreenCommand{"memory"_L1, "the phone's own test of its memory"_L1, makeScreen<OutrosScreen>, kMemoryOptions},
};

std::span<const ScreenCommand> checkCommands()
{
    return kScreens;
}
