#include "exchangefile.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>

#include <algorithm>
#include <tuple>

using namespace Qt::StringLiterals;

ExchangeFile::ExchangeFile(const QString &folder, const ExchangeLimits &limits)
    : m_folder(folder),
      m_stem(QDateTime::currentDateTimeUtc().toString(u"'exchange-'yyyyMMdd-HHmmsszzz"_s) +
             u"-%1"_s.arg(QCoreApplication::applicationPid())),
      m_limits(limits)
{
}

QString ExchangeFile::nameOf(int part) const
{
    return m_folder.filePath(u"%1-%2.log"_s.arg(m_stem).arg(part, 4, 10, QLatin1Char('0')));
}

QStringList ExchangeFile::files() const
{
    QStringList names;
    for (int part = 1; part <= m_parts; ++part)
        names.append(nameOf(part));
    return names;
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
    m_folder.mkpath(u"."_s);
    makeRoom();
    m_file.setFileName(nameOf(m_parts + 1));
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::NewOnly | QIODevice::Unbuffered))
        return false;
    ++m_parts;
    m_file.setPermissions(QFile::ReadOwner | QFile::WriteOwner); // it holds serial numbers of customers' phones
    m_size = m_file.write(kExchangeHeading);
    return m_size > 0;
}

/// By the time of the last write, so that a session that still runs elsewhere keeps its file.
void ExchangeFile::makeRoom()
{
    QFileInfoList old = m_folder.entryInfoList({u"exchange-*.log"_s}, QDir::Files);
    std::ranges::sort(old, {}, [](const QFileInfo &file) { return std::tuple(file.lastModified(), file.fileName()); });
    qint64 total = m_limits.file; // what the new one may grow to
    for (const QFileInfo &file : std::as_const(old))
        total += file.size();
    for (const QFileInfo &file : std::as_const(old)) {
        if (total <= m_limits.folder)
            return;
        if (QFile::remove(file.filePath()))
            total -= file.size();
    }
}
