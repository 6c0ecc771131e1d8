#pragma once

#include "phoneprofile.h"

#include <QByteArray>
#include <QList>

#include <chrono>

/// A stretch of a reply that is sent in one go or at the line's pace.
struct ReplyPiece
{
    enum class Manner
    {
        AtOnce,
        Paced
    };

    QByteArray bytes;
    Manner manner = Manner::Paced;
    std::chrono::milliseconds earliest{0}; ///< since the first byte of the reply
};

/// How a reply goes out over time, and whether the cable is pulled after it.
struct ReplyPlan
{
    QList<ReplyPiece> pieces;
    bool thenUnplug = false;
};

/// The echo at once, the body at the line's pace, the prompt in one write and not before its time. A split prompt
/// comes in two writes, the second `promptDelay` times 2.5 after the first, so that two polls lie between them. What
/// the phone takes its time for comes line by line.
ReplyPlan replyPlan(const PhoneProfile &profile, const QByteArray &command, std::chrono::milliseconds promptDelay);
