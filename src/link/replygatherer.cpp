#include "replygatherer.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int kMostPolls = 255;
constexpr int kPatientPolls = 100; // so long silence is waited out when no prompt was seen
constexpr int kPollsBeforePause = 5;

struct SpeedRow
{
    QLatin1StringView setting;
    Speed speed;
};

constexpr SpeedRow kSpeeds[] = {
    {"1"_L1, {100ms, 200}},
    {"2"_L1, {500ms, 100}},
};

bool atLimit(int polls, int replyLimit)
{
    return replyLimit != 0 && polls == replyLimit;
}

/// The prompt is looked for in the newest chunk alone: one that came in two halves is not seen, the count ends it.
bool endsWithPrompt(const Gathering &before, const QByteArray &chunk, const QByteArray &newest)
{
    return newest.contains(kPrompt) || (chunk.isEmpty() && before.polls > kPatientPolls);
}

bool endsWithSilence(const Gathering &before, const QByteArray &chunk)
{
    return chunk.isEmpty() && before.polls > kPollsBeforePause;
}

} // namespace

Speed speedFor(const QString &setting, const Speed &current)
{
    const auto row = std::ranges::find(kSpeeds, setting, &SpeedRow::setting);
    return row == std::end(kSpeeds) ? Speed{current.interval, 0} : row->speed;
}

Gathering firstPoll(const QByteArray &chunk, EndOfReply end)
{
    const bool done = chunk.isEmpty() || (end == EndOfReply::PromptAtOnce && chunk.contains(kPrompt));
    return {.polls = 1, .newest = chunk, .chunk = chunk, .complete = done};
}

Gathering followUpPoll(const Gathering &gathering, const QByteArray &chunk, EndOfReply end, int replyLimit)
{
    const QByteArray newest = chunk.isEmpty() ? gathering.newest : chunk;
    const bool ended =
        end == EndOfReply::Silence ? endsWithSilence(gathering, chunk) : endsWithPrompt(gathering, chunk, newest);
    return {.polls = std::min(gathering.polls + 1, kMostPolls),
            .newest = newest,
            .chunk = chunk,
            .complete = ended || atLimit(gathering.polls, replyLimit)};
}
