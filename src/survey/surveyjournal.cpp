#include "surveyjournal.h"

using namespace Qt::StringLiterals;

namespace {

QString numberText(std::optional<double> number)
{
    return number ? QString::number(*number) : QString();
}

std::optional<double> numberIn(const QString &text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

QString timeText(const QDateTime &time)
{
    return time.isValid() ? time.toUTC().toString(Qt::ISODate) : QString();
}

/// The system frees it when its owner ends, however it ends.
std::unique_ptr<QLockFile> markOf(const QString &store, const QString &survey)
{
    auto mark = std::make_unique<QLockFile>(store + u'-' + survey + ".running"_L1);
    mark->setStaleLockTime(0);
    return mark;
}

Result<Done> closeAll(Store &store, const QStringList &surveys)
{
    for (const QString &survey : surveys)
        if (const auto closed = setJournalOutcome(store, survey, word(SurveyEnd::Cancelled)); !closed)
            return closed;
    return Done{};
}

} // namespace

void SurveyJournal::closeLeftOpen(StoreQueue &store, QObject *context)
{
    const auto close = [&store, context](const Result<QStringList> &open) {
        QStringList left = open ? *open : QStringList();
        left.removeIf([&store](const QString &survey) { return !markOf(store.path(), survey)->tryLock(); });
        if (left.isEmpty())
            return;
        // A store that takes nothing keeps them open until it does.
        store.run<Done>(
            Store::Access::Write, [left](Store &writable) { return closeAll(writable, left); }, context,
            [](const Result<Done> &) {});
    };
    store.run<QStringList>(
        Store::Access::Read, [](Store &readable) { return surveysOf(readable, word(SurveyEnd::Open)); }, context,
        close);
}

JournalFinding toJournal(const Finding &finding)
{
    const Rule rule = finding.rule.value_or(Rule());
    return {.output = finding.key,
            .what = finding.what,
            .screens = finding.screens.join(", "_L1),
            .reading = finding.reading,
            .reference = finding.reference,
            .source = finding.source,
            .deviation = numberText(finding.deviation),
            .lowest = numberText(rule.lowest),
            .highest = numberText(rule.highest),
            .verdict = word(finding.verdict),
            .line = finding.line};
}

Finding fromJournal(const JournalFinding &finding)
{
    const Rule rule{numberIn(finding.lowest), numberIn(finding.highest)};
    return {.key = finding.output,
            .what = finding.what,
            .screens = finding.screens.split(", "_L1, Qt::SkipEmptyParts),
            .reading = finding.reading,
            .reference = finding.reference,
            .source = finding.source,
            .deviation = numberIn(finding.deviation),
            .rule = rule == Rule() ? std::nullopt : std::optional(rule),
            .verdict = findingVerdictOf(finding.verdict),
            .line = finding.line};
}

void SurveyJournal::begin(const SurveyRun &run, const QString &name, const QString &note)
{
    m_survey = {.id = run.id,
                .started = timeText(run.started),
                .outcome = word(run.end),
                .model = run.model,
                .port = run.port,
                .name = name,
                .note = note};
    m_answers = 0;
    m_known.clear();
    m_unwritten = {};
    m_hasFailed = false;
    m_isWritten = false;
    m_isKnown = false;
    m_running = markOf(m_store.path(), run.id);
    m_running->tryLock();
    write({m_survey});
}

void SurveyJournal::keep(const SurveyRun &run)
{
    m_survey.serial = run.serial();
    m_survey.outcome = word(run.end);
    m_survey.ended = timeText(run.ended);
    JournalEntry entry = std::exchange(m_unwritten, {});
    entry.survey = m_survey;
    entry.isKnown = m_isKnown;
    for (; m_answers < run.answers.size(); ++m_answers) {
        const SurveyAnswer &answer = run.answers.at(m_answers);
        entry.replies.append(
            {static_cast<int>(m_answers), answer.step.command, answer.reply + answer.stray, answer.cut});
    }
    QList<JournalFinding> findings;
    for (const Finding &finding : run.findings(run.language)) {
        findings.append(toJournal(finding));
        if (!m_known.contains(findings.last()))
            entry.findings.append(findings.last());
    }
    m_known = findings;
    if (m_hasFailed && run.end == SurveyEnd::Open)
        m_unwritten = entry;
    else
        write(entry);
    if (run.end != SurveyEnd::Open)
        m_running.reset();
}

void SurveyJournal::write(const JournalEntry &entry)
{
    m_store.run<Done>(
        Store::Access::Write, [entry](Store &store) { return keepInJournal(store, entry); }, this,
        [this, entry](const Result<Done> &written) {
            m_isWritten = bool(written);
            if (written) {
                m_hasFailed = false;
                m_isKnown = m_isKnown || entry.survey.id == m_survey.id;
                return;
            }
            m_unwritten.replies = entry.replies + m_unwritten.replies;
            m_unwritten.findings = entry.findings + m_unwritten.findings;
            if (!std::exchange(m_hasFailed, true))
                emit failed(written.trouble());
        });
}
