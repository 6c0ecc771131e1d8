#include "screentable.h"

#include "buckldoscreen.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

template <typename T>
static std::unique_ptr<Screen> make(Session &session)
{
    return std::make_unique<T>(session);
}

static void applyRailOptions(Screen &screen, const ScreenOptions &options)
{
    auto &rails = static_cast<RailScreen &>(screen);
    rails.chooseKind(options.kind);
    rails.ComboDecimais_Click(options.volts);
    rails.ComboDecimaisAmp_Click(options.amps);
}

static constexpr std::array kScreens = {
    ScreenCommand{"buckldo"_L1, "bucks and LDOs beside their references"_L1, true, true, make<BuckLdoScreen>,
                  applyRailOptions},
};

std::span<const ScreenCommand> screenCommands()
{
    return kScreens;
}

const ScreenCommand *screenByCommand(const QString &command)
{
    const auto found = std::ranges::find_if(kScreens, [&](const auto &row) { return row.command == command; });
    return found == kScreens.end() ? nullptr : &*found;
}
