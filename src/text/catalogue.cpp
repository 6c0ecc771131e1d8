#include "catalogue.h"

#include "captiontable.h"
#include "messagetable.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool isKnown(Language language)
{
    return language >= Language::Portuguese && language <= Language::Spanish;
}

std::size_t columnOf(Language language)
{
    return static_cast<std::size_t>(language) - 1;
}

template <typename Row>
const Row *firstRow(std::span<const Row> table, QStringView key)
{
    const auto found = std::ranges::find(table, key, &Row::key);
    return found == table.end() ? nullptr : &*found;
}

const CaptionRow *captionRow(QStringView key)
{
    for (const CaptionTable table : captionTables()) {
        if (const CaptionRow *row = firstRow(table, key))
            return row;
    }
    return nullptr;
}

Message questionMessage(const QuestionRow &row, Language language)
{
    QString text = caption(row.key, language) + row.tail.toString();
    if (!row.secondLineKey.isEmpty())
        text += u'\n' + caption(row.secondLineKey, language);
    return {caption(row.titleKey, language), text.split(u'\n'), MessageIcon::Question};
}

// Patterns only: the gaps are still open.
std::optional<Message> unfilled(QStringView key, Language language)
{
    if (const MessageRow *row = firstRow(benchMessages(), key)) {
        const MessageText &text = row->texts[columnOf(language)];
        return Message{text.title.toString(), text.lines.toString().split(u'\n'), text.icon};
    }
    if (const NoticeRow *row = firstRow(workbenchMessages(), key)) {
        const QString lines = row->lines[columnOf(language)].toString();
        return Message{kProductName.toString(), lines.split(u'\n'), row->icon};
    }
    if (const QuestionRow *row = firstRow(questions(), key))
        return questionMessage(*row, language);
    return std::nullopt;
}

// In one pass, so that an argument holding "%2" is text and no gap.
QString filled(const QString &pattern, const QStringList &arguments)
{
    QString line;
    for (qsizetype at = 0; at < pattern.size(); ++at) {
        const int gap = pattern[at] == u'%' && at + 1 < pattern.size() ? pattern[at + 1].digitValue() : 0;
        if (gap > 0)
            line += arguments.value(gap - 1);
        else
            line += pattern[at];
        at += gap > 0 ? 1 : 0;
    }
    return line;
}

template <typename Row>
void appendKeys(QStringList &keys, std::span<const Row> table)
{
    for (const Row &row : table)
        keys += row.key.toString();
}

} // namespace

QString caption(QStringView key, Language language)
{
    const CaptionRow *row = captionRow(key);
    if (!row || !isKnown(language))
        return {};
    return std::array{row->portuguese, row->english, row->spanish}[columnOf(language)].toString();
}

QString countCaption(QStringView key, qsizetype count, Language language)
{
    const QString number = QString::number(count);
    const QString own = caption(key.toString() + ": "_L1 + number, language);
    return own.isEmpty() ? caption(key, language).arg(number) : own;
}

std::optional<Message> message(const Notice &notice, Language language)
{
    std::optional<Message> shown = isKnown(language) ? unfilled(notice.key, language) : std::nullopt;
    if (!shown)
        return std::nullopt;
    QStringList lines;
    for (const QString &pattern : std::as_const(shown->lines)) {
        const QString line = filled(pattern, notice.arguments);
        if (!line.isEmpty() || pattern.isEmpty()) // a lone gap without content says nothing
            lines += line;
    }
    shown->lines = lines;
    return shown;
}

QStringList captionKeys()
{
    QStringList keys;
    for (const CaptionTable table : captionTables())
        appendKeys(keys, table);
    return keys;
}

QStringList messageKeys()
{
    QStringList keys;
    appendKeys(keys, benchMessages());
    appendKeys(keys, workbenchMessages());
    appendKeys(keys, questions());
    return keys;
}
