#include "ownfolders.h"

#include "exchangefile.h"
#include "home.h"
#include "ownfiles.h"

#include <QStringList>

using namespace Qt::StringLiterals;

void keepFoldersToOwner(const QString &givenHome)
{
    QStringList folders{stateFolder()};
    if (isHomeByDefault(givenHome))
        folders += homeFolder();
    QByteArray lines;
    for (const QString &folder : folders) {
        if (const int closed = closeToOthers(folder); closed > 0) {
            lines += "# closed to all but their owner: " + QByteArray::number(closed) + " files and folders in " +
                     folder.toUtf8() + '\n';
        }
    }
    if (!lines.isEmpty())
        ExchangeFile(stateFolder(), {}).append(lines);
}
