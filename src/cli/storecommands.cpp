#include "storecommands.h"

#include "home.h"
#include "json.h"
#include "portlist.h"
#include "seeds.h"
#include "terminal.h"

#include <QDir>
#include <QJsonArray>

using namespace Qt::StringLiterals;

ExitCode initStore(const CommonOptions &options)
{
    const Language language = options.language.value_or(Language::English);
    const QString home = homeFolder(options.home);
    const QString path = configStore(home);
    const Result<Done> made =
        QDir().mkpath(home) ? createStore(path) : Trouble{{u"STORE_FAILED"_s, {path, u"mkdir"_s}}};
    if (!made) {
        printError(oneLine(made.trouble(), language));
        return ExitCode::Store;
    }
    printOut(path + u'\n');
    return ExitCode::Good;
}

ExitCode listPorts(const CommonOptions &options)
{
    const Language language = options.language.value_or(Language::English);
    const QList<PortEntry> ports = portsOfThisMachine();
    QJsonArray array;
    QList<QStringList> rows;
    for (const PortEntry &port : ports) {
        array.append(QJsonObject{{u"number"_s, port.number},
                                 {u"device"_s, port.device},
                                 {u"maker"_s, port.maker},
                                 {u"serial"_s, port.serialNumber}});
        rows.append({u"COM"_s + QString::number(port.number), port.device, port.maker, port.serialNumber});
    }
    if (options.json)
        printOut(document({{u"ports"_s, array}}));
    else if (rows.isEmpty())
        printError(oneLine({{u"REMEDY_NO_PORT"_s}}, language));
    else
        printOut(aligned(rows, {Qt::AlignLeft, Qt::AlignLeft, Qt::AlignLeft, Qt::AlignLeft}));
    return ExitCode::Good;
}
