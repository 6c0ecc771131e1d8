#include "catalogue.h"

#include "captiontable.h"
#include "messagetable.h"

#include <algorithm>

namespace {

template <typename Row>
const Row *firstRow(std::span<const Row> table, QStringView key)
{
    const auto found = std::ranges::find(table, key, &Row::key);
    return found == table.end() ? nullptr : &*found;
}

bool isKnown(Language language)
{
    return language >= Language::Portuguese && language <= Language::Spanish;
}

// A line that holds nothing but a gap without content says nothing and is left out.
void appendFilled(QStringList &lines, QStringView pattern, const QStringList &arguments)
{
    QString line;
    for (qsizetype at = 0; at < pattern.size(); ++at) {
        const bool gap = pattern[at] == u'%' && at + 1 < pattern.size() && pattern[at + 1].isDigit();
        if (gap)
            line += arguments.value(pattern[++at].digitValue() - 1);
        else
            line += pattern[at];
    }
    if (!line.isEmpty() || pattern.isEmpty())
        lines += line;
}

} // namespace

QString caption(QStringView key, Language language)
{
    const CaptionRow *row = firstRow(captionTable(), key);
    if (!row)
        return {};
    switch (language) {
    case Language::Portuguese:
        return row->portuguese.toString();
    case Language::English:
        return row->english.toString();
    case Language::Spanish:
        return row->spanish.toString();
    }
    return {};
}

std::optional<Message> message(const Notice &notice, Language language)
{
    const MessageRow *row = firstRow(messageTable(), notice.key);
    if (!row || !isKnown(language))
        return std::nullopt;
    const MessageText &text = row->texts[static_cast<std::size_t>(language) - 1];
    Message filled{text.title.toString(), {}, text.icon};
    for (const QStringView line : text.lines.split(u'\n'))
        appendFilled(filled.lines, line, notice.arguments);
    return filled;
}

QStringList captionKeys()
{
    QStringList keys;
    for (const CaptionRow &row : captionTable())
        keys += row.key.toString();
    return keys;
}

QStringList messageKeys()
{
    QStringList keys;
    for (const MessageRow &row : messageTable())
        keys += row.key.toString();
    return keys;
}
