#include "journalpanel.h"

#include "catalogue.h"
#include "surveyjournal.h"
#include "surveypanel.h"
#include "visibletext.h"

#include <QDateTime>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString serialOf(const JournalSurvey &survey, Language language)
{
    return survey.serial.isEmpty() ? caption(u"desconhecido", language) : visibleText(survey.serial);
}

Row rowOf(const JournalSurvey &survey, Language language)
{
    return {.cells = {{u"Id"_s, survey.id},
                      {u"Hora"_s, startOf(survey)},
                      {u"Modelo"_s, visibleText(survey.model)},
                      {u"Serie"_s, serialOf(survey, language)},
                      {u"Resultado"_s, caption(outcomeKey(survey), language)},
                      {u"Falhas"_s, QString::number(survey.faults)},
                      {u"Nota"_s, visibleText(survey.note)}}};
}

/// The cells of one side; those of a survey that did not read the output say so.
Row sideOf(const std::optional<Finding> &finding, Language language)
{
    if (!finding)
        return {.cells = {{u"Veredito"_s, caption(u"Não lido", language)}}};
    return findingRows({*finding}, {}, language).constFirst();
}

/// The colour of a row follows what is to be done about it.
Verdict verdictOf(SurveyChange change, Verdict after)
{
    if (change <= SurveyChange::FaultStays)
        return Verdict::Fail;
    return change == SurveyChange::FaultUnjudged || change == SurveyChange::Unjudged ? Verdict::Incomplete : after;
}

Row rowOf(const ComparedOutput &output, Language language)
{
    const Row before = sideOf(output.before, language);
    const Row after = sideOf(output.after, language);
    const Row &told = output.after ? after : before;
    return {.cells = {{u"Mudanca"_s, caption(captionKey(output.change), language)},
                      {u"Achado"_s, visibleText(output.what)},
                      {u"Leitura1"_s, before.cell(u"Leitura")},
                      {u"Leitura2"_s, after.cell(u"Leitura")},
                      {u"REF"_s, told.cell(u"REF")},
                      {u"PORC1"_s, before.cell(u"PORC")},
                      {u"PORC2"_s, after.cell(u"PORC")},
                      {u"Veredito1"_s, before.cell(u"Veredito")},
                      {u"Veredito2"_s, after.cell(u"Veredito")}},
            .deviation = after.deviation,
            .rule = after.rule,
            .verdict = verdictOf(output.change, after.verdict),
            .source = told.source};
}

} // namespace

QList<Row> surveyRows(const QList<JournalSurvey> &surveys, Language language)
{
    QList<Row> rows;
    for (const JournalSurvey &survey : surveys)
        rows.append(rowOf(survey, language));
    return rows;
}

QList<Row> comparisonRows(const QList<ComparedOutput> &outputs, Language language)
{
    QList<Row> rows;
    for (const ComparedOutput &output : outputs)
        rows.append(rowOf(output, language));
    return rows;
}

QString changeCounts(const QList<ComparedOutput> &outputs, Language language)
{
    QMap<SurveyChange, int> counts;
    for (const ComparedOutput &output : outputs)
        ++counts[output.change];
    counts.remove(SurveyChange::Same);
    QStringList parts;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count)
        parts.append(u"%1: %2"_s.arg(caption(captionKey(count.key()), language)).arg(count.value()));
    return parts.isEmpty() ? caption(u"Nada mudou", language) : parts.join(u"   "_s);
}

QString startOf(const JournalSurvey &survey)
{
    const QDateTime started = QDateTime::fromString(survey.started, Qt::ISODate);
    return started.isValid() ? started.toLocalTime().toString(u"yyyy-MM-dd HH:mm:ss"_s) : visibleText(survey.started);
}

QString surveyName(const JournalSurvey &survey, Language language)
{
    return u"%1  %2  %3"_s.arg(startOf(survey), visibleText(survey.model), serialOf(survey, language));
}

QStringView outcomeKey(const JournalSurvey &survey)
{
    static constexpr std::array kKeys = {std::pair("finished"_L1, u"Concluída"),
                                         std::pair("cancelled"_L1, u"Cancelada"),
                                         std::pair("link lost"_L1, u"Conexão perdida")};
    const auto known = std::ranges::find(kKeys, survey.outcome, &std::pair<QLatin1StringView, const char16_t *>::first);
    return known == kKeys.end() ? u"Não concluída" : known->second;
}

QList<Finding> findingsOf(const JournalEntry &entry)
{
    QList<Finding> findings;
    for (const JournalFinding &finding : entry.findings)
        findings.append(fromJournal(finding));
    return worstFirst(findings);
}

Verdict verdictOf(const JournalEntry &entry)
{
    const bool isWhole = entry.survey.outcome == word(SurveyEnd::Finished);
    return verdictOf(findingsOf(entry), isWhole ? SurveyEnd::Finished : SurveyEnd::Open);
}

QString exchangeText(const JournalEntry &entry, Language language)
{
    QStringList parts;
    for (const JournalReply &reply : entry.replies) {
        const QString cut = reply.cut ? u'\n' + caption(u"Leitura interrompida", language) : QString();
        parts.append("> "_L1 + visibleText(reply.command) + u'\n' + visibleText(reply.reply) + cut);
    }
    return parts.join(u"\n\n"_s);
}
