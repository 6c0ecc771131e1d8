#include "ownecho.h"

#include "replygatherer.h"

#include <optional>

static bool endsLine(QStringView behind)
{
    while (behind.startsWith(u' '))
        behind = behind.sliced(1);
    return behind.isEmpty() || behind.front() == u'\r' || behind.front() == u'\n';
}

/// Where the line stands at this place, but for white space before it.
static std::optional<qsizetype> lineAt(QStringView text, qsizetype place, QStringView line)
{
    while (place < text.size() && text[place].isSpace())
        ++place;
    const QStringView rest = text.sliced(place);
    return rest.startsWith(line) && endsLine(rest.sliced(line.size())) ? std::optional(place) : std::nullopt;
}

OwnEcho ownEcho(QStringView gathered, QStringView command)
{
    const QLatin1StringView prompt(kPrompt);
    const QStringView line = command.trimmed();
    if (line.isEmpty())
        return {};
    for (qsizetype end = gathered.size();;) {
        const qsizetype before = gathered.first(end).lastIndexOf(prompt);
        if (const auto at = lineAt(gathered, before < 0 ? 0 : before + prompt.size(), line))
            return {true, *at};
        if (before < 0)
            return {};
        end = before;
    }
}
