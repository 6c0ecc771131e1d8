#include "shellcommands.h"

#include "seeds.h"

using namespace Qt::StringLiterals;

namespace {

using Ending = ShellAnswer::Ending;

constexpr auto kShutdown = "shutdown"_L1;
constexpr auto kButtonTest = "buttoncnt --dqe"_L1;
constexpr auto kEndOfButtonTest = "/q"_L1;

bool same(const QString &line, QLatin1StringView command)
{
    return line.compare(command, Qt::CaseInsensitive) == 0;
}

/// The first words of the command list, each once.
QStringList commandWords()
{
    const SeedTable table = seedTable(u"commands"_s);
    QStringList words;
    for (const QStringList &row : table.rows)
        words.append(table.cell(row, u"Comando").section(u' ', 0, 0));
    words.removeDuplicates();
    words.sort();
    return words;
}

/// The command lines that begin with this word, each with what it does.
QStringList helpOn(const QString &word)
{
    const SeedTable table = seedTable(u"commands"_s);
    QStringList lines;
    for (const QStringList &row : table.rows) {
        const QString command = table.cell(row, u"Comando");
        if (command.section(u' ', 0, 0).compare(word, Qt::CaseInsensitive) == 0)
            lines.append(command.leftJustified(36) + table.cell(row, u"Info2"));
    }
    return lines.isEmpty() ? QStringList{u"No help on \"%1\"!"_s.arg(word)} : lines;
}

struct ShellCommand
{
    QLatin1StringView line;
    ShellAnswer (*answer)();
};

constexpr ShellCommand kCommands[] = {
    {"help"_L1, [] { return ShellAnswer{.lines = commandWords()}; }},
    {kShutdown, [] { return ShellAnswer{.ending = Ending::NoPrompt}; }},
    {"reset"_L1, [] { return ShellAnswer{.ending = Ending::LatePrompt}; }},
    {kButtonTest, [] { return ShellAnswer{.lines = {u"Press the buttons"_s}, .ending = Ending::NoPrompt}; }},
    {kEndOfButtonTest, [] { return ShellAnswer{.lines = {u"Button test ended"_s}}; }},
};

} // namespace

std::optional<ShellAnswer> shellAnswer(const QString &line)
{
    if (line.startsWith("help "_L1, Qt::CaseInsensitive))
        return ShellAnswer{.lines = helpOn(line.section(u' ', 1, 1))};
    for (const ShellCommand &command : kCommands)
        if (same(line, command.line))
            return command.answer();
    return std::nullopt;
}

Mood moodAfter(Mood mood, const QString &line)
{
    if (mood == Mood::TestingButtons)
        return same(line, kEndOfButtonTest) ? Mood::Listening : mood;
    if (mood == Mood::Off || same(line, kShutdown))
        return Mood::Off;
    return same(line, kButtonTest) ? Mood::TestingButtons : Mood::Listening;
}
