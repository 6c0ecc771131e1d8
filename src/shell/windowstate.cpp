#include "windowstate.h"

#include "ownfiles.h"

#include <QFileInfo>
#include <QSettings>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

static constexpr auto kGeometry = "window/geometry";
static constexpr auto kScreens = "window/screens";
static constexpr auto kFront = "window/front";
static constexpr auto kPort = "link/port";
static constexpr auto kTheme = "window/theme";

/// The words for the themes, in their order.
static constexpr std::array kThemes = {"desktop"_L1, "light"_L1, "dark"_L1};

static ThemeChoice themeOf(const QString &word)
{
    const auto found = std::ranges::find(kThemes, word);
    return found == kThemes.end() ? ThemeChoice::Desktop : static_cast<ThemeChoice>(found - kThemes.begin());
}

WindowState windowStateFrom(const QString &file)
{
    const QSettings kept(file, QSettings::IniFormat);
    const auto value = [&kept](const char *key) { return kept.value(QLatin1StringView(key)); };
    return {value(kGeometry).toByteArray(), value(kScreens).toStringList(), value(kFront).toString(),
            value(kPort).toString(), themeOf(value(kTheme).toString())};
}

bool keepWindowState(const WindowState &state, const QString &file)
{
    const QString folder = QFileInfo(file).absolutePath();
    makeOwnFolder(folder);
    QSettings kept(file, QSettings::IniFormat);
    kept.setValue(QLatin1StringView(kGeometry), state.geometry);
    kept.setValue(QLatin1StringView(kScreens), state.screens);
    kept.setValue(QLatin1StringView(kFront), state.front);
    kept.setValue(QLatin1StringView(kPort), state.port);
    kept.setValue(QLatin1StringView(kTheme), QString(kThemes.at(static_cast<std::size_t>(state.theme))));
    kept.sync();
    keepToOwner(file, folder);
    return kept.status() == QSettings::NoError;
}
