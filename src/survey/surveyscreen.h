#pragma once

#include "reportdocument.h"
#include "screen.h"
#include "surveyjournal.h"
#include "surveypace.h"

#include <QElapsedTimer>
#include <QTimer>

/// Whether a survey is taken down.
enum class Journaling
{
    Kept,
    None
};

/// The whole check of a board: every reading that fits the model, one after the other, and one table of findings.
class SurveyScreen : public Screen
{
    Q_OBJECT

public:
    /// What the table shows.
    enum class Filter
    {
        All,
        Faults ///< what failed, was not measured or is marginal
    };

    explicit SurveyScreen(Session &session, QObject *parent = nullptr);
    ~SurveyScreen() override;

    void open() override;
    /// Starts a survey.
    void read() override;
    bool hasReading() const override { return !m_isRunning && !m_run.answers.isEmpty(); }
    QList<Judgement> judgements() const override;

    void btIniciar_Click() { read(); }
    /// Ends the survey; what was answered before stays.
    void btCancelar_Click();
    void chooseExtra(SurveyExtra extra, bool wanted);
    SurveyExtras extras() const { return m_extras; }
    void chooseFilter(Filter filter);
    void chooseJournaling(Journaling journaling) { m_journaling = journaling; }
    /// The technician's note on this board.
    void chooseNote(const QString &note) { m_note = note; }
    /// The note stands: that of a survey that has begun goes to the journal.
    void keepNote();
    const QString &txtNota() const { return m_note; }
    /// Who signs the survey, in place of the name in the store.
    void chooseName(const QString &name) { m_name = name; }
    /// What a customer is handed.
    ReportDocument report() const;
    /// Whether a document is in work: one at a time.
    void showDocumentWork(bool isBusy);
    /// A row of the table was activated: the screen that shows it is opened.
    void DBGrid1_Click(qsizetype row);

    bool isRunning() const { return m_isRunning; }
    const SurveyRun &run() const { return m_run; }
    const SurveyJournal &journal() const { return m_journal; }
    /// In the order of the table, unfiltered, in the user's language.
    const QList<Finding> &findings() const { return m_findings; }
    SurveyPace pace() const;
    /// What is being asked now.
    QString currentPart() const;

    void take(const Delivery &delivery) override;
    /// As good as no answer; what comes late is let pass, and the question asked again.
    void takeStray(const Delivery &delivery) override { take(delivery); }
    void resume() override { load(); }
    void release(Release why, const Delivery &partial) override;

public slots:
    /// Asks the next question as soon as the link is free.
    void TimerPasso_Timer();

signals:
    /// An answer was taken, or time went by.
    void progressed();
    void journalFailed(const Trouble &why);
    /// Another phone: the note was not on it.
    void noteForgotten();

private:
    void load();
    void begin(const SurveyReference &reference);
    void ask();
    void takeReply(const Delivery &delivery);
    void end(SurveyEnd how);
    void stopRunning();
    void forget();
    /// Judges every answer anew.
    void rebuild();
    void showProgress();
    QList<Finding> shownFindings() const;
    Panel makeReading() const;
    QMap<QString, Field> state() const;
    QString progressText() const;

    SurveyRun m_run;
    SurveyJournal m_journal;
    QList<Finding> m_findings;
    SurveyExtras m_extras;
    Filter m_filter = Filter::All;
    Journaling m_journaling = Journaling::Kept;
    QString m_note;
    QString m_name;
    bool m_isRunning = false;
    bool m_isAsked = false; ///< the first step that waits is in flight
    bool m_isCancelled = false;
    std::chrono::milliseconds m_rest{0};
    int m_repeats = 0; ///< of the question that is asked now
    bool m_isDocumentInWork = false;
    QElapsedTimer m_sinceAsked;
    QTimer m_timerPasso;
};
