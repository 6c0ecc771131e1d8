#include "readingerrand.h"

#include "json.h"
#include "screentable.h"
#include "terminal.h"

using namespace Qt::StringLiterals;

ReadingErrand::ReadingErrand(CommonOptions options, ScreenOptions screenOptions)
    : Errand(std::move(options)), m_screenOptions(std::move(screenOptions)), m_replayed(false)
{
    makeScreen();
}

ReadingErrand::ReadingErrand(CommonOptions options, ScreenOptions screenOptions, const QByteArray &reply)
    : Errand(std::move(options), reply), m_screenOptions(std::move(screenOptions)), m_replayed(true)
{
    makeScreen();
}

void ReadingErrand::makeScreen()
{
    m_screen = screenByCommand(m_screenOptions.screen)->make(session());
    connect(m_screen.get(), &Screen::readingEnded, this, &ReadingErrand::printReading, Qt::QueuedConnection);
}

void ReadingErrand::start()
{
    Errand::start();
    if (isFinished())
        return;
    if (!m_replayed)
        return connectToPhone();
    session().adopt({}, options().model);
    readScreen();
}

void ReadingErrand::connectedToPhone()
{
    if (!options().model.isEmpty())
        session().chooseModel(options().model);
    if (!session().isModelKnown()) // asking the phone again would only tell the same twice
        return refuseWithoutModel();
    readScreen();
}

void ReadingErrand::refuseWithoutModel()
{
    fail({{u"REFUSED_NO_MODEL"_s}, {{{}, {u"(--model NAME)"_s}}}}, ExitCode::Incomplete);
}

void ReadingErrand::readScreen()
{
    if (std::exchange(m_reading, true))
        return;
    m_screen->open();
    giveOptions(*m_screen, m_screenOptions);
    m_screen->read();
}

void ReadingErrand::printReading()
{
    if (isFinished())
        return;
    const Panel &panel = m_screen->reading();
    if (!session().isModelKnown())
        return refuseWithoutModel();
    if (!m_screen->hasAnswer()) // why was told when it was refused
        return finish(ExitCode::Link);
    const ReadingContext context{session().model(), language(), session().txtComandos(), messages()};
    printOut(options().json ? document(toJson(panel, context)) : readable(panel, language(), colourWanted()));
    finish(exitCodeFor(panel.verdict));
}
