#pragma once

#include "language.h"
#include "panel.h"

#include <span>

/// A colour button and what its command says of ground and letters.
struct ColourButton
{
    QLatin1StringView name;
    QStringView caption; ///< key
    QLatin1StringView options;
};

std::span<const ColourButton> colourButtons();
/// The command line of a colour button; nothing for a name that is none.
std::optional<QString> colourCommand(const QString &button, const QString &text);

/// The last index of the light and mode buttons.
inline constexpr int kLastLightButton = 8;
inline constexpr int kDisplayChipButton = 7;
inline constexpr int kModeButton = 8;
/// The command line of such a button, empty where nothing is sent.
QLatin1StringView lightCommand(int index);

inline constexpr int kLowestLevel = 1;
inline constexpr int kHighestLevel = 3;

struct DisplayInput
{
    QString command; ///< that was sent last
    QString reply;   ///< empty: nothing was read yet
    bool isWhole = false;
    QString model;
    Language language = Language::Portuguese;
};

/// What the display was told, and its mode where it was asked for. What it shows is judged by eye.
Panel readDisplay(const DisplayInput &input);

/// The screen of the chip that supplies the model's display.
QString displayChipScreen(const QString &model);
