#include "alignment.h"

#include "uniquelines.h"

#include <QSet>

#include <dtl/dtl.hpp>

#include <algorithm>
#include <vector>

namespace {

/// A part of a sequence, from a place up to before another.
struct Part
{
    const QList<int> &sequence;
    qsizetype begin;
    qsizetype end;

    qsizetype size() const { return end - begin; }
    int first() const { return sequence[begin]; }
    int last() const { return sequence[end - 1]; }
    QSet<int> elements() const { return {sequence.begin() + begin, sequence.begin() + end}; }
};

/// What of a part the other one has too: the rest can have no partner, and only costs time.
struct Candidates
{
    std::vector<int> elements;
    std::vector<qsizetype> places;
};

Candidates candidates(const Part &part, const QSet<int> &wanted)
{
    Candidates found;
    for (qsizetype place = part.begin; place < part.end; ++place) {
        if (!wanted.contains(part.sequence[place]))
            continue;
        found.elements.push_back(part.sequence[place]);
        found.places.push_back(place);
    }
    return found;
}

/// The library tells the steps from one sequence to the other; its own indexes do not hold for long ones.
void appendSteps(Pairs &pairs, const Candidates &left, const Candidates &right)
{
    if (left.elements.empty() || right.elements.empty())
        return;
    dtl::Diff<int, std::vector<int>> diff(left.elements, right.elements);
    diff.compose();
    std::size_t i = 0;
    std::size_t j = 0;
    const auto steps = diff.getSes().getSequence();
    for (const auto &step : steps) {
        if (step.second.type == dtl::SES_COMMON)
            pairs.emplaceBack(left.places[i], right.places[j]);
        i += step.second.type == dtl::SES_ADD ? 0 : 1;
        j += step.second.type == dtl::SES_DELETE ? 0 : 1;
    }
}

void appendAligned(Pairs &pairs, Part left, Part right)
{
    while (left.size() > 0 && right.size() > 0 && left.first() == right.first())
        pairs.emplaceBack(left.begin++, right.begin++);
    Pairs tail;
    while (left.size() > 0 && right.size() > 0 && left.last() == right.last())
        tail.emplaceBack(--left.end, --right.end);
    if (left.size() > 0 && right.size() > 0)
        appendSteps(pairs, candidates(left, right.elements()), candidates(right, left.elements()));
    std::ranges::reverse_copy(tail, std::back_inserter(pairs));
}

} // namespace

Pairs aligned(const QList<int> &left, const QList<int> &right)
{
    Pairs pairs;
    qsizetype one = 0;
    qsizetype other = 0;
    for (const auto &[live, recorded] : uniquePairs(left, right)) {
        appendAligned(pairs, {left, one, live}, {right, other, recorded});
        pairs.emplaceBack(live, recorded);
        one = live + 1;
        other = recorded + 1;
    }
    appendAligned(pairs, {left, one, left.size()}, {right, other, right.size()});
    return pairs;
}
