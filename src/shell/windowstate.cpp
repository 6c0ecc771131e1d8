#include "windowstate.h"

#include <QSettings>

using namespace Qt::StringLiterals;

static constexpr auto kGeometry = "window/geometry";
static constexpr auto kScreens = "window/screens";
static constexpr auto kFront = "window/front";
static constexpr auto kPort = "link/port";

WindowState windowStateFrom(const QString &file)
{
    const QSettings kept(file, QSettings::IniFormat);
    const auto value = [&kept](const char *key) { return kept.value(QLatin1StringView(key)); };
    return {value(kGeometry).toByteArray(), value(kScreens).toStringList(), value(kFront).toString(),
            value(kPort).toString()};
}

bool keepWindowState(const WindowState &state, const QString &file)
{
    QSettings kept(file, QSettings::IniFormat);
    kept.setValue(QLatin1StringView(kGeometry), state.geometry);
    kept.setValue(QLatin1StringView(kScreens), state.screens);
    kept.setValue(QLatin1StringView(kFront), state.front);
    kept.setValue(QLatin1StringView(kPort), state.port);
    kept.sync();
    return kept.status() == QSettings::NoError;
}
