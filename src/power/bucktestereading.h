#pragma once

#include "language.h"
#include "panel.h"
#include "recordings.h"

/// The bucks that the phone can be asked for, whatever its model.
inline constexpr int kLastBuck = 11;

/// The reply for one buck, and the one that was recorded for it.
struct BuckReply
{
    int buck = 0;
    QString reply;
    bool cut = false;
    std::optional<KeptRecording> recording = {};
};

struct BuckInput
{
    QList<BuckReply> replies; ///< in the order in which the bucks were tested
    QList<int> untested = {}; ///< asked for, but not tested: not yet, or no more
    QString model;
    Language language = Language::Portuguese;
};

/// The phone's own verdict on each buck; the panel's lines are the list of results.
struct BuckReading
{
    Panel panel;
    QList<Verdict> verdicts; ///< of the lines
};

BuckReading readBucks(const BuckInput &input);
