#include "replytext.h"

QString lineAround(QStringView reply, qsizetype position)
{
    const qsizetype start = position == 0 ? 0 : reply.lastIndexOf(u'\n', position - 1) + 1;
    const qsizetype end = reply.indexOf(u'\n', position);
    return reply.sliced(start, (end < 0 ? reply.size() : end) - start).trimmed().toString();
}

QString lineWith(QStringView reply, QStringView word)
{
    const qsizetype position = reply.indexOf(word);
    return position < 0 ? QString() : lineAround(reply, position);
}

QString lineBehindEcho(QStringView reply)
{
    const QStringView said = reply.trimmed();
    const qsizetype end = said.indexOf(u'\n');
    return end < 0 ? QString() : lineAround(said, end + 1);
}
