#include "recordingtext.h"

#include "visibletext.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

QString editable(const QString &recording)
{
    return visibleText(recording);
}

static qsizetype alikeAtStart(const QStringList &shown, const QStringList &typed)
{
    return std::ranges::mismatch(shown, typed).in1 - shown.begin();
}

static qsizetype alikeAtEnd(const QStringList &shown, const QStringList &typed, qsizetype start)
{
    const qsizetype most = std::min(shown.size(), typed.size()) - start;
    qsizetype count = 0;
    while (count < most && shown[shown.size() - 1 - count] == typed[typed.size() - 1 - count])
        ++count;
    return count;
}

/// The last line has no end, so one that is written between others gets the end that the editor knows.
static QString withEnd(const QString &line)
{
    return line.endsWith(u'\r') ? line : line + u'\r';
}

QString edited(const QString &recording, const QString &inEditor)
{
    const QStringList raw = recording.split(u'\n');
    const QStringList shown = editable(recording).split(u'\n');
    const QStringList typed = inEditor.split(u'\n');
    const qsizetype start = alikeAtStart(shown, typed);
    const qsizetype end = alikeAtEnd(shown, typed, start);
    QStringList lines;
    for (qsizetype i = 0; i < typed.size(); ++i) {
        const bool isLast = i == typed.size() - 1;
        if (i < start)
            lines.append(isLast || i < raw.size() - 1 ? raw[i] : withEnd(raw[i]));
        else if (i >= typed.size() - end)
            lines.append(raw[raw.size() - (typed.size() - i)]);
        else
            lines.append(isLast ? typed[i] : withEnd(typed[i]));
    }
    return lines.join(u'\n');
}
