#include "ladder.h"

#include "completion.h"
#include "identities.h"
#include "layoutbackup.h"
#include "queries.h"
#include "schema.h"
#include "schemacheck.h"
#include "seedsources.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// What makes a layout of the one before it. It may be taken again.
struct Step
{
    int version;
    Result<Done> (*take)(const Store &store);
};

// Every step finds the tables and columns of the newest layout: the first one adds them all.
constexpr Step kSteps[] = {
    {1, &complete},
    {2, &giveIdentities},
    {3, &takeSeedSources},
};

static_assert(std::ranges::is_sorted(kSteps, {}, &Step::version) &&
              std::ranges::rbegin(kSteps)->version == kSchemaVersion);

Result<int> versionOf(const Store &store)
{
    Result<QSqlQuery> ids = store.run(kStoreIds);
    if (!ids)
        return ids.trouble();
    return ids->next() ? Result(ids->value(1).toInt()) : store.trouble(*ids);
}

Result<bool> isNeeded(const Store &store, const Step &step)
{
    const Result<int> version = versionOf(store);
    if (!version || *version < step.version || step.take != &complete)
        return version ? Result(*version < step.version) : version.trouble();
    const Result<bool> completed = isComplete(store);
    return completed ? Result(!*completed) : completed.trouble();
}

Result<Done> mark(const Store &store, int version)
{
    const QString marks[] = {u"PRAGMA application_id=%1"_s.arg(kApplicationId),
                             u"PRAGMA user_version=%1"_s.arg(version)};
    for (const QString &statement : marks) {
        const std::string text = statement.toStdString();
        if (const auto marked = store.run({"", text}); !marked)
            return marked.trouble();
    }
    return Done{};
}

Result<Done> takeWithin(const Store &store, const Step &step)
{
    const Result<int> version = versionOf(store);
    if (!version)
        return version.trouble();
    if (const Result<Done> taken = step.take(store); !taken)
        return taken;
    return mark(store, std::max(*version, step.version));
}

enum class Before
{
    KeepBackup,
    Nothing
};

// Nobody else writes from here on: what is backed up is what the step finds. Another program may have been quicker.
Result<Done> take(Store &store, const Step &step, Before before)
{
    Result<Transaction> transaction = Transaction::begin(store);
    if (!transaction)
        return transaction.trouble();
    const Result<bool> needed = isNeeded(store, step);
    if (!needed || !*needed)
        return needed ? Result(Done{}) : needed.trouble();
    if (const Result<Done> ours = addedTablesAreOurs(store); !ours)
        return ours;
    if (before == Before::KeepBackup)
        if (const Result<Done> kept = keepLayout(store.path(), *versionOf(store)); !kept)
            return kept;
    const Result<Done> taken = takeWithin(store, step);
    return taken ? transaction->commit() : taken;
}

} // namespace

Result<Done> climb(Store &store)
{
    Before before = Before::KeepBackup;
    for (const Step &step : kSteps) {
        const Result<bool> needed = isNeeded(store, step);
        if (!needed)
            return needed.trouble();
        if (!*needed)
            continue;
        if (const Result<Done> taken = take(store, step, before); !taken)
            return taken;
        before = Before::Nothing;
    }
    return Done{};
}
