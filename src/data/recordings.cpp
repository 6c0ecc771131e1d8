#include "recordings.h"

#include "newuuid.h"
#include "queries.h"
#include "storelimits.h"

#include <QCryptographicHash>
#include <QHash>
#include <QSqlError>

using namespace Qt::StringLiterals;

namespace {

QVariantMap keysOf(const RecordingKey &key)
{
    return {{u":model"_s, key.model}, {u":command"_s, key.command}};
}

QString hashOf(const QByteArray &bytes)
{
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
}

/// The first row of a query, or none.
Result<std::optional<QSqlQuery>> firstRow(const Store &store, const Query &query, const QVariantMap &values)
{
    Result<QSqlQuery> rows = store.run(query, values);
    if (!rows)
        return rows.trouble();
    if (rows->next())
        return std::optional(std::move(*rows));
    if (rows->lastError().isValid())
        return store.trouble(*rows);
    return std::optional<QSqlQuery>();
}

/// What the hashes of a store say, by pair.
using Hashes = QHash<QString, QString>;

QString nameOf(const RecordingKey &key)
{
    return (key.model + QChar::Null + key.command).toLower();
}

Result<Hashes> hashesOf(const Store &store, const Query &query, const QVariantMap &values = {})
{
    Result<QSqlQuery> rows = store.run(query, values);
    if (!rows)
        return rows.trouble();
    Hashes hashes;
    while (rows->next())
        hashes.insert(nameOf({rows->value(0).toString(), rows->value(1).toString()}), rows->value(2).toString());
    if (rows->lastError().isValid())
        return store.trouble(*rows);
    return hashes;
}

Recording recordingAt(const QSqlQuery &row)
{
    return {row.value(u"Aparelho"_s).toString(), row.value(u"Comando"_s).toString(), row.value(u"Dados"_s).toString(),
            row.value(u"Info"_s).toString(),     row.value(u"Info2"_s).toString(),   row.value(u"Info3"_s).toString()};
}

KeptRecording keptAt(const QSqlQuery &row, const Hashes &hashes)
{
    const Recording recording = recordingAt(row);
    const auto hash = hashes.find(nameOf({recording.aparelho, recording.comando}));
    if (hash == hashes.end())
        return {recording, Integrity::Unverified};
    const bool same = *hash == hashOf(row.value(u"Bytes"_s).toByteArray());
    return {recording, same ? Integrity::Intact : Integrity::Changed};
}

Result<Done> writeRow(const Store &store, const Recording &recording)
{
    const RecordingKey key{recording.aparelho, recording.comando};
    const auto row = firstRow(store, kRecordingMeant, keysOf(key));
    if (!row)
        return row.trouble();
    QVariantMap values = {{u":Dados"_s, recording.dados},
                          {u":Info"_s, recording.info},
                          {u":Info2"_s, recording.info2},
                          {u":Info3"_s, recording.info3}};
    if (*row)
        values.insert(u":id"_s, row->value().value(u"rowid"_s));
    else
        values.insert(keysOf(key));
    const auto written = store.run(*row ? kWriteRecording : kAddRecording, values);
    return written ? Result(Done{}) : written.trouble();
}

// Hashed is what the file holds, not what was handed in.
Result<Done> writeHash(const Store &store, const RecordingKey &key)
{
    const auto row = firstRow(store, kRecordingMeant, keysOf(key));
    if (!row)
        return row.trouble();
    QVariantMap values = keysOf(key);
    values.insert(u":hash"_s, hashOf(row->value().value(u"Bytes"_s).toByteArray()));
    const auto written = store.run(kSetHash, values);
    return written ? Result(Done{}) : written.trouble();
}

Result<Done> dropOtherId(const Store &store, const Recording &recording)
{
    QVariantMap values = keysOf({recording.aparelho, recording.comando});
    values.insert(u":Dados"_s, recording.dados);
    const auto dropped = store.run(kDropRecordingId, values);
    return dropped ? Result(Done{}) : dropped.trouble();
}

Result<Done> addId(const Store &store, const RecordingKey &key)
{
    QVariantMap values = keysOf(key);
    values.insert(u":uuid"_s, newUuid());
    const auto added = store.run(kAddRecordingId, values);
    return added ? Result(Done{}) : added.trouble();
}

} // namespace

Result<std::optional<KeptRecording>> recordingFor(const Store &store, const QString &model, const QString &command)
{
    const RecordingKey key{model, command};
    const auto row = firstRow(store, kRecordingMeant, keysOf(key));
    if (!row)
        return row.trouble();
    if (!row->has_value())
        return std::optional<KeptRecording>();
    if (const Result<Done> within = rowIsWithinLimits(store, row->value()); !within)
        return within.trouble();
    const Result<Hashes> hashes = hashesOf(store, kHash, keysOf(key));
    return hashes ? Result(std::optional(keptAt(row->value(), *hashes))) : hashes.trouble();
}

Result<Done> saveRecording(Store &store, const Transaction & /*within*/, const Recording &recording)
{
    const RecordingKey key{recording.aparelho, recording.comando};
    if (const Result<Done> dropped = dropOtherId(store, recording); !dropped)
        return dropped;
    if (const Result<Done> row = writeRow(store, recording); !row)
        return row;
    const Result<Done> hash = writeHash(store, key);
    return hash ? addId(store, key) : hash;
}

Result<Done> saveRecording(Store &store, const Recording &recording)
{
    Result<Transaction> transaction = Transaction::begin(store);
    if (!transaction)
        return transaction.trouble();
    const Result<Done> saved = saveRecording(store, *transaction, recording);
    return saved ? transaction->commit() : saved;
}

Result<Done> deleteRecording(Store &store, const RecordingKey &key)
{
    Result<Transaction> transaction = Transaction::begin(store);
    if (!transaction)
        return transaction.trouble();
    for (const Query *query : {&kDeleteRecording, &kDeleteHash, &kDeleteRecordingId})
        if (const auto removed = store.run(*query, keysOf(key)); !removed)
            return removed.trouble();
    return transaction->commit();
}

Result<QList<KeptRecording>> allRecordings(const Store &store)
{
    const Result<Hashes> hashes = hashesOf(store, kHashes);
    if (!hashes)
        return hashes.trouble();
    Result<QSqlQuery> rows = store.run(kRecordingsWithBytes);
    if (!rows)
        return rows.trouble();
    QList<KeptRecording> kept;
    while (rows->next()) {
        if (const Result<Done> within = rowIsWithinLimits(store, *rows); !within)
            return within.trouble();
        kept += keptAt(*rows, *hashes);
    }
    if (rows->lastError().isValid())
        return store.trouble(*rows);
    return kept;
}
