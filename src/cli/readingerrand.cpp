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
        return finishUnanswered();
    if (m_screenOptions.report.address && !panel.report) // a screen that does not fit the model
        return fail({{u"PRIMEIRO_LEITURA"_s}}, ExitCode::Incomplete);
    const QString text = shown(panel);
    if (isFinished())
        return;
    printOut(text);
    note(exitCodeFor(panel.verdict));
    if (!m_screenOptions.report.pdf.isEmpty())
        writeReport(panel);
    finish(ExitCode::Good);
}

QString ReadingErrand::shown(const Panel &panel)
{
    if (m_screenOptions.report.address)
        return reportAddress(stored(u"report-host"_s), *panel.report, reportHead()) + u'\n';
    const ReadingContext context{session().model(), language(), session().txtComandos(), messages()};
    return options().json ? document(toJson(panel, context)) : readable(panel, language(), colourWanted());
}

void ReadingErrand::writeReport(const Panel &panel)
{
    if (panel.report)
        writePdf(reportDocument(panel, reportHead()), m_screenOptions.report.pdf);
    else
        fail({{u"PRIMEIRO_LEITURA"_s}}, ExitCode::Incomplete);
}

ReportHead ReadingErrand::reportHead()
{
    const ReportWish &wish = m_screenOptions.report;
    return {wish.date.value_or(reportDate()), language(), session().model(),
            wish.name ? *wish.name : stored(u"name"_s)};
}
