#include "commandguard.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

/// One line as the phone takes it: "syscfg" may be followed by a word that reads, and by no other.
static bool onlyReads(const QString &line)
{
    static constexpr QLatin1StringView kReading[] = {"list"_L1, "print"_L1, "help"_L1};
    static const QRegularExpression blanks(u"[\\s\\x00]+"_s); // whatever a phone may take for one
    const QStringList words = line.split(blanks, Qt::SkipEmptyParts);
    if (words.value(0).compare("syscfg"_L1, Qt::CaseInsensitive) != 0)
        return true;
    return std::ranges::any_of(
        kReading, [&](QLatin1StringView word) { return words.value(1).compare(word, Qt::CaseInsensitive) == 0; });
}

bool leavesPhoneAsItIs(const QString &command)
{
    static const QRegularExpression lineEnds(u"[\\r\\n;&|]"_s); // a pasted text may hold several lines
    return std::ranges::all_of(command.split(lineEnds), onlyReads);
}
