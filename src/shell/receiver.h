#pragma once

#include "recordings.h"

#include <QString>

#include <optional>

/// A finished reply on its way to the screen that asked.
struct Delivery
{
    QString command;
    QString reply = {};   ///< as the console shows it; empty when no answer came
    bool cut = false;     ///< not the whole reply, or the phone's prompt never came: it must not be judged good
    bool isBound = false; ///< for screens that show recordings: the one of this model and command was looked for
    std::optional<KeptRecording> recording = {};
    QString stray = {}; ///< what came without the echo of the command: no answer to it, and judged by nobody
};

/// Why a waiting screen gets its reply no more.
enum class Release
{
    LinkLost,
    Disconnected,
    ModelUnknown,
    NoAnswer ///< what came is no answer to what was asked
};

/// A screen as the session sees it: it takes the replies of its code.
class Receiver
{
public:
    virtual ~Receiver() = default;

    virtual void take(const Delivery &delivery) = 0;
    /// What came is `stray` text alone.
    virtual void takeStray(const Delivery &delivery) { release(Release::NoAnswer, delivery); }
    /// The model that the screen asked for is known now: the reading goes on.
    virtual void resume() = 0;
    /// The reply will not come. `partial` holds what had come, marked cut.
    virtual void release(Release why, const Delivery &partial) = 0;
};
