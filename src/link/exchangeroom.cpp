#include "exchangeroom.h"

#include <QMap>

#include <algorithm>
#include <tuple>

namespace {

/// The connection that takes most, where that is more than its share.
QString flood(const QMap<QString, qint64> &sizes, qint64 share)
{
    const auto largest = std::ranges::max_element(sizes);
    return largest != sizes.end() && *largest > share ? largest.key() : QString();
}

} // namespace

ExchangeRoom roomFor(const QString &connection, QList<ExchangePart> parts, const ExchangeLimits &limits)
{
    std::ranges::sort(parts, {}, [](const ExchangePart &part) { return std::tuple(part.changed, part.path); });
    QMap<QString, qint64> sizes{{connection, limits.file}}; // what the new file may grow to
    qint64 total = limits.file;
    for (const ExchangePart &part : std::as_const(parts)) {
        sizes[part.connection] += part.size;
        total += part.size;
    }
    ExchangeRoom room;
    while (!parts.isEmpty() && (total > limits.folder || parts.size() >= limits.files)) {
        const QString greedy = flood(sizes, limits.share());
        auto going = std::ranges::find(parts, greedy, &ExchangePart::connection);
        room.hasFlood = room.hasFlood || going != parts.end();
        going = going == parts.end() ? parts.begin() : going;
        sizes[going->connection] -= going->size;
        total -= going->size;
        room.dropped.append(*going);
        parts.erase(going);
    }
    return room;
}
