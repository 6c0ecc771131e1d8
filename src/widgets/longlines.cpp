#include "longlines.h"

QString brokenLines(const QString &text)
{
    QString broken;
    qsizetype lineStart = 0;
    qsizetype told = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text[at] == u'\n') {
            lineStart = at + 1;
        } else if (at - lineStart == kLongestLine) {
            broken += QStringView(text).sliced(told, at - told);
            broken += u'\n';
            told = lineStart = at;
        }
    }
    return told == 0 ? text : broken + QStringView(text).sliced(told).toString();
}

QStringView lastLines(const QString &text, int count)
{
    qsizetype at = text.size();
    for (int line = 0; line < count && at > 0; ++line)
        at = text.lastIndexOf(u'\n', at - 1 - text.size());
    return QStringView(text).sliced(at < 0 ? 0 : at + (at < text.size() ? 1 : 0));
}
