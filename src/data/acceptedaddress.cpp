#include "acceptedaddress.h"

#include "home.h"
#include "ownfiles.h"

#include <QFile>

using namespace Qt::StringLiterals;

static QString listFile()
{
    return stateFolder() + u"/addresses.txt"_s;
}

bool isAcceptedHere(const QString &address)
{
    QFile list(listFile());
    return list.open(QIODevice::ReadOnly) && list.readAll().split('\n').contains(address.toUtf8());
}

void acceptHere(const QString &address)
{
    if (address.isEmpty() || isAcceptedHere(address))
        return;
    makeOwnFolder(stateFolder());
    QFile list(listFile());
    if (list.open(QIODevice::WriteOnly | QIODevice::Append))
        list.write(address.toUtf8() + '\n');
    keepToOwner(listFile(), {});
}
