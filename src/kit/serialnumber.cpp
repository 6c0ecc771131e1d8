#include "serialnumber.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

QString serialIn(const QString &reply)
{
    static const QRegularExpression kSerial(u"^(?:SrNm)?:?\\s*\"?([0-9A-Z]{8,17})\"?$"_s);
    for (const QString &line : reply.split(u'\n'))
        if (const auto match = kSerial.match(line.trimmed()); match.hasMatch())
            return match.captured(1);
    return {};
}
