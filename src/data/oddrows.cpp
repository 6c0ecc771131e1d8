#include "oddrows.h"

#include "modelbuses.h"
#include "models.h"
#include "numbertext.h"
#include "queries.h"
#include "settingkeys.h"
#include "store.h"

#include <QSqlError>

using namespace Qt::StringLiterals;

namespace {

/// What a row is about and what it says of it, as the queries for odd rows give it.
struct Told
{
    QString of;
    QString value;
};

bool isNoNumber(const Told &told)
{
    return !writtenNumber(withoutBlanks(told.value).replace(u',', u'.'));
}

bool isOfNoModel(const Told &told)
{
    return !modelNames().contains(told.value, Qt::CaseInsensitive);
}

bool isOnNoBus(const Told &told)
{
    const int bus = told.value.left(1).toInt();
    const bool isDigit = told.value.left(1) == QString::number(bus);
    return !isDigit || bus >= kBuses || busButton(told.of, bus) == BusButton::Hidden;
}

bool isOfNoBand(const Told &told)
{
    return !QStringList{u"T"_s, u"I"_s, u"Q"_s}.contains(told.value, Qt::CaseInsensitive);
}

// A picture may be on a disk that is not there today.
bool couldNotBeSet(const Told &told)
{
    const std::optional<Trouble> trouble = settingTrouble(told.of, told.value);
    return !told.value.isEmpty() && trouble && trouble->what.key == "SETTING_INVALID"_L1;
}

struct OddKind
{
    QLatin1StringView table;
    const Query *rows;
    bool (*isOdd)(const Told &told);
    QLatin1StringView what; ///< %1 what it is about, %2 what it says
    const Query *remedy;
};

constexpr OddKind kKinds[] = {
    {"Master"_L1, &kRailModels, &isOfNoModel, "the rail %1 is of no known model: %2"_L1, &kDropRail},
    {"Master"_L1, &kRailReferences, &isNoNumber, "the reference of %1 is no number: %2"_L1, &kClearReference},
    {"Rf"_L1, &kRfKinds, &isOfNoBand, "%1 is of no known kind: %2"_L1, &kDropRf},
    {"i"_L1, &kDevicesWithId, &isOnNoBus, "%1 has no such bus: %2"_L1, &kDropDevice},
    {"TakenReferences"_L1, &kTakenWithId, &isNoNumber, "the reference of %1 is no number: %2"_L1, &kDropTakenById},
    {"GoodBoards"_L1, &kGoodWithId, &isNoNumber, "the reading of %1 is no number: %2"_L1, &kDropGoodById},
    {"Settings"_L1, &kSettingsWithId, &couldNotBeSet, "%1 cannot be: %2"_L1, &kDropSetting},
};

Result<QList<OddRow>> oddRows(const Store &store, const OddKind &kind)
{
    Result<QSqlQuery> rows = store.run(*kind.rows);
    if (!rows)
        return rows.trouble();
    QList<OddRow> odd;
    while (rows->next()) {
        const Told told{rows->value(1).toString(), rows->value(2).toString()};
        if (kind.isOdd(told))
            odd += {{StoreFinding::Kind::Odd, kind.table,
                     QString(kind.what).arg(plainName(told.of), plainName(told.value)) + u" (removable)"_s},
                    rows->value(0).toLongLong(),
                    kind.remedy};
    }
    if (rows->lastError().isValid())
        return store.trouble(*rows);
    return odd;
}

} // namespace

Result<QList<OddRow>> oddRows(const Store &store)
{
    QList<OddRow> all;
    for (const OddKind &kind : kKinds) {
        const Result<QList<OddRow>> odd = oddRows(store, kind);
        if (!odd)
            return odd;
        all += *odd;
    }
    return all;
}

Result<int> removeOddRows(Store &store)
{
    Result<Transaction> transaction = Transaction::begin(store);
    if (!transaction)
        return transaction.trouble();
    const Result<QList<OddRow>> odd = oddRows(store);
    if (!odd)
        return odd.trouble();
    for (const OddRow &row : *odd)
        if (const auto removed = store.run(*row.remedy, {{u":id"_s, row.id}}); !removed)
            return removed.trouble();
    const Result<Done> committed = transaction->commit();
    return committed ? Result(static_cast<int>(odd->size())) : committed.trouble();
}
