#pragma once

#include "language.h"
#include "panel.h"

#include <array>

/// What a radio is told to do.
enum class RadioAction
{
    On,
    Off,
    Properties
};

/// One of the phone's radios.
struct Radio
{
    QStringView name;
    QLatin1StringView field;                   ///< that shows its state in colour
    std::array<QLatin1StringView, 3> commands; ///< by action
    std::array<QLatin1StringView, 4> markers;  ///< of one that came up; any is enough
    bool isMissingOnOldest = false;            ///< its commands do not work on the first two generations
};

inline constexpr int kRadios = 4;
const Radio &radio(int index);

/// What is known of a radio's state.
enum class RadioState
{
    Unknown,
    Off, ///< it was told to go off
    Up,
    Silent
};

struct RadioInput
{
    int radio = 0;
    RadioAction action = RadioAction::On;
    QString reply;        ///< empty: nothing was read yet
    bool isWhole = false; ///< it came to its end and is to be judged
    bool cut = false;
    Language language = Language::Portuguese;
    std::array<RadioState, kRadios> states = {}; ///< as they were before the reply
};

/// Whether the reply to an on command holds one of the radio's markers.
bool cameUp(int index, const QString &reply);

/// What became of a radio. Only an on command is judged.
Panel readRadio(const RadioInput &input);
