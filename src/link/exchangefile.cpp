#include "exchangefile.h"

#include "ownfiles.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>

using namespace Qt::StringLiterals;

static QString numbered(int number, int digits)
{
    return u"-%1"_s.arg(number, digits, 10, QLatin1Char('0'));
}

ExchangeFile::ExchangeFile(const QString &folder, const ExchangeLimits &limits)
    : m_folder(folder),
      m_session(QDateTime::currentDateTimeUtc().toString(u"'exchange-'yyyyMMdd-HHmmsszzz"_s) +
                u"-%1"_s.arg(QCoreApplication::applicationPid())),
      m_limits(limits)
{
}

/// A connection's name stands before the last hyphen of its files' names.
QString ExchangeFile::connection() const
{
    return m_session + numbered(m_connection, 3);
}

void ExchangeFile::beginConnection()
{
    m_file.close();
    m_connection += m_parts > 0 ? 1 : 0;
    m_parts = 0;
}

bool ExchangeFile::append(const QByteArray &lines)
{
    const bool isFull = m_size + lines.size() > m_limits.file;
    if ((!m_file.isOpen() || isFull || !m_file.exists()) && !begin())
        return false;
    if (m_file.write(lines) == lines.size()) {
        m_size += lines.size();
        return true;
    }
    m_file.resize(m_size);
    return false;
}

bool ExchangeFile::begin()
{
    m_file.close();
    makeOwnFolder(m_folder.path());
    const QByteArray dropped = makeRoom();
    m_file.setFileName(m_folder.filePath(connection() + numbered(m_parts + 1, 4) + u".log"_s));
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::NewOnly | QIODevice::Unbuffered))
        return false;
    ++m_parts;
    m_files.append(m_file.fileName());
    m_file.setPermissions(QFile::ReadOwner | QFile::WriteOwner); // it holds serial numbers of customers' phones
    m_size = m_file.write(kExchangeHeading + dropped);
    return m_size > 0;
}

/// Gives the lines that say what had to go.
QByteArray ExchangeFile::makeRoom()
{
    QList<ExchangePart> parts;
    for (const QFileInfo &file : m_folder.entryInfoList({u"exchange-*.log"_s}, QDir::Files))
        parts.append({file.filePath(), file.fileName().section(u'-', 0, -2), file.size(), file.lastModified()});
    const ExchangeRoom room = roomFor(connection(), parts, m_limits);
    QByteArray told;
    for (const ExchangePart &part : room.dropped) {
        if (QFile::remove(part.path)) {
            told += "# dropped to make room: " + QFileInfo(part.path).fileName().toUtf8() + ", " +
                    QByteArray::number(part.size) + " bytes\n";
        }
    }
    m_hasDroppedOfFlood = m_hasDroppedOfFlood || (room.hasFlood && !told.isEmpty());
    return told;
}
