#include "journalexport.h"

#include "catalogue.h"
#include "findingjson.h"
#include "journalpanel.h"
#include "surveyreport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

QJsonObject objectOf(const JournalSurvey &survey)
{
    return {{u"id"_s, survey.id},           {u"started"_s, survey.started}, {u"ended"_s, survey.ended},
            {u"outcome"_s, survey.outcome}, {u"model"_s, survey.model},     {u"serial"_s, survey.serial},
            {u"port"_s, survey.port},       {u"name"_s, survey.name},       {u"note"_s, survey.note},
            {u"faults"_s, survey.faults}};
}

QJsonValue orNull(const std::optional<Finding> &finding)
{
    return finding ? QJsonValue(jsonOf(*finding)) : QJsonValue();
}

QJsonArray exchangeArray(const QList<JournalReply> &replies)
{
    QJsonArray array;
    for (const JournalReply &reply : replies)
        array.append(QJsonObject{{u"command"_s, reply.command}, {u"reply"_s, reply.reply}, {u"cut"_s, reply.cut}});
    return array;
}

} // namespace

QByteArray surveyJson(const JournalEntry &entry)
{
    QJsonObject object = objectOf(entry.survey);
    object.insert(u"findings"_s, jsonOf(findingsOf(entry)));
    object.insert(u"exchange"_s, exchangeArray(entry.replies));
    return QJsonDocument(object).toJson();
}

QByteArray comparisonJson(const JournalEntry &before, const JournalEntry &after)
{
    QJsonArray outputs;
    for (const ComparedOutput &output : compareSurveys(findingsOf(before), findingsOf(after))) {
        outputs.append(QJsonObject{{u"what"_s, output.what},
                                   {u"change"_s, word(output.change)},
                                   {u"before"_s, orNull(output.before)},
                                   {u"after"_s, orNull(output.after)}});
    }
    return QJsonDocument(QJsonObject{{u"before"_s, objectOf(before.survey)},
                                     {u"after"_s, objectOf(after.survey)},
                                     {u"outputs"_s, outputs}})
        .toJson();
}

ReportDocument reportOf(const JournalEntry &entry, Language language)
{
    const JournalSurvey &survey = entry.survey;
    SurveyRun run;
    run.model = survey.model;
    run.started = QDateTime::fromString(survey.started, Qt::ISODate).toLocalTime();
    run.end = SurveyEnd::Finished;
    const bool isWhole = survey.outcome == word(SurveyEnd::Finished);
    const QString end = isWhole ? QString() : caption(outcomeKey(survey), language) + ". "_L1;
    ReportDocument report = reportOf(run, findingsOf(entry), {survey.name, end + survey.note}, language);
    if (!survey.serial.isEmpty())
        report.serial = survey.serial;
    return report;
}
