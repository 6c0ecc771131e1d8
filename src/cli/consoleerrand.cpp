#include "consoleerrand.h"

#include "commandguard.h"
#include "comparison.h"
#include "json.h"
#include "terminal.h"

#include <tuple>
#include <utility>

using namespace Qt::StringLiterals;

ConsoleErrand::ConsoleErrand(CommonOptions options, ConsoleOptions console)
    : ModelErrand(std::move(options)), m_console(std::move(console))
{
}

ConsoleErrand::ConsoleErrand(CommonOptions options, ConsoleOptions console, const QByteArray &reply)
    : ModelErrand(std::move(options), reply), m_console(std::move(console))
{
}

void ConsoleErrand::begin()
{
    m_screen.setTolerance(m_console.tolerance);
    m_screen.setCommand(m_console.command);
    connect(&m_screen, &Screen::readingEnded, this, &ConsoleErrand::takeReply, Qt::QueuedConnection);
    m_screen.read();
    if (session().Status() != "3"_L1) // why was told when it was refused
        finish(leavesPhoneAsItIs(m_console.command) ? ExitCode::Link : ExitCode::Usage);
}

void ConsoleErrand::takeReply()
{
    if (isFinished() || std::exchange(m_replied, true))
        return;
    if (m_screen.hasReading() || m_screen.isStray())
        replied();
    else
        finishUnanswered();
}

void RecordErrand::refuseInVain()
{
    if (console().command.contains(u'\''))
        fail({{u"COMMAND_APOSTROPHE"_s}}, ExitCode::Usage);
}

void RecordErrand::replied()
{
    if (screen().isCut())
        return finish(ExitCode::Incomplete);
    connect(&screen(), &MasterScreen::recordingSaved, this, &RecordErrand::tellRecorded);
    screen().btSalvar_Click();
}

/// What was read back from the store is what the phone sent.
void RecordErrand::tellRecorded()
{
    const auto &row = screen().recording();
    if (!row || row->recording.dados != screen().txtConsole())
        return fail({{u"STORE_FAILED"_s, {session().store().path(), u"read back"_s}}}, ExitCode::Store);
    const auto &[model, command] = std::tie(row->recording.aparelho, row->recording.comando);
    const auto bytes = static_cast<qint64>(row->recording.dados.size());
    const QJsonObject recorded{
        {u"model"_s, model}, {u"command"_s, command}, {u"bytes"_s, bytes}, {u"messages"_s, messagesArray(messages())}};
    const Notice told{u"RECORDED"_s, {model, command, QString::number(bytes)}};
    printOut(options().json ? document(recorded) : oneLine({told}, language()) + u'\n');
    finish(ExitCode::Good);
}

std::optional<Integrity> CompareErrand::integrity()
{
    const auto &row = screen().recording();
    return row && !screen().txtComparador().isEmpty() ? std::optional(row->integrity) : std::nullopt;
}

void CompareErrand::replied()
{
    Comparison comparison{.model = session().model(),
                          .command = console().command,
                          .language = language(),
                          .difference = screen().difference(),
                          .summary = screen().summary(),
                          .integrity = integrity(),
                          .cut = screen().isCut(),
                          .mark = screen().autoComparador(),
                          .messages = messages()};
    if (screen().isStray())
        comparison.difference.verdict = Verdict::Incomplete;
    printOut(options().json ? document(toJson(comparison)) : readable(comparison));
    finish(exitCodeFor(comparison.difference.verdict));
}
