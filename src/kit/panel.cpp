#include "panel.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

QString literal(Colour colour)
{
    static constexpr std::array kLiterals = {"&H00FFFFFF", "&H0080FFFF", "&H00C0FFC0", "&H0000FFFF",
                                             "&H0000C000", "&H00000000", "&H8000000F"};
    return QString::fromLatin1(kLiterals.at(static_cast<std::size_t>(colour)));
}

QString Row::cell(QStringView column) const
{
    const auto found = std::ranges::find_if(cells, [column](const auto &cell) { return cell.first == column; });
    return found == cells.end() ? QString() : found->second;
}
