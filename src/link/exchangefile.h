#pragma once

#include "exchangeroom.h"

#include <QDir>
#include <QFile>

/// What a file of the exchange begins with.
inline constexpr char kExchangeHeading[] =
    "# Tavimo Prelt exchange log. A chunk per line: time (UTC), < from or > to the phone, bytes "
    "(\\\\ \\r \\n \\t, others \\x and two digits).\n";

/// The exchange of this session on disk: files of a limited size in a folder of a limited size, each connection in
/// files of its own. What has to give way, also of earlier sessions, is said in the file that takes its place. No file
/// is made before there is something to write.
class ExchangeFile
{
public:
    ExchangeFile(const QString &folder, const ExchangeLimits &limits);

    /// What is appended from now on belongs to another connection.
    void beginConnection();

    /// Appends whole lines. When that fails nothing of them stays in the file.
    bool append(const QByteArray &lines);

    /// The files of this session so far, oldest first; those that had to give way are named too.
    const QStringList &files() const { return m_files; }
    /// A connection that takes more than its share had to give way, this one or an earlier one.
    bool hasDroppedOfFlood() const { return m_hasDroppedOfFlood; }

    QString folder() const { return m_folder.path(); }
    QString path() const { return m_file.fileName(); }
    QString error() const { return m_file.errorString(); }

private:
    QString connection() const;
    bool begin();
    QByteArray makeRoom();

    QDir m_folder;
    QString m_session;
    ExchangeLimits m_limits;
    QFile m_file;
    qint64 m_size = 0;
    int m_connection = 1;
    int m_parts = 0; ///< of this connection
    QStringList m_files;
    bool m_hasDroppedOfFlood = false;
};
