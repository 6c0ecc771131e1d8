#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// What the diagnostics shell answers by itself, whatever the board: lines, how far apart they come, and how it ends.
struct ShellAnswer
{
    enum class Ending
    {
        Prompt,
        LatePrompt, ///< after a restart
        NoPrompt    ///< switched off, or busy until it is told to end
    };

    QStringList lines = {};
    Ending ending = Ending::Prompt;
    int pauses = 0; ///< before each line, in delays of a prompt
};

/// The answer to a command line, whatever its letter case; nothing when it is none of the shell's own.
std::optional<ShellAnswer> shellAnswer(const QString &line);

/// What the phone is about after a command.
enum class Mood
{
    Listening,
    TestingButtons, ///< shown on its own screen; it takes no command but the end of the test
    Off
};

/// The mood that a command line leads to.
Mood moodAfter(Mood mood, const QString &line);
