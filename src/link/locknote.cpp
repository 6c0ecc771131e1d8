#include "locknote.h"

#include <limits>

QByteArray lockNote(const PortHolder &holder)
{
    return QByteArray::number(holder.pid) + '\n' + holder.program.toUtf8() + '\n';
}

std::optional<PortHolder> notedHolder(const QByteArray &note)
{
    const QList<QByteArray> lines = note.split('\n');
    const QList<QByteArray> words = lines.first().simplified().split(' ');
    bool isNumber = false;
    const qint64 pid = words.first().toLongLong(&isNumber);
    if (!isNumber || pid < 1 || pid > std::numeric_limits<int>::max())
        return std::nullopt;
    return PortHolder{pid, QString::fromUtf8(words.value(1, lines.value(1).trimmed()))};
}
