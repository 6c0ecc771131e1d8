#include "surveyerrand.h"

#include "findingjson.h"
#include "json.h"
#include "surveypanel.h"
#include "terminal.h"

#include <array>
#include <cstdio>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kClearLine = "\r\x1b[K"_L1;

QJsonArray stepsArray(const SurveyRun &run)
{
    QJsonArray array;
    for (const SurveyAnswer &answer : run.answers) {
        array.append(QJsonObject{{u"command"_s, answer.step.command},
                                 {u"cut"_s, answer.cut},
                                 {u"milliseconds"_s, static_cast<qint64>(answer.took.count())}});
    }
    return array;
}

QString tableOf(const QList<Finding> &findings, const QString &model, Language language)
{
    static constexpr std::array kColumns = {
        std::pair(u"Veredito", u"Veredito"), std::pair(u"Achado", u"Achado"),
        std::pair(u"Leitura", u"Leitura"),   std::pair(u"REF", u"Referência"),
        std::pair(u"PORC", u"% Desvio"),     std::pair(u"Telas", u"Telas"),
        std::pair(u"Fonte", u"Fonte"),       std::pair(u"Linha", u"Linha da resposta")};
    QStringList head;
    QList<Qt::Alignment> alignments;
    for (const auto &[key, title] : kColumns) {
        const bool isNumber = alignments.size() >= 2 && alignments.size() <= 4;
        alignments.append(isNumber ? Qt::AlignRight : Qt::AlignLeft);
        head.append(caption(title, language));
    }
    QList<QStringList> lines{head};
    for (const Row &row : findingRows(findings, model, language)) {
        QStringList cells;
        for (const auto &column : kColumns)
            cells.append(row.cell(column.first));
        lines.append(cells);
    }
    return aligned(lines, alignments);
}

} // namespace

SurveyErrand::SurveyErrand(CommonOptions options, SurveyOptions surveyOptions)
    : ModelErrand(std::move(options)),
      m_surveyOptions(std::move(surveyOptions)),
      m_survey(session()),
      m_showsProgress(isatty(STDERR_FILENO) != 0)
{
    connect(&m_survey, &Screen::readingEnded, this, &SurveyErrand::printSurvey, Qt::QueuedConnection);
    connect(&m_survey, &SurveyScreen::progressed, this, &SurveyErrand::printProgress);
    connect(&m_survey, &SurveyScreen::journalFailed, this,
            [this](const Trouble &why) { printError(oneLine(why, language())); });
}

void SurveyErrand::begin()
{
    if (m_surveyOptions.journaling == Journaling::Kept)
        SurveyJournal::closeLeftOpen(session().store(), this);
    m_survey.open();
    for (const SurveyExtra extra : {SurveyExtra::Syscfg, SurveyExtra::Memory})
        m_survey.chooseExtra(extra, m_surveyOptions.extras.testFlag(extra));
    m_survey.chooseJournaling(m_surveyOptions.journaling);
    if (!m_surveyOptions.name.isEmpty())
        m_survey.chooseName(m_surveyOptions.name);
    m_survey.chooseNote(m_surveyOptions.note);
    m_survey.read();
}

/// Between two questions only the tick finds the line gone.
void SurveyErrand::linkWasLost()
{
    if (m_survey.isRunning())
        m_survey.TimerPasso_Timer();
    Errand::linkWasLost();
}

void SurveyErrand::leavePhone()
{
    m_survey.btCancelar_Click();
    Errand::leavePhone();
}

void SurveyErrand::timedOut()
{
    if (m_survey.isRunning())
        m_survey.btCancelar_Click();
    else
        Errand::timedOut();
}

void SurveyErrand::printProgress()
{
    if (!m_showsProgress || isFinished() || !m_survey.isRunning())
        return;
    const SurveyPace pace = m_survey.pace();
    const QString text = m_survey.panel().fields.value(u"lbProgresso"_s).text.value_or(QString());
    std::fputs(qUtf8Printable(kClearLine + u"%1 %  %2"_s.arg(pace.percent, 3).arg(text)), stderr);
}

ExitCode SurveyErrand::exitCode() const
{
    return m_survey.run().end == SurveyEnd::LinkLost ? ExitCode::Link : exitCodeFor(m_survey.reading().verdict);
}

void SurveyErrand::printSurvey()
{
    if (isFinished())
        return;
    if (m_showsProgress)
        std::fputs(qUtf8Printable(QString(kClearLine)), stderr);
    if (m_survey.run().end == SurveyEnd::Open) // it never began: why was told when it was refused
        return finishUnanswered();
    printOut(options().json ? jsonText() : readableText());
    note(exitCode());
    if (!m_surveyOptions.pdfFile.isEmpty())
        writePdf(m_survey.report(), m_surveyOptions.pdfFile);
    finish(ExitCode::Good);
}

QString SurveyErrand::jsonText()
{
    const SurveyRun &run = m_survey.run();
    const bool isKept = m_surveyOptions.journaling == Journaling::Kept && m_survey.journal().isComplete();
    return document({{u"screen"_s, m_survey.name()},
                     {u"model"_s, run.model},
                     {u"serial"_s, run.serial()},
                     {u"language"_s, static_cast<int>(language())},
                     {u"started"_s, run.started.toString(Qt::ISODate)},
                     {u"ended"_s, run.ended.toString(Qt::ISODate)},
                     {u"outcome"_s, word(run.end)},
                     {u"verdict"_s, word(m_survey.reading().verdict)},
                     {u"journal"_s, isKept ? QJsonValue(run.id) : QJsonValue()},
                     {u"commands"_s, stepsArray(run)},
                     {u"messages"_s, messagesArray(messages())},
                     {u"findings"_s, jsonOf(m_survey.findings())}});
}

QString SurveyErrand::readableText()
{
    const QString counts = findingCounts(m_survey.findings(), language());
    const SurveyRun &run = m_survey.run();
    const QString serial = run.serial().isEmpty() ? caption(u"desconhecido", language()) : run.serial();
    return caption(u"Vistoria", language()) + " - "_L1 + run.model + ", "_L1 + caption(u"Número de série", language()) +
           ": "_L1 + serial + "\n\n"_L1 + tableOf(m_survey.findings(), run.model, language()) + u'\n' +
           caption(captionKey(run.end), language()) + u'\n' +
           verdictText(m_survey.reading().verdict, language(), colourWanted()) + " ("_L1 + counts + ")\n"_L1;
}
