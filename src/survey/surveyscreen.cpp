#include "surveyscreen.h"

#include "replycodes.h"
#include "settingkeys.h"
#include "settings.h"
#include "surveyreport.h"

#include <QUuid>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

static constexpr auto kTick = 100ms;
/// A question that nothing answered is asked again, after a pause in which what comes late is let pass.
static constexpr int kRepeats = 2;
static constexpr auto kPause = 1000ms;

SurveyScreen::SurveyScreen(Session &session, QObject *parent)
    : Screen(session, u"Survey"_s, {kSurveyCode, kSurveyLongCode}, parent), m_journal(session.store())
{
    m_timerPasso.setInterval(kTick);
    connect(&m_timerPasso, &QTimer::timeout, this, &SurveyScreen::TimerPasso_Timer);
    connect(&m_journal, &SurveyJournal::failed, this, &SurveyScreen::journalFailed);
    connect(&session, &Session::readingsCleared, this, &SurveyScreen::forget);
    connect(&session, &Session::languageChanged, this, &SurveyScreen::rebuild);
    connect(&session, &Session::storeFailed, this, [this] {
        if (m_isRunning && m_run.waiting.isEmpty()) // the references will not come
            stopRunning();
    });
}

/// A survey ends with its screen. The journal is told; whoever showed the screen is gone.
SurveyScreen::~SurveyScreen()
{
    const QSignalBlocker silent(this);
    if (m_timerPasso.isActive())
        end(SurveyEnd::Cancelled);
}

void SurveyScreen::open()
{
    withStore<QString>(
        Store::Access::Read, [](Store &store) { return technicianName(store); },
        [this](const QString &stored) {
            if (m_name.isEmpty())
                m_name = stored;
        });
    rebuild();
}

void SurveyScreen::read()
{
    if (m_isRunning)
        return;
    m_isRunning = true;
    m_isCancelled = false;
    m_isAsked = false;
    m_run = {};
    m_findings.clear();
    if (session().isReady() && session().isModelKnown())
        load();
    else if (!session().requestModel(kSurveyCode)) // it says why
        stopRunning();
    else
        rebuild();
}

static Result<SurveyReference> referenceOf(const Store &store, const QString &model)
{
    SurveyReference reference;
    for (const int kind : {0, 1, 2}) {
        const Result<QList<RailRow>> rows = railRows(store, {model, kind, RailOrder::ModeloOrig});
        if (!rows)
            return rows.trouble();
        reference.rails[kind] = *rows;
    }
    const Result<QList<BusDevice>> devices = busDevices(store, model);
    if (!devices)
        return devices.trouble();
    reference.devices = *devices;
    const Result<QString> worn = namedSetting(store, kBatteryWorn);
    if (!worn)
        return worn.trouble();
    reference.isBatteryPreset = worn->isEmpty();
    reference.batteryWorn = worn->isEmpty() ? kBatteryWornPreset : worn->toInt();
    return reference;
}

void SurveyScreen::load()
{
    const QString model = session().model();
    withStore<SurveyReference>(
        Store::Access::Read, [model](Store &store) { return referenceOf(store, model); },
        [this](const SurveyReference &reference) { begin(reference); });
}

void SurveyScreen::begin(const SurveyReference &reference)
{
    if (!m_isRunning)
        return;
    m_run = {.id = QUuid::createUuid().toString(QUuid::WithoutBraces),
             .model = session().model(),
             .port = session().port(),
             .language = session().language(),
             .started = QDateTime::currentDateTime(),
             .reference = reference};
    m_run.waiting = surveySteps(m_run.model, m_extras);
    if (m_journaling == Journaling::Kept)
        m_journal.begin(m_run, m_name, m_note);
    m_rest = 0ms;
    m_repeats = 0;
    m_timerPasso.start();
    rebuild();
}

void SurveyScreen::TimerPasso_Timer()
{
    if (!m_timerPasso.isActive())
        return;
    if (!session().isConnected())
        return end(SurveyEnd::LinkLost);
    m_rest = std::max(0ms, m_rest - kTick);
    if (m_isAsked || !session().isReady() || m_rest > 0ms) // another screen's command may be in flight
        return showProgress();
    ask();
}

