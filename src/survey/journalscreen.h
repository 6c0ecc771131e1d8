#pragma once

#include "journal.h"
#include "journalcomparison.h"
#include "reportdocument.h"
#include "screen.h"

#include <QMap>
#include <QTimer>

/// The journal of surveys: finds them, shows one or two side by side, keeps the technician's notes, hands them out.
class JournalScreen : public Screen
{
    Q_OBJECT

public:
    explicit JournalScreen(Session &session, QObject *parent = nullptr);

    void open() override { load(); }
    void read() override { load(); }
    bool hasReading() const override { return !m_entries.isEmpty(); }
    /// Surveys may have come while it was hidden; and what was typed is kept before it hides.
    void setShown(bool shown) override;

    /// What is looked for; the list follows when the typing pauses.
    void txtBusca_Change(const QString &text);
    /// Shows one of the listed surveys, or two side by side. More are chosen, but not shown.
    void choose(const QStringList &ids);
    /// The next survey that is chosen is compared with the one that is shown.
    void btComparar_Click();
    /// Between the findings and what went over the line.
    void btTroca_Click();
    void txtNota_Change(const QString &note);
    /// Writes the notes that were typed. One that cannot be written stays, and is tried again the next time.
    void keepNotes();
    /// Forgets the survey, after a question.
    void btExcluir_Click();
    /// The report of the one survey that is shown, anew.
    std::optional<ReportDocument> report() const;
    /// Whether a document is in work: one at a time.
    void showDocumentWork(bool isBusy);

    /// As they are listed, the newest first.
    const QList<JournalSurvey> &surveys() const { return m_surveys; }
    const QStringList &chosen() const { return m_chosen; }
    bool isComparing() const { return m_entries.size() == 2; }
    bool isExchangeShown() const { return m_isExchangeShown; }
    /// Of the survey that is shown, as it was typed last.
    QString note() const;
    QString exchange() const;
    /// What is shown, as a JSON document.
    QByteArray json() const;
    /// The name of a file for what is shown, without ending.
    QString fileName() const;

    void take(const Delivery &delivery) override { Q_UNUSED(delivery) }
    void resume() override {}
    void release(Release why, const Delivery &partial) override
    {
        Q_UNUSED(why)
        Q_UNUSED(partial)
    }

public slots:
    void TimerBusca_Timer();

signals:
    /// Another survey is shown, or its note is another in the store.
    void noteLoaded();

private:
    void load();
    void takeList(const QList<JournalSurvey> &surveys);
    void loadEntries();
    void takeEntries(const QList<JournalEntry> &entries);
    void keepNote(const QString &id, const QString &note);
    void noteWasKept(const QString &id, const QString &note);
    void forget(const QString &id);
    bool isOne() const { return m_entries.size() == 1; }
    void rebuild();
    Panel makePanel() const;
    QString title() const;
    QString summary() const;
    QMap<QString, Field> state() const;

    QString m_search;
    QTimer m_timerBusca;
    QList<JournalSurvey> m_surveys;
    QStringList m_chosen;
    QString m_compared;            ///< the survey that the next one is held against
    QList<JournalEntry> m_entries; ///< what is shown, the older one first
    QList<ComparedOutput> m_outputs;
    QMap<QString, QString> m_typed; ///< notes that are not in the store yet
    bool m_isExchangeShown = false;
    bool m_isDocumentInWork = false;
};
