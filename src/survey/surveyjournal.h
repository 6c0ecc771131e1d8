#pragma once

#include "journal.h"
#include "storequeue.h"
#include "surveyrun.h"

#include <QLockFile>
#include <QObject>

#include <memory>

/// Takes a survey down in the journal while it goes, each answer in a transaction of its own. What could not be written
/// is told, and tried once more at the end: a survey never waits for its journal.
class SurveyJournal : public QObject
{
    Q_OBJECT

public:
    explicit SurveyJournal(StoreQueue &store, QObject *parent = nullptr) : QObject(parent), m_store(store) {}

    /// Closes as cancelled what a program that was killed left open; surveys that are running elsewhere go on.
    static void closeLeftOpen(StoreQueue &store, QObject *context);

    /// A survey begins; the name and the note go with it.
    void begin(const SurveyRun &run, const QString &name, const QString &note);
    /// Writes what the run has come to since the last time.
    void keep(const SurveyRun &run);
    /// Everything was written.
    bool isComplete() const { return m_isWritten && !m_hasFailed; }

signals:
    void failed(const Trouble &why);

private:
    void write(const JournalEntry &entry);

    StoreQueue &m_store;
    std::unique_ptr<QLockFile> m_running; ///< held beside the store as long as the survey is open
    JournalSurvey m_survey;
    qsizetype m_answers = 0;       ///< so many of the run's were handed over
    QList<JournalFinding> m_known; ///< as they were handed over last
    JournalEntry m_unwritten;
    bool m_hasFailed = false;
    bool m_isWritten = false;
    bool m_isKnown = false; ///< to the store
};

JournalFinding toJournal(const Finding &finding);
Finding fromJournal(const JournalFinding &finding);
