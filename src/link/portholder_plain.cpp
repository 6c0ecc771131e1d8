#include "portholder.h"

std::optional<PortHolder> holderOf(const QString &)
{
    return std::nullopt;
}

QString orphanedLockOf(const QString &)
{
    return {};
}

QStringList runningPrograms()
{
    return {};
}
