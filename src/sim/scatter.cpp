#include "scatter.h"

#include <QString>

using namespace Qt::StringLiterals;

namespace {

void mix(quint32 &hash, QStringView text)
{
    for (const QChar c : text)
        hash = (hash ^ c.unicode()) * 16777619U;
}

/// FNV-1a, and a last stir because texts that differ only at the end would lie close together.
quint32 hashOf(QStringView model, QStringView what)
{
    quint32 hash = 2166136261U;
    mix(hash, model);
    mix(hash, u"/");
    mix(hash, what);
    hash = (hash ^ (hash >> 16)) * 0x85ebca6bU;
    hash = (hash ^ (hash >> 13)) * 0xc2b2ae35U;
    return hash ^ (hash >> 16);
}

} // namespace

double scatter(QStringView model, QStringView what)
{
    constexpr quint32 kSteps = 2000;
    return static_cast<int>(hashOf(model, what) % (kSteps + 1)) / (kSteps / 2.0) - 1.0;
}

QString scatteredDigits(QStringView model, QStringView what)
{
    return u"%1"_s.arg(hashOf(model, what), 8, 16, QLatin1Char('0')).toUpper();
}
