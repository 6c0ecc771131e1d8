#include "userstore.h"

#include "completion.h"
#include "queries.h"
#include "quietstore.h"
#include "storeinspection.h"
#include "storetrouble.h"

#include <QFileInfo>
#include <QSqlError>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

struct Taken
{
    QLatin1StringView placeholder;
    QLatin1StringView column;
};

constexpr Taken kRail[] = {{":model"_L1, "Modelo"_L1}, {":net"_L1, "Malha"_L1}, {":kind"_L1, "TIPO"_L1},
                           {":output"_L1, "Orig"_L1},  {":G1"_L1, "G1"_L1},     {":G2"_L1, "G2"_L1},
                           {":G3"_L1, "G3"_L1}};
constexpr Taken kCommandRow[] = {
    {":Comando"_L1, "Comando"_L1}, {":Info"_L1, "Info"_L1}, {":Info2"_L1, "Info2"_L1}, {":Info3"_L1, "Info3"_L1}};
constexpr Taken kCombosRow[] = {{":Combo1"_L1, "Combo1"_L1},  {":Combo2"_L1, "Combo2"_L1}, {":Combo3"_L1, "Combo3"_L1},
                                {":Combo4"_L1, "Combo4"_L1},  {":Combo5"_L1, "Combo5"_L1}, {":Combo6"_L1, "Combo6"_L1},
                                {":Combo7"_L1, "Combo7"_L1},  {":Combo8"_L1, "Combo8"_L1}, {":Combo9"_L1, "Combo9"_L1},
                                {":Combo10"_L1, "Combo10"_L1}};

Result<QList<QVariantMap>> rowsOf(const Store &store, const Query &query, std::span<const Taken> columns)
{
    Result<QSqlQuery> rows = store.run(query);
    if (!rows)
        return rows.trouble();
    QList<QVariantMap> found;
    while (rows->next()) {
        QVariantMap row;
        for (const Taken &taken : columns)
            row.insert(taken.placeholder, rows->value(taken.column).toString());
        found += row;
    }
    if (rows->lastError().isValid())
        return store.trouble(*rows);
    return found;
}

Result<Done> readRecordings(const Store &store, UserStore &user)
{
    const Result<QList<KeptRecording>> all = allRecordings(store);
    if (!all)
        return all.trouble();
    for (const auto &[recording, integrity] : *all) {
        if (integrity == Integrity::Changed)
            ++user.damaged;
        else
            user.recordings += recording;
    }
    return Done{};
}

Result<UserStore> everythingIn(const Store &store)
{
    struct Part
    {
        QList<QVariantMap> UserStore::*rows;
        const Query *query;
        std::span<const Taken> columns;
    };
    static constexpr Part kParts[] = {{&UserStore::rails, &kMaster, kRail},
                                      {&UserStore::commands, &kCommands, kCommandRow},
                                      {&UserStore::combos, &kCombos, kCombosRow}};
    UserStore user;
    for (const Part &part : kParts) {
        const auto rows = rowsOf(store, *part.query, part.columns);
        if (!rows)
            return rows.trouble();
        user.*part.rows = *rows;
    }
    const Result<Done> recordings = readRecordings(store, user);
    return recordings ? Result(user) : recordings.trouble();
}

} // namespace

Result<UserStore> readUserStore(const QString &path)
{
    constexpr auto kPatience = 5s;
    if (!QFileInfo::exists(path)) // the advice for a missing store would be to make one
        return storeTrouble(u"STORE_FAILED"_s, path, u"no such file"_s);
    if (const Result<Done> trusted = inspectStore(path, StoreRole::User, Depth::Whole, kPatience); !trusted)
        return trusted.trouble();
    const Result<QuietStore> quiet = QuietStore::open(path, kPatience);
    if (!quiet)
        return quiet.trouble();
    if (const Result<Done> completed = completeForReading(quiet->store()); !completed)
        return toldOf(path, completed.trouble());
    const Result<UserStore> user = everythingIn(quiet->store());
    return user ? user : toldOf(path, user.trouble());
}
