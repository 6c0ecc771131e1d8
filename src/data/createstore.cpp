#include "intoplace.h"
#include "ownfiles.h"
#include "queries.h"
#include "seedfilling.h"
#include "seeds.h"
#include "seedsources.h"
#include "store.h"
#include "storetrouble.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;

namespace {

// A device that is expected by mistake would be called silent, so the doubtful ones are left out. A doubtful rail only
// lends its name: it has no nominal to be judged by.
constexpr SeedFilling kFillings[] = {
    {"master"_L1, &kAddRail, "Modelo TIPO Orig Malha Ci RefT RefV REF"_L1},
    {"rf"_L1, &kAddRf, "Modelo Malha Componente Valor Tipo"_L1},
    {"i2c"_L1, &kAddDevice, "Aparelho i"_L1, "low"_L1},
    {"commands"_L1, &kAddCommand, "Comando Info Info2 Info3"_L1},
};

Result<Done> fillAll(const Store &store)
{
    if (const Result<Done> filled = fillFromSeeds(store, kFillings); !filled)
        return filled;
    for (const Query *row : {&kAddTools, &kAddCombos})
        if (const Result<QSqlQuery> added = store.run(*row); !added)
            return added.trouble();
    return takeSeedSources(store);
}

Result<Done> build(const QString &emptyFile)
{
    Result<Store> store = Store::makeTables(emptyFile);
    if (!store)
        return store.trouble();
    Result<Transaction> transaction = Transaction::begin(*store);
    if (!transaction)
        return transaction.trouble();
    if (const Result<Done> filled = fillAll(*store); !filled)
        return filled;
    return transaction->commit();
}

} // namespace

Result<Done> createStore(const QString &path)
{
    const QFileInfo target(path);
    if (const std::optional<Trouble> broken = troubleWithPath(path))
        return *broken;
    if (target.exists())
        return storeTrouble(u"STORE_EXISTS"_s, path, {});
    if (!makeOwnFolder(target.absolutePath()))
        return storeTrouble(u"STORE_FAILED"_s, path, u"its folder cannot be made"_s);
    // Beside the target, to be on the same disk; removed when this function ends.
    QTemporaryFile made(target.absoluteFilePath() + u".XXXXXX"_s);
    if (!made.open())
        return storeTrouble(u"STORE_FAILED"_s, path, made.errorString());
    keepToOwner(made.fileName(), target.absolutePath());
    const QString name = made.fileName();
    made.close();
    if (const Result<Done> built = build(name); !built)
        return toldOf(path, built.trouble());
    return moveIntoPlace(name, path);
}
