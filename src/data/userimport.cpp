#include "userimport.h"

#include "queries.h"
#include "userstore.h"

#include <QFileInfo>
#include <QSqlError>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kSettled = "2"_L1;

struct Answer
{
    QLatin1StringView before;
    QLatin1StringView after;
};

/// What a refusal makes of the state; any other state stays.
constexpr std::array kRefusals = {Answer{"0"_L1, "1"_L1}, Answer{"1"_L1, kSettled}};

const Answer *refusalOf(const QString &state)
{
    const auto found = std::ranges::find_if(kRefusals, [&](const Answer &answer) { return answer.before == state; });
    return found == kRefusals.end() ? nullptr : &*found;
}

Result<QString> syncState(const Store &store)
{
    Result<QSqlQuery> row = store.run(kSyncbd);
    if (!row)
        return row.trouble();
    const bool found = row->next();
    if (row->lastError().isValid())
        return store.trouble(*row);
    return found ? row->value(0).toString() : QString();
}

Result<Done> setSyncState(const Store &store, const QString &state)
{
    const auto set = store.run(kSetSyncbd, {{u":value"_s, state}});
    return set ? Result(Done{}) : set.trouble();
}

/// The copying of one user store, inside one transaction.
class Import
{
public:
    Import(Store &store, const Transaction &within) : m_store(store), m_within(within) {}

    Result<ImportSummary> take(const UserStore &user)
    {
        m_summary.leftOut = user.damaged;
        // Nothing more after a failure: the engine may have rolled back already.
        Result<Done> done = takeAll(user.rails, &Import::takeRail);
        if (done)
            done = takeAll(user.recordings, &Import::takeRecording);
        if (done)
            done = takeAll(user.commands, &Import::takeCommand);
        if (done)
            done = takeAll(user.combos.mid(0, 1), &Import::takeSettings);
        if (!done)
            return done.trouble();
        return m_summary;
    }

private:
    template <typename Row>
    Result<Done> takeAll(const QList<Row> &rows, Result<Done> (Import::*takeOne)(const Row &))
    {
        for (const Row &row : rows)
            if (const Result<Done> done = (this->*takeOne)(row); !done)
                return done;
        return Done{};
    }

    // Most rows of a user store hold no reading; they would only wipe what was recorded since.
    Result<Done> takeRail(const QVariantMap &row)
    {
        QVariantMap readings;
        for (const QString &name : {u":G1"_s, u":G2"_s, u":G3"_s})
            readings.insert(name, row.value(name));
        if (std::ranges::all_of(readings, [](const QVariant &text) { return text.toString().isEmpty(); }))
            return Done{};
        Result<QSqlQuery> meant = runWith(kRailMeant, row, {u":model"_s, u":net"_s, u":kind"_s, u":output"_s});
        if (!meant)
            return meant.trouble();
        if (!meant->next())
            return leftOut();
        readings.insert(u":id"_s, meant->value(0));
        return counted(m_store.run(kWriteSlots, readings), m_summary.rails);
    }

    Result<Done> takeRecording(const Recording &recording)
    {
        if (recording.dados.isEmpty() && recording.info.isEmpty() && recording.info2.isEmpty() &&
            recording.info3.isEmpty())
            return Done{};
        if (recording.comando.contains(u'\''))
            return leftOut();
        if (recording.dados.isEmpty()) { // notes alone do not wipe a reply that was recorded since
            const auto own = recordingFor(m_store, recording.aparelho, recording.comando);
            if (!own || (*own && !(*own)->recording.dados.isEmpty()))
                return own ? leftOut() : own.trouble();
        }
        const Result<Done> saved = saveRecording(m_store, m_within, recording);
        m_summary.recordings += saved ? 1 : 0;
        return saved;
    }

    Result<Done> takeCommand(const QVariantMap &row)
    {
        const QString command = row.value(u":Comando"_s).toString();
        if (command.contains(u'\''))
            return leftOut();
        Result<QSqlQuery> present = m_store.run(kCommand, {{u":command"_s, command}});
        if (!present)
            return present.trouble();
        return present->next() ? Result(Done{}) : counted(m_store.run(kAddCommand, row), m_summary.commands);
    }

    Result<Done> takeSettings(const QVariantMap &row)
    {
        return counted(m_store.run(kSetAllCombos, row), m_summary.settings);
    }

    Result<QSqlQuery> runWith(const Query &query, const QVariantMap &row, const QStringList &names) const
    {
        QVariantMap values;
        for (const QString &name : names)
            values.insert(name, row.value(name));
        return m_store.run(query, values);
    }

    Result<Done> leftOut()
    {
        ++m_summary.leftOut;
        return Done{};
    }

    static Result<Done> counted(const Result<QSqlQuery> &written, int &count)
    {
        if (!written)
            return written.trouble();
        count += written->numRowsAffected() > 0 ? 1 : 0;
        return Done{};
    }

    Store &m_store;
    const Transaction &m_within;
    ImportSummary m_summary;
};

} // namespace

Result<ImportStep> importStep(Store &store, const QString &userPath, Occasion occasion)
{
    const Result<QString> state = syncState(store);
    if (!state)
        return state.trouble();
    if (!QFileInfo::exists(userPath)) {
        const Result<Done> settled = *state == kSettled ? Done{} : setSyncState(store, kSettled);
        return settled ? Result(ImportStep::NoUserStore) : settled.trouble();
    }
    return occasion == Occasion::AboutBox || refusalOf(*state) ? ImportStep::Ask : ImportStep::AnsweredBefore;
}

Result<Done> declineImport(Store &store)
{
    const Result<QString> state = syncState(store);
    if (!state)
        return state.trouble();
    const Answer *refusal = refusalOf(*state);
    return refusal ? setSyncState(store, refusal->after) : Done{};
}

Notice toldOf(const ImportSummary &summary)
{
    QStringList texts;
    for (const int count : {summary.rails, summary.recordings, summary.commands, summary.leftOut})
        texts += QString::number(count);
    return {u"STORE_IMPORTED"_s, texts};
}

Result<ImportSummary> importUserStore(Store &store, const QString &userPath)
{
    const Result<UserStore> user = readUserStore(userPath);
    if (!user)
        return user.trouble();
    Result<Transaction> transaction = Transaction::begin(store);
    if (!transaction)
        return transaction.trouble();
    const Result<ImportSummary> summary = Import(store, *transaction).take(*user);
    if (!summary)
        return summary;
    if (const Result<Done> settled = setSyncState(store, kSettled); !settled)
        return settled.trouble();
    const Result<Done> committed = transaction->commit();
    return committed ? summary : committed.trouble();
}
