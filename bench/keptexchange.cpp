#include "keptexchange.h"

#include "exchangeline.h"
#include "home.h"

#include <QDir>
#include <QDirIterator>

using namespace Qt::StringLiterals;

static QStringList logFiles()
{
    QStringList files;
    for (QDirIterator found(stateFolder(), {u"exchange-*.log"_s}, QDir::Files, QDirIterator::Subdirectories);
         found.hasNext();)
        files += found.next();
    files.sort();
    return files;
}

QByteArray keptExchange()
{
    QByteArray kept;
    for (const QString &path : logFiles()) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            continue;
        while (!file.atEnd())
            if (const auto exchange = exchangeOf(file.readLine());
                exchange && exchange->direction == Exchange::Direction::FromPhone)
                kept += exchange->bytes;
    }
    return kept;
}
