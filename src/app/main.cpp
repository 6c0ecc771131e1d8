#include "displayguard.h"
#include "home.h"
#include "icons.h"
#include "ownfolders.h"
#include "startup.h"
#include "stopsignals.h"
#include "storegate.h"

#include <QApplication>
#include <QSplashScreen>

#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

static constexpr int kNoStore = 4;

static void showSplash(QSplashScreen &splash)
{
    splash.setObjectName(u"xScreen"_s);
    splash.show();
    splash.showMessage(u"Tavimo Prelt 2.22"_s, Qt::AlignBottom | Qt::AlignHCenter, currentTheme().text);
}

static bool hasDisplay()
{
#ifdef Q_OS_LINUX
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
#else
    return true;
#endif
}

static std::unique_ptr<QApplication> application(int &argc, char **argv)
{
    const DisplayGuard guard;
    return std::make_unique<QApplication>(argc, argv);
}

static void showNoStore(const QString &path, const Trouble &trouble)
{
    if (trouble.what.key == "STORE_MISSING"_L1)
        showStoreMissing(path);
    else
        showStoreRefused(trouble);
}

int main(int argc, char **argv)
{
    if (!hasDisplay())
        return endWithoutDisplay("neither DISPLAY nor WAYLAND_DISPLAY is set");
    const std::unique_ptr<QApplication> app = application(argc, argv);
    const StopSignals stops;
    QObject::connect(&stops, &StopSignals::asked, app.get(), [] { QCoreApplication::exit(); });
    QApplication::setApplicationName(u"tavimo-prelt"_s);
    QApplication::setApplicationVersion(u"2.22"_s);
    const StartOptions options = startOptions(QApplication::arguments());
    applyTheme(options.theme.value_or(windowStateFrom(windowStateFile()).theme));
    QSplashScreen splash(programIcon().pixmap(192));
    showSplash(splash);

    const QString store = configStore(homeFolder(options.home));
    keepFoldersToOwner(options.home);
    StoreGate gate(store);
    std::optional<Startup> startup;
    int code = 0;
    QObject::connect(&gate, &StoreGate::opened, app.get(), [&] {
        startup.emplace(options);
        applyStyleSheet(*app);
        startup->begin();
        splash.close();
    });
    QObject::connect(&gate, &StoreGate::refused, app.get(), [&](const Trouble &trouble) {
        code = kNoStore;
        showNoStore(store, trouble);
        splash.close(); // the program ends with its last window
    });
    gate.TimerStore_Timer();
    const int ended = QApplication::exec();
    return code != 0 ? code : ended;
}
