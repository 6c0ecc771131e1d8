#include "chipcommands.h"

#include "bateriascreen.h"
#include "chestnutscreen.h"
#include "chipscreens.h"
#include "icscreen.h"
#include "models.h"

#include <array>

using namespace Qt::StringLiterals;

static constexpr std::array kSelectors = {"1", "2"};
static constexpr std::array kICOptions = {ScreenOption{
    "--selector", "the chip's command: 1 its properties, 2 its registers",
    [](Screen &screen, const QString &text) { static_cast<ICScreen &>(screen).chooseSelector(text.toInt()); },
    kSelectors, "1"}};

static QLatin1StringView insteadOfAcorn(const QString &model)
{
    return hasOledPanel(model) ? ""_L1 : "chestnut"_L1;
}

static QLatin1StringView insteadOfChestnut(const QString &model)
{
    return hasOledPanel(model) ? "acorn"_L1 : ""_L1;
}

static constexpr std::array kScreens = {
    ScreenCommand{"tristar"_L1, "port controller and its rails"_L1, makeScreen<TristarScreen>},
    ScreenCommand{"tigris"_L1, "charger: USB power and battery"_L1, makeScreen<TigrisScreen>},
    ScreenCommand{
        "acorn"_L1, "display supply of the IP X"_L1, makeScreen<AcornScreen>, {}, Reported::Yes, insteadOfAcorn},
    ScreenCommand{"chestnut"_L1,
                  "display supply of the other models"_L1,
                  makeScreen<ChestnutScreen>,
                  {},
                  Reported::Yes,
                  insteadOfChestnut},
    ScreenCommand{"battery"_L1, "health and charge of the battery"_L1, makeScreen<BateriaScreen>},
    ScreenCommand{"ic"_L1, "whether the port controller answers"_L1, makeScreen<ICScreen>, kICOptions},
};

std::span<const ScreenCommand> chipCommands()
{
    return kScreens;
}
