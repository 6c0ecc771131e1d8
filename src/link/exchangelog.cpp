#include "exchangelog.h"

#include <QDateTime>
#include <QSaveFile>

#include <algorithm>
#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto kFlushEvery = 250ms;
constexpr auto kRetryEvery = 60s;
constexpr qsizetype kFlushAt = 64 << 10;
constexpr qsizetype kChunkCost = 96; // what a chunk takes in memory beside its bytes

qsizetype costOf(const Exchange &exchange)
{
    return exchange.bytes.size() + kChunkCost;
}

Trouble notSaved(const QSaveFile &file)
{
    return {{u"FILE_NOT_WRITTEN"_s, {file.fileName(), file.errorString()}}};
}

/// Copies a file of the log; one that had to give way is noted as missing.
bool copy(const QString &path, QIODevice &target)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return target.write("# missing: " + path.toUtf8() + '\n') > 0;
    while (!file.atEnd()) {
        const QByteArray block = file.read(kFlushAt);
        if (block.isEmpty() || target.write(block) != block.size())
            return false;
    }
    return true;
}

} // namespace

ExchangeLog::ExchangeLog(const QString &folder, const ExchangeLimits &limits, QObject *parent)
    : QObject(parent), m_limits(limits), m_file(folder, limits)
{
    m_timer.setSingleShot(true); // nothing to write, nothing to wake up for
    connect(&m_timer, &QTimer::timeout, this, &ExchangeLog::flush);
}

ExchangeLog::~ExchangeLog()
{
    blockSignals(true);
    flush();
}

void ExchangeLog::watch(Port &port)
{
    using enum Exchange::Direction;
    connect(&port, &Port::opened, this, &ExchangeLog::beginConnection);
    connect(&port, &Port::received, this, [this](const QByteArray &bytes) { take(FromPhone, bytes); });
    connect(&port, &Port::sent, this, [this](const QByteArray &bytes) { take(ToPhone, bytes); });
}

/// Where the phone said nothing, as while it is looked for again and again, there is no exchange to tell apart.
void ExchangeLog::beginConnection()
{
    if (!std::exchange(m_hasPhoneSpoken, false))
        return;
    flush();
    m_file.beginConnection();
}

void ExchangeLog::take(Exchange::Direction direction, const QByteArray &bytes)
{
    add({QDateTime::currentMSecsSinceEpoch(), direction, bytes});
}

void ExchangeLog::add(const Exchange &exchange)
{
    if (exchange.bytes.isEmpty())
        return;
    m_hasPhoneSpoken = m_hasPhoneSpoken || exchange.direction == Exchange::Direction::FromPhone;
    m_kept.push_back(exchange);
    m_kept.back().bytes = QByteArray(exchange.bytes.constData(), exchange.bytes.size()); // without spare room
    m_keptCost += costOf(exchange);
    m_unwrittenBytes += exchange.bytes.size();
    const bool isLosing = m_keptCost > m_limits.memory && m_first >= m_written;
    if ((m_unwrittenBytes >= kFlushAt || isLosing) && !m_failing)
        flush();
    else if (!m_timer.isActive())
        m_timer.start(kFlushEvery);
    dropOldest();
    emit added();
}

void ExchangeLog::dropOldest()
{
    while (m_keptCost > m_limits.memory && !m_kept.empty()) {
        m_keptCost -= costOf(m_kept.front());
        m_droppedBytes += m_kept.front().bytes.size();
        m_kept.pop_front();
        ++m_first;
    }
}

ExchangeLog::Batch ExchangeLog::batchFrom(qint64 number) const
{
    Batch batch{{}, std::max(number, m_first)};
    if (batch.end > number)
        batch.lines = "# missing: " + QByteArray::number(batch.end - number) + " chunks that could not be written\n";
    while (batch.end < end() && batch.lines.size() < kFlushAt)
        batch.lines += exchangeLine(at(batch.end++));
    return batch;
}

void ExchangeLog::flush()
{
    m_timer.stop();
    while (m_written < end()) {
        const Batch batch = batchFrom(m_written);
        m_failing = !m_file.append(batch.lines);
        if (m_failing)
            break;
        m_written = batch.end;
    }
    tellDropped();
    if (!m_failing) {
        m_unwrittenBytes = 0;
        return;
    }
    m_timer.start(kRetryEvery);
    if (!std::exchange(m_told, true))
        emit notWritten({{u"LOG_NOT_WRITTEN"_s, {m_file.path(), m_file.error()}}});
}

void ExchangeLog::tellDropped()
{
    if (m_file.hasDroppedOfFlood() && !std::exchange(m_toldDropped, true))
        emit dropped({{u"LOG_DROPPED"_s, {m_file.folder()}}});
}

Result<Done> ExchangeLog::saveTo(const QString &path)
{
    flush();
    QSaveFile target(path);
    if (!target.open(QIODevice::WriteOnly))
        return notSaved(target);
    const QStringList files = m_file.files();
    bool isWhole = std::ranges::all_of(files, [&](const QString &file) { return copy(file, target); });
    for (qint64 number = m_written; isWhole && number < end();) {
        const Batch batch = batchFrom(number);
        isWhole = target.write(batch.lines) == batch.lines.size();
        number = batch.end;
    }
    if (!isWhole || !target.commit())
        return notSaved(target);
    return Done{};
}
