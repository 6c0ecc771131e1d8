#include "replyline.h"

#include "masking.h"
#include "visibletext.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kPromptEnd = "] :-)"_L1;

bool isNumber(QStringView word)
{
    bool isOne = false;
    const double value = word.toDouble(&isOne);
    return isOne && std::isfinite(value);
}

bool isUnit(QStringView word)
{
    return !word.isEmpty() &&
           std::ranges::all_of(word, [](QChar c) { return c.isLetter() || c == u'%' || c == u'\u00B0' || c == u'/'; });
}

/// Only the masks that occur at all are looked for in every line.
QStringList occurring(const QString &reply, const QStringList &masks)
{
    QStringList found;
    std::ranges::copy_if(masks, std::back_inserter(found), [&](const QString &mask) {
        return !mask.isEmpty() && reply.contains(mask, Qt::CaseInsensitive);
    });
    return found;
}

ReplyLine replyLine(int number, QStringView raw, const QStringList &masks)
{
    ReplyLine line{.number = number, .text = visibleText(raw)};
    const QString whole = raw.toString();
    const QString plain = masks.isEmpty() ? whole : masked(whole, masks);
    line.masks = plain.contains(kMasked);
    line.compared = plain.toCaseFolded();
    line.label = labelOf(line.compared);
    return line;
}

/// Carriage returns and blanks at the end say nothing, nor does the prompt, which is another one on every phone.
QStringView content(QStringView line)
{
    while (!line.isEmpty() && (line.back() == u'\r' || line.back() == u' '))
        line.chop(1);
    while (!line.isEmpty() && line.front() == u'\r')
        line = line.sliced(1);
    return line.endsWith(kPromptEnd) ? line.first(std::max<qsizetype>(0, line.lastIndexOf(u'['))) : line;
}

} // namespace

/// A label ends with a colon or an equals sign, and anything is its value; or it stands before a number alone or a
/// number with its unit.
QString labelOf(QStringView line)
{
    const qsizetype sign = std::ranges::find_if(line, [](QChar c) { return c == u':' || c == u'='; }) - line.begin();
    if (sign > 0 && sign < line.size())
        return line.first(sign).trimmed().toString();
    const qsizetype last = line.lastIndexOf(u' ');
    if (last < 0)
        return {};
    if (isNumber(line.sliced(last + 1)))
        return line.first(last).trimmed().toString();
    const QStringView rest = line.first(last).trimmed();
    const qsizetype before = rest.lastIndexOf(u' ');
    const bool isValue = before > 0 && isUnit(line.sliced(last + 1)) && isNumber(rest.sliced(before + 1));
    return isValue ? rest.first(before).trimmed().toString() : QString();
}

QList<ReplyLine> replyLines(const QString &reply, const QStringList &masks)
{
    const QStringList wanted = occurring(reply, masks);
    QList<ReplyLine> lines;
    int number = 0;
    for (const QStringView raw : QStringTokenizer{reply, u'\n'}) {
        ++number;
        const QStringView line = content(raw);
        if (!line.isEmpty())
            lines.append(replyLine(number, line, wanted));
    }
    return lines;
}
