#include "screentable.h"

#include "checkcommands.h"
#include "chipcommands.h"
#include "options.h"
#include "powercommands.h"

#include <algorithm>
#include <array>

static constexpr std::array kGroups = {powerCommands, chipCommands, checkCommands};

QList<const ScreenCommand *> screenCommands()
{
    QList<const ScreenCommand *> all;
    for (const auto group : kGroups)
        for (const ScreenCommand &screen : group())
            all.append(&screen);
    return all;
}

const ScreenCommand *screenByCommand(const QString &command)
{
    const auto all = screenCommands();
    const auto found = std::ranges::find(all, command, &ScreenCommand::command);
    return found == all.end() ? nullptr : *found;
}

static std::optional<QString> givenText(const ScreenOption &option, const ScreenOptions &options)
{
    if (const auto given = options.given.find(QLatin1StringView(option.name)); given != options.given.end())
        return *given;
    return option.preset ? std::optional(QString::fromLatin1(option.preset)) : std::nullopt;
}

void giveOptions(Screen &screen, const ScreenOptions &options)
{
    for (const ScreenOption &option : screenByCommand(options.screen)->options)
        if (const auto text = givenText(option, options))
            option.give(screen, *text);
}
