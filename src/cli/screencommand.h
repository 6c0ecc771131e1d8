#pragma once

#include "screen.h"

#include <memory>
#include <optional>
#include <span>
#include <string>

/// An option of one screen's command.
struct ScreenOption
{
    enum class Takes
    {
        Text,
        Nothing ///< a flag; it gives an empty text
    };

    enum class Need
    {
        Optional,
        Required,
        OneOf ///< exactly one of the options so marked
    };

    enum class Use
    {
        Always,
        OnPhone ///< not for a saved reply
    };

    const char *name;
    const char *help;
    void (*give)(Screen &screen, const QString &text); ///< called before the reading
    std::span<const char *const> choices = {};         ///< the texts it takes; empty: any
    const char *preset = nullptr;                      ///< given when the command line has none
    Need need = Need::Optional;
    Takes takes = Takes::Text;
    Use use = Use::Always;
    /// What is wrong with a text, nothing when it may be given.
    std::string (*complaint)(const std::string &text) = nullptr;
};

/// Whether a screen's reading can be reported.
enum class Reported
{
    No,
    Yes
};

/// A screen that the command line can run. Its options are given in the order of the list.
struct ScreenCommand
{
    QLatin1StringView command;
    QLatin1StringView help;
    std::unique_ptr<Screen> (*make)(Session &session);
    std::span<const ScreenOption> options = {};
    Reported reported = Reported::No;
    /// The command for a model that this screen refuses; empty: it does not.
    QLatin1StringView (*instead)(const QString &model) = nullptr;
};

template <typename T>
std::unique_ptr<Screen> makeScreen(Session &session)
{
    return std::make_unique<T>(session);
}
