#include "csv.h"
#include "intoplace.h"
#include "queries.h"
#include "seeds.h"
#include "store.h"
#include "storetrouble.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;

namespace {

/// A query that takes one row of a seed table, its placeholders named like the columns.
struct Filling
{
    QLatin1StringView seed;
    const Query *query;
    QLatin1StringView placeholders;
    QLatin1StringView unless = {}; ///< rows of this confidence stay out
};

// A device that is expected by mistake would be called silent, so the doubtful ones are left out. A doubtful rail only
// lends its name: it has no nominal to be judged by.
constexpr Filling kFillings[] = {
    {"master"_L1, &kAddRail, "Modelo TIPO Orig Malha Ci RefT RefV REF"_L1},
    {"master"_L1, &kAddRailSource, "Modelo TIPO Orig confidence source"_L1},
    {"rf"_L1, &kAddRf, "Modelo Malha Componente Valor Tipo"_L1},
    {"i2c"_L1, &kAddDevice, "Aparelho i"_L1, "low"_L1},
    {"commands"_L1, &kAddCommand, "Comando Info Info2 Info3"_L1},
};

Result<Done> fill(const Store &store, const Filling &filling)
{
    const SeedTable table = seedTable(filling.seed);
    const QStringList columns = QString(filling.placeholders).split(u' ');
    QSqlQuery add = store.prepared(*filling.query);
    for (const QStringList &row : table.rows) {
        if (!filling.unless.isEmpty() && table.cell(row, u"confidence") == filling.unless)
            continue;
        QVariantMap values;
        for (const QString &column : columns)
            values.insert(u':' + column, table.cell(row, column));
        if (const Result<Done> added = store.rerun(add, values); !added)
            return added;
    }
    return Done{};
}

Result<Done> fillAll(const Store &store)
{
    for (const Filling &filling : kFillings)
        if (const Result<Done> filled = fill(store, filling); !filled)
            return filled;
    for (const Query *row : {&kAddTools, &kAddCombos})
        if (const Result<QSqlQuery> added = store.run(*row); !added)
            return added.trouble();
    return Done{};
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

constexpr QFile::Permissions kForAllToRead = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther;

} // namespace

Result<Done> createStore(const QString &path)
{
    const QFileInfo target(path);
    if (target.exists() || target.isSymLink())
        return storeTrouble(u"STORE_EXISTS"_s, path, {});
    QDir().mkpath(target.absolutePath());
    // Beside the target, to be on the same disk; removed when this function ends.
    QTemporaryFile made(target.absoluteFilePath() + u".XXXXXX"_s);
    if (!made.open())
        return storeTrouble(u"STORE_FAILED"_s, path, made.errorString());
    made.setPermissions(kForAllToRead);
    const QString name = made.fileName();
    made.close();
    if (const Result<Done> built = build(name); !built)
        return toldOf(path, built.trouble());
    return moveIntoPlace(name, path);
}