void SurveyScreen::ask()
{
    if (m_run.waiting.isEmpty())
        return end(SurveyEnd::Finished);
    m_isAsked = true;
    m_sinceAsked.start();
    const SurveyStep step = m_run.waiting.first();
    if (!session().request(step.sentUnder(), step.command))
        m_isAsked = false; // the next tick tries again, or finds the link gone
    showProgress();
}

void SurveyScreen::take(const Delivery &delivery)
{
    if (!m_isAsked)
        return;
    m_isAsked = false;
    if (m_isCancelled)
        return end(SurveyEnd::Cancelled);
    takeReply(delivery);
    if (m_run.waiting.isEmpty())
        end(SurveyEnd::Finished);
}

void SurveyScreen::takeReply(const Delivery &delivery)
{
    const bool isSilent = !m_run.answers.isEmpty() && m_run.answers.last().reply.isEmpty();
    if (delivery.reply.isEmpty() && !isSilent && session().isConnected() && m_repeats++ < kRepeats) {
        m_rest = kPause;
        return showProgress();
    }
    m_repeats = 0;
    const SurveyStep step = m_run.waiting.first();
    const auto took = std::chrono::milliseconds(m_sinceAsked.elapsed()) + step.rest;
    takeAnswer(m_run, delivery, took);
    m_rest = step.rest;
    if (m_journaling == Journaling::Kept)
        m_journal.keep(m_run);
    rebuild();
}

/// What came of a reply before the link was lost is judged like any that was cut.
void SurveyScreen::release(Release why, const Delivery &partial)
{
    if (!m_isRunning)
        return;
    if (why == Release::ModelUnknown || m_run.waiting.isEmpty())
        return stopRunning();
    if (std::exchange(m_isAsked, false) && !partial.reply.isEmpty())
        takeReply(partial);
    end(why == Release::Disconnected ? SurveyEnd::Cancelled : SurveyEnd::LinkLost);
}

void SurveyScreen::btCancelar_Click()
{
    if (!m_isRunning || m_run.waiting.isEmpty())
        return;
    m_isCancelled = true;
    if (m_isAsked)
        session().stop(m_run.waiting.first().sentUnder());
    if (m_isRunning)
        end(SurveyEnd::Cancelled);
}

void SurveyScreen::end(SurveyEnd how)
{
    m_run.end = how;
    m_run.ended = QDateTime::currentDateTime();
    if (m_journaling == Journaling::Kept)
        m_journal.keep(m_run);
    stopRunning();
    if (hasReading())
        emit judged();
}

void SurveyScreen::stopRunning()
{
    m_timerPasso.stop();
    m_isRunning = false;
    m_isAsked = false;
    rebuild();
    emit readingEnded();
}

/// Another phone, for all we know. What was surveyed stands in the journal.
void SurveyScreen::forget()
{
    if (m_isRunning)
        return;
    m_run = {};
    m_note.clear();
    emit noteForgotten();
    rebuild();
}

void SurveyScreen::chooseExtra(SurveyExtra extra, bool wanted)
{
    m_extras.setFlag(extra, wanted);
    showProgress();
}

void SurveyScreen::chooseFilter(Filter filter)
{
    m_filter = filter;
    rebuild();
}

void SurveyScreen::keepNote()
{
    if (m_run.id.isEmpty() || m_journaling == Journaling::None)
        return;
    const QString id = m_run.id;
    const QString note = m_note;
    withStore<Done>(
        Store::Access::Write, [id, note](Store &store) { return setJournalNote(store, id, note); },
        [](const Done &) {});
}

ReportDocument SurveyScreen::report() const
{
    return reportOf(m_run, m_findings, {m_name, m_note}, session().language());
}

void SurveyScreen::showDocumentWork(bool isBusy)
{
    m_isDocumentInWork = isBusy;
    showProgress();
}

SurveyPace SurveyScreen::pace() const
{
    return paceOf(m_run.answers, m_run.waiting,
                  m_isAsked ? std::chrono::milliseconds(m_sinceAsked.elapsed()) : std::chrono::milliseconds(0));
}

QString SurveyScreen::currentPart() const
{
    return m_run.waiting.isEmpty() ? QString() : caption(captionKey(m_run.waiting.first().part));
}

void SurveyScreen::DBGrid1_Click(qsizetype row)
{
    const QList<Finding> shown = shownFindings();
    if (row >= 0 && row < shown.size() && !shown.at(row).screens.isEmpty())
        emit screenRequested(shown.at(row).screens.first(), shown.at(row).what);
}
