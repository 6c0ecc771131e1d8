#pragma once

#include <QDateTime>
#include <QList>
#include <QString>

/// How much of the exchange is kept where, in bytes.
struct ExchangeLimits
{
    qsizetype memory = 4 << 20;
    qint64 file = 12 << 20;
    qint64 folder = 96 << 20; ///< holds a flood of 20 MB even when every byte takes four
    qsizetype files = 5000;   ///< in the folder: short connections would be too many to look through

    /// What a connection may keep when the folder is full, whatever others need.
    qint64 share() const { return folder / 4; }
};

/// A file of the log. A connection may have several.
struct ExchangePart
{
    QString path;
    QString connection;
    qint64 size = 0;
    QDateTime changed = {};
};

/// What must go so that this connection may begin another file, and why.
struct ExchangeRoom
{
    QList<ExchangePart> dropped = {};
    bool hasFlood = false; ///< some of it was of a connection that took more than its share
};

/// A connection that takes more than its share gives way first, its oldest part; then whatever is oldest, by the time
/// of the last write, so that a program that still runs elsewhere keeps its file.
ExchangeRoom roomFor(const QString &connection, QList<ExchangePart> parts, const ExchangeLimits &limits);
