#pragma once

#include "exchangefile.h"
#include "exchangeline.h"
#include "port.h"
#include "result.h"

#include <QObject>
#include <QTimer>

#include <deque>

/// Everything that passes between us and the phone, from the first byte: the newest of it in memory to be shown, all
/// of it in files. A disk that takes nothing is told once and tried again; the session never waits for it.
class ExchangeLog : public QObject
{
    Q_OBJECT

public:
    /// Keeps its files in this folder.
    explicit ExchangeLog(const QString &folder, const ExchangeLimits &limits = {}, QObject *parent = nullptr);
    ~ExchangeLog() override;

    /// Takes down what passes this port. To be called before the port is opened.
    void watch(Port &port);
    /// What is taken down from now on is another connection's, with files of its own.
    void beginConnection();
    void add(const Exchange &exchange);

    /// Chunks are numbered from 0; those from `first()` up to before `end()` are in memory.
    qint64 first() const { return m_first; }
    qint64 end() const { return m_first + static_cast<qint64>(m_kept.size()); }
    const Exchange &at(qint64 number) const { return m_kept.at(static_cast<std::size_t>(number - m_first)); }
    /// Bytes of this session that are no longer in memory.
    qint64 droppedBytes() const { return m_droppedBytes; }

    /// Writes the whole exchange of this session to a file of the person's choice, in the form of the log's files.
    /// What is missing is said in it.
    Result<Done> saveTo(const QString &path);

public slots:
    /// Brings what came since the last time to disk.
    void flush();

signals:
    /// There are new chunks; also sent for each of a flood, so look at `end()` now and then instead of painting here.
    void added();
    void notWritten(const Trouble &trouble);
    /// The log is full, and a connection that took more than its share lost its oldest part. Told once.
    void dropped(const Trouble &trouble);

private:
    struct Batch
    {
        QByteArray lines;
        qint64 end = 0;
    };

    void take(Exchange::Direction direction, const QByteArray &bytes);
    void dropOldest();
    void tellDropped();
    Batch batchFrom(qint64 number) const;

    std::deque<Exchange> m_kept;
    ExchangeLimits m_limits;
    qint64 m_first = 0;
    qsizetype m_keptCost = 0;
    qint64 m_droppedBytes = 0;

    ExchangeFile m_file;
    QTimer m_timer;
    qint64 m_written = 0; // number behind the last chunk that is on disk
    qsizetype m_unwrittenBytes = 0;
    bool m_hasPhoneSpoken = false; ///< on this connection
    bool m_failing = false;
    bool m_told = false;
    bool m_toldDropped = false;
};
