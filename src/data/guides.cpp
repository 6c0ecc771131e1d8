#include "guides.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <array>

using namespace Qt::StringLiterals;

/// Beside the folder of the executables, as a build and an installation both have it.
static QString installedFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/../share/tavimo-prelt"_s);
}

Result<QString> guide(const QString &home, const QString &fileName)
{
    const std::array folders = {home, installedFolder()};
    for (const QString &folder : folders) {
        const QString path = QDir(folder).filePath(fileName);
        if (QFileInfo(path).isFile())
            return path;
    }
    const auto shown = [](const QString &folder) { return QDir::toNativeSeparators(folder); };
    return Trouble{{u"GUIDE_MISSING"_s, {fileName, shown(folders[0]), shown(folders[1])}}};
}

QString commandReference(Language language)
{
    switch (language) {
    case Language::Portuguese:
        return u"xEDK_BR.pdf"_s;
    case Language::Spanish:
        return u"xEDK_ES.pdf"_s;
    case Language::English:
        break;
    }
    return u"xEDK_USA.pdf"_s;
}
