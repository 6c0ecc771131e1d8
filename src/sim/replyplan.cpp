#include "replyplan.h"

#include "checkanswer.h"

#include <algorithm>

using Manner = ReplyPiece::Manner;

namespace {

constexpr qsizetype kPromptBytes = 24;
constexpr qsizetype kBytesBehindSplit = 2; // ") ", so that the split goes through the face itself
constexpr int kRestart = 25;               // in delays of a prompt: three seconds

QList<ReplyPiece> promptPieces(const QByteArray &prompt, bool split, std::chrono::milliseconds delay)
{
    if (!split)
        return {{prompt, Manner::AtOnce, delay}};
    return {{prompt.chopped(kBytesBehindSplit), Manner::AtOnce, delay},
            {prompt.last(kBytesBehindSplit), Manner::AtOnce, delay + delay * 5 / 2}};
}

/// The body at the line's pace, or each of its lines after a pause.
QList<ReplyPiece> bodyPieces(const QByteArray &body, std::chrono::milliseconds pause)
{
    if (pause.count() == 0)
        return {{body, Manner::Paced}};
    QList<ReplyPiece> pieces;
    std::chrono::milliseconds time{0};
    for (qsizetype at = 0; at < body.size(); time += pause) {
        const qsizetype end = body.indexOf('\n', at) + 1;
        pieces.append({body.sliced(at, end - at), Manner::AtOnce, time});
        at = end;
    }
    return pieces;
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
    using Ending = ShellAnswer::Ending;
    const QString line = QString::fromLatin1(command).simplified();
    const auto check = checkAnswer(profile, line);
    const ShellAnswer own = check ? *check : shellAnswer(line).value_or(ShellAnswer{});
    const QByteArray whole = answer(profile, command);
    const qsizetype echo = command.size() + 2; // its CR LF
    const qsizetype prompt = own.ending == Ending::NoPrompt ? 0 : kPromptBytes;
    const qsizetype body = whole.size() - echo - prompt;
    ReplyPlan plan;
    plan.pieces = {{whole.first(echo), Manner::AtOnce}};
    plan.pieces += bodyPieces(whole.sliced(echo, body), promptDelay * own.pauses);
    const auto delay = own.ending == Ending::LatePrompt ? promptDelay * kRestart : promptDelay;
    if (prompt > 0)
        plan.pieces += promptPieces(whole.last(prompt), profile.splitPrompt, plan.pieces.last().earliest + delay);
    if (profile.dropAt)
        cut(plan, *profile.dropAt);
    return plan;
}
