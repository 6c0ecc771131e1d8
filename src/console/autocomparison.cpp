#include "autocomparison.h"

#include "masking.h"

using namespace Qt::StringLiterals;

static constexpr auto kPromptFace = "] :-) "_L1;
static constexpr qsizetype kPromptLine = 26; ///< the last line break with the prompt behind it
static constexpr qsizetype kLineBreak = 2;

bool standsInRecording(const QString &console, const QString &recording, const QStringList &masks)
{
    if (recording.isEmpty())
        return false;
    QString reply = masked(console, masks);
    if (reply.indexOf(kPromptFace) >= 1 && reply.size() >= kPromptLine)
        reply.chop(kPromptLine);
    reply.remove(0, kLineBreak);
    return recording.indexOf(reply, 0, Qt::CaseInsensitive) >= 1;
}
