#include "readingerrand.h"

#include "json.h"
#include "reportexport.h"
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
    const ScreenCommand &command = *screenByCommand(m_screenOptions.screen);
    if (const auto instead = command.instead ? command.instead(session().model()) : ""_L1; !instead.isEmpty())
        setRemedy({u"USE_COMMAND"_s, {instead, session().model()}});
    m_screen->read();
}

void ReadingErrand::printReading()
{
    if (isFinished())
        return;
    const Panel &panel = m_screen->reading();
    if (!session().isModelKnown())
        return refuseWithoutModel();
    if (!m_screen->hasAnswer() && !m_screen->isStray()) // why was told when it was refused
        return finish(ExitCode::Link);
    const ReportWish &wish = m_screenOptions.report;
    if (wish.isWanted() && !panel.report) // a screen that does not fit the model
        return fail({{u"PRIMEIRO_LEITURA"_s}}, ExitCode::Incomplete);
    if (!wish.pdf.isEmpty())
        writePdf(reportDocument(panel, reportHead()), wish.pdf);
    if (isFinished())
        return;
    if (wish.address)
        return printAddress(panel);
    const ReadingContext context{session().model(), language(), session().txtComandos(), messages()};
    printOut(options().json ? document(toJson(panel, context)) : readable(panel, language(), colourWanted()));
    finish(exitCodeFor(panel.verdict));
}

ReportHead ReadingErrand::reportHead()
{
    const ReportWish &wish = m_screenOptions.report;
    return {wish.date.value_or(reportDate()), language(), session().model(),
            wish.name ? *wish.name : stored(u"name"_s)};
}

void ReadingErrand::printAddress(const Panel &panel)
{
    const QString address = reportAddress(stored(u"report-host"_s), *panel.report, reportHead());
    if (isFinished()) // the store failed
        return;
    printOut(address + u'\n');
    finish(exitCodeFor(panel.verdict));
}
