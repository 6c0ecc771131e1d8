#include "ownfolders.h"

#include "exchangefile.h"
#include "home.h"
#include "ownfiles.h"

#include <QStringList>

using namespace Qt::StringLiterals;

static void append(const QByteArray &line)
{
    ExchangeFile(stateFolder(), {}).append(line);
}

void keepFoldersToOwner(const QString &givenHome)
{
    QStringList folders{stateFolder()};
    if (isHomeByDefault(givenHome))
        folders += homeFolder();
    for (const QString &folder : folders) {
        const int closed = closeToOthers(folder);
        if (closed > 0)
            append("# closed to all but their owner: " + QByteArray::number(closed) + " files and folders in " +
                   folder.toUtf8() + '\n');
    }
}
