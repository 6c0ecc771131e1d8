#include "railevaluation.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

/// A run of reading indices whose labels are numbered; the holes between the runs have no label.
struct LabelRun
{
    int first;
    int last;
    QLatin1StringView stem;
    int number; ///< that of the first label; -1: the label has none
};

static constexpr std::array kLabelRuns = {
    LabelRun{0, 11, "BIST buck"_L1, 0},       LabelRun{12, 14, "BIST buck3_sw"_L1, 1},
    LabelRun{15, 16, "BIST buck4_sw"_L1, 1},  LabelRun{20, 31, "ibuck"_L1, 0}, // the only ones without "BIST"
    LabelRun{40, 59, "BIST ldo"_L1, 0},       LabelRun{60, 79, "BIST ildo"_L1, 0},
    LabelRun{80, 80, "BIST ibuf_1v2"_L1, -1}, LabelRun{81, 81, "BIST vbuf_1v2"_L1, -1},
    LabelRun{82, 82, "BIST vrtc"_L1, -1},
};

QString BistLabel(const QString &index)
{
    const int number = index.toInt();
    const auto run = std::ranges::find_if(
        kLabelRuns, [number](const LabelRun &row) { return number >= row.first && number <= row.last; });
    if (run == kLabelRuns.end() || index != QString::number(number))
        return {};
    const QString suffix = run->number < 0 ? QString() : QString::number(run->number + number - run->first);
    return run->stem + suffix + u':';
}
