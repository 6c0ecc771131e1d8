#include "home.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QOperatingSystemVersion>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

static QString defaultHome()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/tavimo-prelt"_s;
}

bool isHomeByDefault(const QString &given)
{
    return given.isEmpty() && qEnvironmentVariableIsEmpty("PRELT_HOME") && homeFolder() == defaultHome();
}

QString homeFolder(const QString &given)
{
    for (const QString &folder : {given, qEnvironmentVariable("PRELT_HOME")})
        if (!folder.isEmpty())
            return QDir::cleanPath(QDir(folder).absolutePath());
    const QString beside = QCoreApplication::applicationDirPath();
    if (QFileInfo::exists(configStore(beside)))
        return beside;
    return defaultHome();
}

QString configStore(const QString &home)
{
    return QDir(home).filePath(u"Config.pmx"_s);
}

QString stateFolder()
{
    const QString given = qEnvironmentVariable("XDG_STATE_HOME");
    if (QDir::isAbsolutePath(given)) // a relative one is to be ignored
        return QDir::cleanPath(given) + u"/tavimo-prelt"_s;
    const auto system = QOperatingSystemVersion::currentType();
    if (system == QOperatingSystemVersion::Windows || system == QOperatingSystemVersion::MacOS)
        return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/tavimo-prelt/state"_s;
    return QDir::homePath() + u"/.local/state/tavimo-prelt"_s;
}

QString userStore(const QString &home)
{
    return QDir(home).filePath(u"User.pmx"_s);
}
