#include "linebytes.h"

#include <algorithm>

using namespace Qt::StringLiterals;

static bool isCarried(uint character)
{
    return character <= 0xFF && QChar::category(character) != QChar::Other_Control;
}

Result<QByteArray> lineBytes(const QString &command)
{
    const QList<uint> characters = command.toUcs4();
    const auto refused = std::ranges::find_if_not(characters, isCarried);
    if (refused == characters.end())
        return command.toLatin1() + '\r';
    const QString name = u"U+%1"_s.arg(*refused, 4, 16, QLatin1Char('0')).toUpper();
    const auto place = std::distance(characters.begin(), refused) + 1;
    return Trouble{{u"COMMAND_NOT_ONE_LINE"_s, {name, QString::number(place)}}};
}
