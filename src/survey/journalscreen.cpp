#include "journalscreen.h"

#include "journalexport.h"
#include "journalpanel.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// A long journal is not searched for every letter of a word.
static constexpr auto kTypingPause = 200ms;

JournalScreen::JournalScreen(Session &session, QObject *parent) : Screen(session, u"Journal"_s, {}, parent)
{
    connect(&session, &Session::languageChanged, this, &JournalScreen::rebuild);
    m_timerBusca.setInterval(kTypingPause);
    connect(&m_timerBusca, &QTimer::timeout, this, &JournalScreen::TimerBusca_Timer);
}

void JournalScreen::setShown(bool shown)
{
    if (shown)
        load();
    else
        keepNotes();
}

void JournalScreen::load()
{
    withStore<QList<JournalSurvey>>(
        Store::Access::Read, [search = m_search](Store &store) { return journal(store, search); },
        [this](const QList<JournalSurvey> &surveys) { takeList(surveys); });
}

void JournalScreen::takeList(const QList<JournalSurvey> &surveys)
{
    m_surveys = surveys;
    m_chosen.removeIf([this](const QString &id) { return !std::ranges::count(m_surveys, id, &JournalSurvey::id); });
    loadEntries();
}

void JournalScreen::txtBusca_Change(const QString &text)
{
    m_search = text.trimmed();
    m_timerBusca.start();
}

void JournalScreen::TimerBusca_Timer()
{
    m_timerBusca.stop();
    load();
}

void JournalScreen::choose(const QStringList &ids)
{
    if (ids == m_chosen)
        return;
    m_chosen = ids;
    keepNotes();
    if (const QString other = std::exchange(m_compared, {}); !other.isEmpty() && ids.size() == 1 && ids[0] != other)
        m_chosen.prepend(other);
    loadEntries();
}

void JournalScreen::loadEntries()
{
    const QStringList ids = m_chosen.size() > 2 ? QStringList() : m_chosen;
    const auto read = [ids](Store &store) -> Result<QList<JournalEntry>> {
        QList<JournalEntry> entries;
        for (const QString &id : ids) {
            const auto entry = journalEntry(store, id);
            if (!entry)
                return entry.trouble();
            if (*entry)
                entries.append(**entry);
        }
        return entries;
    };
    withStore<QList<JournalEntry>>(Store::Access::Read, read, [this, chosen = m_chosen](const auto &entries) {
        if (chosen == m_chosen)
            takeEntries(entries);
    });
}

void JournalScreen::takeEntries(const QList<JournalEntry> &entries)
{
    m_entries = entries;
    std::ranges::stable_sort(m_entries, {}, [](const JournalEntry &entry) { return entry.survey.started; });
    m_outputs.clear();
    if (isComparing())
        m_outputs = compareSurveys(findingsOf(m_entries[0]), findingsOf(m_entries[1]));
    m_isExchangeShown = m_isExchangeShown && isOne();
    if (!isOne())
        m_compared.clear();
    rebuild();
    emit noteLoaded();
}

void JournalScreen::btComparar_Click()
{
    m_compared = isOne() && m_compared.isEmpty() ? m_chosen.constFirst() : QString();
    rebuild();
}

void JournalScreen::btTroca_Click()
{
    m_isExchangeShown = isOne() && !m_isExchangeShown;
    rebuild();
}

QString JournalScreen::note() const
{
    if (!isOne())
        return {};
    const JournalSurvey &survey = m_entries[0].survey;
    return m_typed.value(survey.id, survey.note);
}

void JournalScreen::txtNota_Change(const QString &note)
{
    if (isOne())
        m_typed[m_entries[0].survey.id] = note;
}

void JournalScreen::keepNotes()
{
    const QMap<QString, QString> typed = m_typed;
    for (auto note = typed.cbegin(); note != typed.cend(); ++note)
        keepNote(note.key(), note.value());
}

void JournalScreen::keepNote(const QString &id, const QString &note)
{
    withStore<Done>(
        Store::Access::Write, [id, note](Store &store) { return setJournalNote(store, id, note); },
        [this, id, note](const Done &) { noteWasKept(id, note); });
}

void JournalScreen::noteWasKept(const QString &id, const QString &note)
{
    if (m_typed.value(id) == note)
        m_typed.remove(id);
    const auto take = [&](JournalSurvey &survey) {
        if (survey.id == id)
            survey.note = note;
    };
    std::ranges::for_each(m_surveys, take);
    std::ranges::for_each(m_entries, take, &JournalEntry::survey);
    rebuild();
}

void JournalScreen::btExcluir_Click()
{
    if (!isOne())
        return;
    const JournalSurvey survey = m_entries[0].survey;
    const QString text = caption(u"EXCLUIR_VISTORIA").arg(surveyName(survey, session().language()));
    session().boxes().ask({caption(u"Excluir"), text, Question::Choices::YesNo}, [this, survey](Answer answer) {
        if (answer == Answer::Yes)
            forget(survey.id);
    });
}

void JournalScreen::forget(const QString &id)
{
    m_typed.remove(id);
    withStore<Done>(
        Store::Access::Write, [id](Store &store) { return deleteFromJournal(store, id); },
        [this](const Done &) { load(); });
}

std::optional<ReportDocument> JournalScreen::report() const
{
    return isOne() ? std::optional(reportOf(m_entries[0], session().language())) : std::nullopt;
}

void JournalScreen::showDocumentWork(bool isBusy)
{
    m_isDocumentInWork = isBusy;
    rebuild();
}

QString JournalScreen::exchange() const
{
    return isOne() ? exchangeText(m_entries[0], session().language()) : QString();
}

QByteArray JournalScreen::json() const
{
    if (m_entries.isEmpty())
        return {};
    return isComparing() ? comparisonJson(m_entries[0], m_entries[1]) : surveyJson(m_entries[0]);
}
