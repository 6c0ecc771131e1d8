#include "filelog.h"

#include "exchangefile.h"

#include <QDateTime>

using namespace Qt::StringLiterals;

Result<Done> FileLog::open()
{
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
        return trouble();
    if (m_file.size() == 0)
        write(kExchangeHeading);
    return m_broken ? Result<Done>(trouble()) : Done{};
}

Trouble FileLog::trouble() const
{
    return {{u"FILE_NOT_WRITTEN"_s, {m_file.fileName(), m_file.errorString()}}};
}

void FileLog::watch(Port &port)
{
    using enum Exchange::Direction;
    connect(&port, &Port::received, this, [this](const QByteArray &bytes) { take(FromPhone, bytes); });
    connect(&port, &Port::sent, this, [this](const QByteArray &bytes) { take(ToPhone, bytes); });
}

void FileLog::take(Exchange::Direction direction, const QByteArray &bytes)
{
    write(exchangeLine({QDateTime::currentMSecsSinceEpoch(), direction, bytes}));
}

void FileLog::write(const QByteArray &line)
{
    m_broken = m_broken || m_file.write(line) != line.size();
}
