#include "home.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

QString homeFolder(const QString &given)
{
    for (const QString &folder : {given, qEnvironmentVariable("PRELT_HOME")})
        if (!folder.isEmpty())
            return QDir::cleanPath(QDir(folder).absolutePath());
    const QString beside = QCoreApplication::applicationDirPath();
    if (QFileInfo::exists(configStore(beside)))
        return beside;
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/tavimo-prelt"_s;
}

QString configStore(const QString &home)
{
    return QDir(home).filePath(u"Config.pmx"_s);
}
