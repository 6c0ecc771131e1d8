#include "readingerrand.h"

#include "json.h"
#include "screentable.h"
#include "terminal.h"

using namespace Qt::StringLiterals;

ReadingErrand::ReadingErrand(CommonOptions options, ScreenOptions screenOptions)
    : ModelErrand(std::move(options)), m_screenOptions(std::move(screenOptions))
{
    makeScreen();
}

ReadingErrand::ReadingErrand(CommonOptions options, ScreenOptions screenOptions, const QByteArray &reply)
    : ModelErrand(std::move(options), reply), m_screenOptions(std::move(screenOptions))
{
    makeScreen();
}

void ReadingErrand::makeScreen()
{
    m_screen = screenByCommand(m_screenOptions.screen)->make(session());
    connect(m_screen.get(), &Screen::readingEnded, this, &ReadingErrand::printReading, Qt::QueuedConnection);
}

void ReadingErrand::begin()
{
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
