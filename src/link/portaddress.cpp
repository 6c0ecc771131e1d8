#include "portaddress.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using enum PortAddress::Kind;

namespace {

bool isDigits(QStringView text)
{
    return !text.isEmpty() && std::ranges::all_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
}

PortAddress numberAddress(QStringView digits)
{
    bool fits = false;
    const int number = digits.toInt(&fits);
    if (!fits || number > kHighestPort)
        return {NumberTooHigh};
    return number < 1 ? PortAddress{} : PortAddress{Number, number};
}

QStringView withoutPrefix(QStringView text, QLatin1StringView prefix)
{
    return text.startsWith(prefix, Qt::CaseInsensitive) ? text.sliced(prefix.size()) : text;
}

} // namespace

PortAddress portAddress(const QString &typed)
{
    const QString text = typed.trimmed();
    if (text.startsWith(u'/'))
        return {Path, 0, text};
    if (text.startsWith("sim:"_L1, Qt::CaseInsensitive))
        return {Simulated, 0, text.sliced(4).trimmed()};
    const QStringView digits = withoutPrefix(text, "COM"_L1);
    return isDigits(digits) ? numberAddress(digits) : PortAddress{};
}
