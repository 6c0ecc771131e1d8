#include "modelreply.h"

#include "models.h"

#include <algorithm>

using namespace Qt::StringLiterals;

static bool isLineEnd(QChar c)
{
    return c == u'\r' || c == u'\n';
}

static QString withoutTrailingLineEnd(QString record)
{
    while (!record.isEmpty() && isLineEnd(record.back()))
        record.chop(1);
    return record;
}

/// The text between two positions that count from 1, the second not included.
static QString between(const QString &text, qsizetype start, qsizetype end)
{
    return withoutTrailingLineEnd(text.mid(start - 1, std::max<qsizetype>(end - start, 0)));
}

/// The record is cut where the echo with its CR LF puts it; a phone that ends the echo with one character less is
/// read from the first character that is no line end.
static QString cutRecord(const QString &console, qsizetype hash, qsizetype end)
{
    const QString asWritten = between(console, hash + 4, end);
    if (asWritten.startsWith(u'A'))
        return asWritten;
    const auto first = std::find_if_not(console.cbegin() + hash, console.cend(), isLineEnd);
    const QString fromFirst = between(console, std::distance(console.cbegin(), first) + 1, end);
    return fromFirst.startsWith(u'A') ? fromFirst : asWritten;
}

ModelReply modelReply(const QString &console)
{
    const qsizetype hash = console.indexOf(u'#') + 1;
    const qsizetype end = console.indexOf(u'[') + 1 - 2;
    if (hash < 1 || end < 1)
        return {};
    if (console.contains("SystemConfig Driver is missing!"_L1))
        return {ModelReply::Kind::DriverMissing, {}, {}};
    const QString record = cutRecord(console, hash, end);
    if (console.contains("Command"_L1) || !record.startsWith(u'A'))
        return {ModelReply::Kind::NotANumber, record, {}};
    const QString model = modelForNumber(record);
    return {model.isEmpty() ? ModelReply::Kind::UnknownNumber : ModelReply::Kind::Identified, record, model};
}
