#include "ownecho.h"

#include "replygatherer.h"

static bool beginsAnswer(QStringView before)
{
    const QStringView text = before.trimmed();
    return text.isEmpty() || text.endsWith(QLatin1StringView(kPrompt));
}

static bool endsLine(QStringView behind)
{
    while (behind.startsWith(u' '))
        behind = behind.sliced(1);
    return behind.isEmpty() || behind.front() == u'\r' || behind.front() == u'\n';
}

OwnEcho ownEcho(QStringView gathered, QStringView command)
{
    const QStringView line = command.trimmed();
    if (line.isEmpty())
        return {};
    for (qsizetype end = gathered.size(); end > 0;) {
        const qsizetype at = gathered.first(end).lastIndexOf(line);
        if (at < 0)
            break;
        if (beginsAnswer(gathered.first(at)) && endsLine(gathered.sliced(at + line.size())))
            return {true, at};
        end = at + line.size() - 1;
    }
    return {};
}
