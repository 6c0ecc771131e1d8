#include "journal.h"

#include "newuuid.h"
#include "queries.h"
#include "storelimits.h"

#include <QSqlError>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kYes = "1"_L1;

QVariantMap rowOf(const JournalSurvey &survey)
{
    return {{u":id"_s, survey.id},           {u":started"_s, survey.started}, {u":ended"_s, survey.ended},
            {u":outcome"_s, survey.outcome}, {u":model"_s, survey.model},     {u":serial"_s, survey.serial},
            {u":port"_s, survey.port},       {u":name"_s, survey.name},       {u":note"_s, survey.note},
            {u":noteUuid"_s, newUuid()}};
}

/// Places are texts in the store, so that they are all of one length.
QVariantMap rowOf(const QString &id, const JournalReply &reply)
{
    return {{u":id"_s, id},
            {u":place"_s, u"%1"_s.arg(reply.place, 4, 10, QLatin1Char('0'))},
            {u":command"_s, reply.command},
            {u":reply"_s, reply.reply},
            {u":cut"_s, reply.cut ? QString(kYes) : QString()}};
}

QVariantMap rowOf(const QString &id, const JournalFinding &finding)
{
    return {{u":id"_s, id},
            {u":output"_s, finding.output},
            {u":what"_s, finding.what},
            {u":screens"_s, finding.screens},
            {u":reading"_s, finding.reading},
            {u":reference"_s, finding.reference},
            {u":source"_s, finding.source},
            {u":deviation"_s, finding.deviation},
            {u":lowest"_s, finding.lowest},
            {u":highest"_s, finding.highest},
            {u":verdict"_s, finding.verdict},
            {u":line"_s, finding.line},
            {u":uuid"_s, newUuid()}};
}

QString text(const QSqlQuery &row, const char16_t *column)
{
    return row.value(QStringView(column).toString()).toString();
}

JournalSurvey surveyAt(const QSqlQuery &row)
{
    return {text(row, u"Id"),    text(row, u"Started"),         text(row, u"Ended"), text(row, u"Outcome"),
            text(row, u"Model"), text(row, u"Serial"),          text(row, u"Port"),  text(row, u"Name"),
            text(row, u"Note"),  row.value(u"Faults"_s).toInt()};
}

JournalReply replyAt(const QSqlQuery &row)
{
    return {text(row, u"Place").toInt(), text(row, u"Command"), text(row, u"Reply"), text(row, u"Cut") == kYes};
}

JournalFinding findingAt(const QSqlQuery &row)
{
    return {text(row, u"Output"),    text(row, u"What"),    text(row, u"Screens"),   text(row, u"Reading"),
            text(row, u"Reference"), text(row, u"Source"),  text(row, u"Deviation"), text(row, u"Lowest"),
            text(row, u"Highest"),   text(row, u"Verdict"), text(row, u"Line")};
}

template <typename Row>
Result<QList<Row>> rowsOf(const Store &store, const Query &query, const QVariantMap &values,
                          Row (*rowAt)(const QSqlQuery &))
{
    Result<QSqlQuery> rows = store.run(query, values);
    if (!rows)
        return rows.trouble();
    QList<Row> found;
    while (rows->next()) {
        if (const Result<Done> within = rowIsWithinLimits(store, *rows); !within)
            return within.trouble();
        found += rowAt(*rows);
    }
    if (rows->lastError().isValid())
        return store.trouble(*rows);
    return found;
}

template <typename Row>
Result<Done> writeAll(const Store &store, const Query &query, const QString &id, const QList<Row> &rows)
{
    QSqlQuery write = store.prepared(query);
    for (const Row &row : rows)
        if (const Result<Done> written = store.rerun(write, rowOf(id, row)); !written)
            return written;
    return Done{};
}

Result<bool> isDeleted(const Store &store, const JournalEntry &entry)
{
    if (!entry.isKnown)
        return false;
    const auto rows = rowsOf(store, kSurvey, {{u":id"_s, entry.survey.id}}, &surveyAt);
    return rows ? Result(rows->isEmpty()) : rows.trouble();
}

Result<Done> writeEntry(const Store &store, const JournalEntry &entry)
{
    if (const auto survey = store.run(kKeepSurvey, rowOf(entry.survey)); !survey)
        return survey.trouble();
    if (const Result<Done> written = writeAll(store, kKeepSurveyReply, entry.survey.id, entry.replies); !written)
        return written;
    if (const Result<Done> written = writeAll(store, kKeepSurveyFinding, entry.survey.id, entry.findings); !written)
        return written;
    const auto board = store.run(
        kSetBoardOfFindings,
        {{u":id"_s, entry.survey.id}, {u":model"_s, entry.survey.model}, {u":serial"_s, entry.survey.serial}});
    return board ? Result(Done{}) : board.trouble();
}

} // namespace

Result<Done> keepInJournal(Store &store, const JournalEntry &entry)
{
    Result<Transaction> transaction = Transaction::begin(store);
    if (!transaction)
        return transaction.trouble();
    const Result<bool> deleted = isDeleted(store, entry);
    if (!deleted || *deleted)
        return deleted ? Result(Done{}) : deleted.trouble();
    const Result<Done> written = writeEntry(store, entry);
    return written ? transaction->commit() : written;
}

Result<QList<JournalSurvey>> journal(const Store &store, const QString &search)
{
    return rowsOf(store, kSurveys, {{u":pattern"_s, likePattern(u'*' + search + u'*')}}, &surveyAt);
}

Result<std::optional<JournalEntry>> journalEntry(const Store &store, const QString &id)
{
    using Entry = std::optional<JournalEntry>;
    const QVariantMap values{{u":id"_s, id}};
    const auto surveys = rowsOf(store, kSurvey, values, &surveyAt);
    if (!surveys || surveys->isEmpty())
        return surveys ? Result(Entry()) : surveys.trouble();
    const auto replies = rowsOf(store, kSurveyReplies, values, &replyAt);
    if (!replies)
        return replies.trouble();
    const auto findings = rowsOf(store, kSurveyFindings, values, &findingAt);
    return findings ? Result(Entry(JournalEntry{surveys->first(), *replies, *findings})) : findings.trouble();
}

Result<Done> setJournalNote(Store &store, const QString &id, const QString &note)
{
    const auto set = store.run(kSetSurveyNote, {{u":id"_s, id}, {u":note"_s, note}, {u":uuid"_s, newUuid()}});
    return set ? Result(Done{}) : set.trouble();
}

Result<QStringList> surveysOf(const Store &store, const QString &outcome)
{
    return rowsOf<QString>(store, kSurveysOfOutcome, {{u":outcome"_s, outcome}},
                           [](const QSqlQuery &row) { return text(row, u"Id"); });
}

Result<Done> setJournalOutcome(Store &store, const QString &id, const QString &outcome)
{
    const auto set = store.run(kSetSurveyOutcome, {{u":id"_s, id}, {u":outcome"_s, outcome}});
    return set ? Result(Done{}) : set.trouble();
}

Result<Done> deleteFromJournal(Store &store, const QString &id)
{
    Result<Transaction> transaction = Transaction::begin(store);
    if (!transaction)
        return transaction.trouble();
    for (const Query *query : {&kDeleteSurveyFindings, &kDeleteSurveyReplies, &kDeleteSurvey})
        if (const auto removed = store.run(*query, {{u":id"_s, id}}); !removed)
            return removed.trouble();
    return transaction->commit();
}
