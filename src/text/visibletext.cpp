#include "visibletext.h"

#include <QChar>

using namespace Qt::StringLiterals;

namespace {

constexpr char32_t kNoBreakSpace = 0xA0;

bool isPlain(char32_t c)
{
    return (c >= 0x20 && c < 0x7F) || c == U'\t' || c == U'\n';
}

/// Marks that turn the direction, join, or mark the byte order; and what no font can show.
bool isUnseen(char32_t c)
{
    switch (QChar::category(c)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Other_PrivateUse:
    case QChar::Other_NotAssigned:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return c == kNoBreakSpace;
    }
}

QString byNumber(char32_t c)
{
    const QString digits = QString::number(c, 16).toUpper();
    return c <= 0xFF ? u"\\x"_s + digits.rightJustified(2, u'0') : u"\\u"_s + digits.rightJustified(4, u'0');
}

QString spelledOut(char32_t c)
{
    return isUnseen(c) ? byNumber(c) : QString::fromUcs4(&c, 1);
}

/// A run of carriage returns before a line feed is part of the line end: the console may have doubled them.
qsizetype returnsAtStart(QStringView text)
{
    qsizetype count = 0;
    while (count < text.size() && text[count] == u'\r')
        ++count;
    return count;
}

char32_t characterAt(QStringView text, qsizetype at)
{
    const bool isPair = text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
    return isPair ? QChar::surrogateToUcs4(text[at], text[at + 1]) : text[at].unicode();
}

} // namespace

QString visibleText(QStringView text)
{
    QString shown;
    shown.reserve(text.size());
    for (qsizetype at = 0; at < text.size();) {
        const char32_t c = characterAt(text, at);
        if (c == U'\r') {
            const qsizetype returns = returnsAtStart(text.sliced(at));
            at += returns;
            if (at == text.size() || text[at] != u'\n')
                shown += byNumber(U'\r').repeated(returns);
            continue;
        }
        if (isPlain(c))
            shown += text[at];
        else
            shown += spelledOut(c);
        at += QChar::requiresSurrogates(c) ? 2 : 1;
    }
    return shown;
}

QString visibleText(QByteArrayView bytes)
{
    return visibleText(QStringView(QString::fromLatin1(bytes)));
}

QString visibleJson(QStringView json)
{
    QString shown;
    shown.reserve(json.size());
    for (qsizetype at = 0; at < json.size();) {
        const char32_t c = characterAt(json, at);
        const qsizetype units = QChar::requiresSurrogates(c) ? 2 : 1;
        for (const QChar unit : json.sliced(at, units)) {
            if (isPlain(c) || !isUnseen(c))
                shown += unit;
            else
                shown += u"\\u%1"_s.arg(unit.unicode(), 4, 16, QChar(u'0'));
        }
        at += units;
    }
    return shown;
}
