#include "panel.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

QString literal(Colour colour)
{
    static constexpr std::array kLiterals = {"&H00FFFFFF", "&H0080FFFF", "&H00C0FFC0", "&H0000FFFF", "&H0000FF00",
                                             "&H0000C000", "&H00000000", "&H8000000F", "&H0000FF00", "&H00808080"};
    return QString::fromLatin1(kLiterals.at(static_cast<std::size_t>(colour)));
}

QString Row::cell(QStringView column) const
{
    const auto found = std::ranges::find_if(cells, [column](const auto &cell) { return cell.first == column; });
    return found == cells.end() ? QString() : found->second;
}

void neverGoodWhenCut(Panel &panel, bool cut)
{
    if (cut && panel.verdict == Verdict::Pass)
        panel.verdict = Verdict::Incomplete;
}

std::optional<double> Row::largestDrift() const
{
    std::optional<double> largest;
    for (const std::optional<double> percent : drift)
        if (percent && (!largest || std::abs(*percent) > std::abs(*largest)))
            largest = percent;
    return largest;
}
