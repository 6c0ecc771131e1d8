#include "replyplan.h"

#include <algorithm>

using Manner = ReplyPiece::Manner;

namespace {

constexpr qsizetype kPromptBytes = 24;
constexpr qsizetype kBytesBehindSplit = 2; // ") ", so that the split goes through the face itself

QList<ReplyPiece> promptPieces(const QByteArray &prompt, bool split, std::chrono::milliseconds delay)
{
    if (!split)
        return {{prompt, Manner::AtOnce, delay}};
    return {{prompt.chopped(kBytesBehindSplit), Manner::AtOnce, delay},
            {prompt.last(kBytesBehindSplit), Manner::AtOnce, delay + delay * 5 / 2}};
}

/// The cable goes after so many bytes; a shorter reply passes whole.
void cut(ReplyPlan &plan, qsizetype bytes)
{
    for (qsizetype i = 0; i < plan.pieces.size(); ++i) {
        ReplyPiece &piece = plan.pieces[i];
        if (piece.bytes.size() >= bytes) {
            piece.bytes.truncate(bytes);
            plan.pieces.resize(i + 1);
            plan.thenUnplug = true;
            return;
        }
        bytes -= piece.bytes.size();
    }
}

} // namespace

ReplyPlan replyPlan(const PhoneProfile &profile, const QByteArray &command, std::chrono::milliseconds promptDelay)
{
    if (profile.silent)
        return {};
    const QByteArray whole = answer(profile, command);
    const qsizetype echo = command.size() + 2; // its CR LF
    const qsizetype body = whole.size() - echo - kPromptBytes;
    ReplyPlan plan;
    plan.pieces = {{whole.first(echo), Manner::AtOnce}, {whole.sliced(echo, body), Manner::Paced}};
    plan.pieces += promptPieces(whole.last(kPromptBytes), profile.splitPrompt, promptDelay);
    if (profile.dropAt)
        cut(plan, *profile.dropAt);
    return plan;
}
