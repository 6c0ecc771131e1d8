#include "surveypace.h"

#include <algorithm>

using std::chrono::milliseconds;
/// Whole milliseconds cannot be divided well.
using Span = std::chrono::duration<double, std::milli>;

static milliseconds expectedOf(const SurveyStep &step)
{
    return step.expected + step.rest;
}

SurveyPace paceOf(const QList<SurveyAnswer> &done, const QList<SurveyStep> &waiting, milliseconds sinceAsked)
{
    Span took{0};
    Span expected{0};
    for (const SurveyAnswer &answer : done) {
        took += answer.took;
        expected += expectedOf(answer.step);
    }
    Span left{0};
    for (const SurveyStep &step : waiting)
        left += expectedOf(step);
    if (waiting.isEmpty())
        return {100, milliseconds(0)};
    const double slowness = done.isEmpty() ? 1 : took / expected;
    const Span now = std::min(Span(sinceAsked), slowness * Span(expectedOf(waiting.front())));
    const Span ahead = slowness * left - now;
    const Span all = took + now + ahead;
    return {static_cast<int>(100 * (took + now) / std::max(all, Span(1))),
            milliseconds(static_cast<qint64>(ahead.count()))};
}
