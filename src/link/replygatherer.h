#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>

/// How fast a reply is polled and when it is given up, by the speed setting.
struct Speed
{
    std::chrono::milliseconds interval{100};
    int replyLimit = 200; ///< follow-up polls; 0 is no limit
};

/// The speed of a setting "1" or "2"; any other text keeps the interval and has no limit.
Speed speedFor(const QString &setting, const Speed &current);

/// How a reply ends.
enum class EndOfReply
{
    Prompt,       ///< with the prompt in the newest chunk
    PromptAtOnce, ///< likewise, already on the first poll
    Silence,      ///< with a pause after some polls; the prompt is not looked for (the battery's long reply)
};

/// A reply on its way: the polls so far and the chunk to add to the console.
struct Gathering
{
    int polls = 0;          ///< saturates at 255
    QByteArray newest = {}; ///< the last chunk that held bytes
    QByteArray chunk = {};  ///< what this poll brought
    bool complete = false;
};

/// The first poll after a command was sent; an empty one completes an empty reply.
Gathering firstPoll(const QByteArray &chunk, EndOfReply end);

/// A further poll.
Gathering followUpPoll(const Gathering &gathering, const QByteArray &chunk, EndOfReply end, int replyLimit);

/// The prompt that ends every reply of the phone.
inline constexpr QByteArrayView kPrompt = ":-)";
