#include "backupkeeping.h"

#include <optional>
#include <utility>

namespace {

constexpr qsizetype kLast = 5;
constexpr qint64 kWeek = 7;
constexpr qint64 kQuarter = 13 * kWeek;

enum class Span
{
    Day,
    Week
};

/// The span of time of which one backup is enough.
using Period = std::pair<Span, QDate>;

std::optional<Period> periodOf(const QDate &day, const QDate &today)
{
    const qint64 age = day.daysTo(today);
    if (age >= kQuarter)
        return {};
    return age < kWeek ? Period{Span::Day, day} : Period{Span::Week, day.addDays(1 - day.dayOfWeek())};
}

} // namespace

QList<qsizetype> spareBackups(const QList<QDateTime> &made, const QDate &today)
{
    QList<qsizetype> spare;
    QList<Period> covered;
    for (qsizetype place = 0; place < made.size(); ++place) {
        const std::optional<Period> period = periodOf(made[place].date(), today);
        if (period && !covered.contains(*period))
            covered += *period;
        else if (place >= kLast)
            spare += place;
    }
    return spare;
}
