#pragma once

#include "reportdocument.h"
#include "result.h"

#include <QFutureWatcher>
#include <QObject>

class Session;

/// Makes the documents that are handed out, one at a time, in a worker and with the shop's logo. What keeps one from
/// being written is told in a box.
class DocumentMaker : public QObject
{
    Q_OBJECT

public:
    enum class Afterwards
    {
        Tell, ///< where it is
        Open
    };

    explicit DocumentMaker(Session &session, QObject *parent = nullptr);

    /// Ignored while another one is being made.
    void make(const ReportDocument &document, const QString &path, Afterwards afterwards);
    bool isBusy() const { return m_watcher.isRunning(); }

    /// Where documents are kept that nobody chose a place for.
    static QString folder();
    /// A path in a folder, which is made when it is not there: a document that was handed out is never overwritten.
    static QString freePath(const QString &folder, const QString &name);

signals:
    void busyChanged();
    /// The document is there.
    void written(const QString &path);

private:
    void write(const ReportDocument &document, const QString &path, Afterwards afterwards);
    void end();

    Session &m_session;
    QString m_path; ///< of the document in work
    QString m_logo; ///< in it
    Afterwards m_afterwards = Afterwards::Tell;
    QFutureWatcher<Result<Done>> m_watcher;
};
