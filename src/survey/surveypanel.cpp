#include "surveypanel.h"

#include "catalogue.h"
#include "moduletable.h"
#include "sourcetext.h"
#include "surveyscreen.h"

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// A grid knows no margin: what is marginal has passed, and its word says more.
Verdict gridVerdict(FindingVerdict verdict)
{
    static constexpr std::array kVerdicts = {Verdict::Pass, Verdict::Pass, Verdict::Fail, Verdict::Incomplete,
                                             Verdict::None};
    return kVerdicts.at(static_cast<std::size_t>(verdict));
}

Row rowOf(const Finding &finding, const QString &model, Language language)
{
    return {.cells = {{u"Veredito"_s, caption(captionKey(finding.verdict), language)},
                      {u"Achado"_s, finding.what},
                      {u"Leitura"_s, finding.reading},
                      {u"REF"_s, finding.reference},
                      {u"PORC"_s, deviationOf(finding)},
                      {u"Fonte"_s, sourceText(finding.source, language)},
                      {u"Telas"_s, screenNames(finding, model, language)},
                      {u"Linha"_s, finding.line}},
            .deviation = finding.deviation,
            .rule = finding.rule,
            .verdict = gridVerdict(finding.verdict),
            .source = finding.source};
}

Judgement judgementOf(const Finding &finding)
{
    return {finding.what,
            finding.reading,
            finding.reference,
            finding.source,
            finding.deviation,
            finding.rule,
            gridVerdict(finding.verdict),
            finding.screens.value(0),
            finding.line,
            finding.key};
}

bool isFault(const Finding &finding)
{
    return finding.verdict != FindingVerdict::Pass && finding.verdict != FindingVerdict::NotJudged;
}

} // namespace

QString deviationOf(const Finding &finding)
{
    return finding.deviation ? QString::number(*finding.deviation, 'f', 1) + " %"_L1 : QString();
}

QString screenNames(const Finding &finding, const QString &model, Language language)
{
    QStringList names;
    for (const QString &screen : finding.screens) {
        const Module *module = moduleNamed(screen);
        names.append(module ? caption(captionKey(*module, model), language) : screen);
    }
    return names.join(", "_L1);
}

QList<Row> findingRows(const QList<Finding> &findings, const QString &model, Language language)
{
    QList<Row> rows;
    for (const Finding &finding : findings)
        rows.append(rowOf(finding, model, language));
    return rows;
}

QString findingCounts(const QList<Finding> &findings, Language language)
{
    static constexpr std::array kKeys = {
        std::pair(FindingVerdict::Fail, u"%1 com falha"), std::pair(FindingVerdict::NotMeasured, u"%1 sem medição"),
        std::pair(FindingVerdict::Marginal, u"%1 no limite"), std::pair(FindingVerdict::Pass, u"%1 aprovados"),
        std::pair(FindingVerdict::NotJudged, u"%1 sem julgamento")};
    QStringList parts;
    for (const auto &[verdict, key] : kKeys)
        if (const qsizetype count = countOf(findings, verdict))
            parts.append(countCaption(key, count, language));
    return parts.join(", "_L1);
}

QList<Judgement> SurveyScreen::judgements() const
{
    QList<Judgement> judgements;
    for (const Finding &finding : m_findings)
        judgements.append(judgementOf(finding));
    return judgements;
}

QList<Finding> SurveyScreen::shownFindings() const
{
    QList<Finding> shown = m_findings;
    if (m_filter == Filter::Faults)
        shown.removeIf([](const Finding &finding) { return !isFault(finding); });
    return shown;
}

void SurveyScreen::rebuild()
{
    m_findings = worstFirst(m_run.findings(session().language()));
    show(makeReading(), state());
    emit progressed();
}

void SurveyScreen::showProgress()
{
    show(Panel(reading()), state());
    emit progressed();
}

Panel SurveyScreen::makeReading() const
{
    const Language language = session().language();
    Panel panel;
    panel.screen = name();
    panel.title =
        caption(u"Vistoria") + " - Tavimo Prelt - "_L1 + (m_run.model.isEmpty() ? session().model() : m_run.model);
    panel.rows = findingRows(shownFindings(), m_run.model, language);
    panel.judgements = judgements();
    if (!m_run.id.isEmpty())
        panel.verdict = verdictOf(m_findings, m_run.end);
    return panel;
}

/// Whole seconds, never none while something is left.
static int secondsOf(std::chrono::milliseconds time)
{
    return static_cast<int>(std::ceil(static_cast<double>(time.count()) / 1000));
}

QString SurveyScreen::progressText() const
{
    if (m_run.waiting.isEmpty() && m_run.answers.isEmpty())
        return {};
    if (!m_isRunning)
        return caption(captionKey(m_run.end)) + u"  "_s + findingCounts(m_findings, session().language());
    const qsizetype asked = m_run.answers.size();
    return caption(u"VISTORIA_ANDAMENTO")
        .arg(currentPart())
        .arg(asked + 1)
        .arg(asked + m_run.waiting.size())
        .arg(secondsOf(pace().remaining));
}

QMap<QString, Field> SurveyScreen::state() const
{
    const QString serial = m_run.serial();
    const bool isKnown = !m_run.answers.isEmpty();
    return {
        {u"btIniciar"_s, {.text = caption(u"Iniciar vistoria") + "  F5"_L1, .enabled = !m_isRunning}},
        {u"btCancelar"_s, {.text = caption(u"Cancelar"), .visible = m_isRunning}},
        {u"btPDF"_s, {.enabled = hasReading() && !m_isDocumentInWork}},
        {u"OpSyscfg"_s, {.enabled = !m_isRunning, .checked = m_extras.testFlag(SurveyExtra::Syscfg)}},
        {u"OpMemoria"_s, {.enabled = !m_isRunning, .checked = m_extras.testFlag(SurveyExtra::Memory)}},
        {u"OpFalhas"_s, {.checked = m_filter == Filter::Faults}},
        {u"FrameVCore"_s, {.visible = m_isRunning}},
        {u"Barra"_s, {.value = pace().percent}},
        {u"lbProgresso"_s, {.text = progressText()}},
        {u"lbSerie"_s,
         {.text = caption(u"Número de série") + u": "_s + (serial.isEmpty() ? caption(u"desconhecido") : serial),
          .visible = isKnown}},
    };
}
