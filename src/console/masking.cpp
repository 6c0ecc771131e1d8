#include "masking.h"

using namespace Qt::StringLiterals;

/// Stored masks are scattered with these, so that whoever leafs through the table does not read them at once.
static constexpr QLatin1StringView kMarkers[] = {"'qzx'"_L1, "'wvj'"_L1, "'kyb'"_L1};

QStringList withoutMarkers(const QStringList &stored)
{
    QStringList plain = stored;
    for (QString &text : plain)
        for (const QLatin1StringView marker : kMarkers)
            text.remove(marker);
    return plain;
}

QString masked(QString text, const QStringList &masks)
{
    for (const QString &mask : masks)
        if (!mask.isEmpty())
            text.replace(mask, kMasked.toString(), Qt::CaseInsensitive);
    return text;
}
