#include "helpprefix.h"

using namespace Qt::StringLiterals;

QString helpToggled(QString command)
{
    static constexpr auto kHelp = "help"_L1;
    if (command.contains(kHelp, Qt::CaseInsensitive))
        return command.remove(kHelp).remove(u' ');
    const qsizetype blank = command.indexOf(u' ');
    return kHelp + u' ' + command.left(blank < 0 ? command.size() : blank + 1);
}
