#include "uniquelines.h"

#include <algorithm>

namespace {

constexpr qsizetype kNone = -1;
constexpr qsizetype kSeveral = -2;

/// The place of each element that a sequence holds once, by element.
QList<qsizetype> placesOfSingles(const QList<int> &sequence)
{
    QList<qsizetype> places(sequence.isEmpty() ? 0 : std::ranges::max(sequence) + 1, kNone);
    for (qsizetype place = 0; place < sequence.size(); ++place) {
        qsizetype &known = places[sequence[place]];
        known = known == kNone ? place : kSeveral;
    }
    return places;
}

Pairs singlesOfBoth(const QList<int> &left, const QList<int> &right)
{
    const QList<qsizetype> inLeft = placesOfSingles(left);
    const QList<qsizetype> inRight = placesOfSingles(right);
    Pairs pairs;
    for (qsizetype place = 0; place < left.size(); ++place) {
        const qsizetype other = inRight.value(left[place], kNone);
        if (inLeft[left[place]] == place && other >= 0)
            pairs.emplaceBack(place, other);
    }
    return pairs;
}

/// For each pair the one before it in the longest rising run that ends with it, and the end of the longest of all.
struct RisingRuns
{
    QList<qsizetype> before;
    qsizetype end = kNone;
};

RisingRuns risingRuns(const Pairs &pairs)
{
    RisingRuns runs;
    QList<qsizetype> ends; // by length, the pair with the lowest right place that ends a run
    const auto place = [&pairs](qsizetype pair) { return pairs[pair].second; };
    for (qsizetype pair = 0; pair < pairs.size(); ++pair) {
        const auto longer = std::ranges::lower_bound(ends, pairs[pair].second, {}, place);
        runs.before.append(longer == ends.begin() ? kNone : *(longer - 1));
        if (longer == ends.end())
            ends.append(pair);
        else
            ends[longer - ends.begin()] = pair;
    }
    runs.end = ends.isEmpty() ? kNone : ends.last();
    return runs;
}

} // namespace

Pairs uniquePairs(const QList<int> &left, const QList<int> &right)
{
    const Pairs all = singlesOfBoth(left, right);
    const RisingRuns runs = risingRuns(all);
    Pairs run;
    for (qsizetype pair = runs.end; pair != kNone; pair = runs.before[pair])
        run.append(all[pair]);
    std::ranges::reverse(run);
    return run;
}
