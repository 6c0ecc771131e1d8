#include "displayguard.h"
#include "home.h"
#include "icons.h"
#include "startup.h"
#include "stopsignals.h"
#include "storeinspection.h"

#include <QApplication>
#include <QFileInfo>
#include <QSplashScreen>

#include <memory>

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
    if (!QFileInfo::exists(store)) {
        splash.close();
        showStoreMissing(store);
        QApplication::exec();
        return kNoStore;
    }
    // A store of a later version can be read; that it is not written is told with the first thing to be kept.
    const Result<Done> sound = inspectStore(store, StoreRole::Reference, Depth::Quick);
    if (!sound && sound.trouble().what.key != "STORE_NEWER"_L1) {
        splash.close();
        showStoreRefused(sound.trouble());
        QApplication::exec();
        return kNoStore;
    }
    Startup startup(options);
    applyStyleSheet(*app);
    startup.begin();
    splash.close();
    return QApplication::exec();
}
