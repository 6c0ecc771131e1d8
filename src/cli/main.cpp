#include "arguments.h"
#include "consoleerrand.h"
#include "detecterrand.h"
#include "ownfolders.h"
#include "readingerrand.h"
#include "replyfile.h"
#include "senderrand.h"
#include "simerrand.h"
#include "stopsignals.h"
#include "storecommands.h"
#include "surveyerrand.h"
#include "terminal.h"

#include <QCoreApplication>
#include <QGuiApplication>

#include <cstdio>
#include <memory>

using namespace Qt::StringLiterals;

/// Runs the event loop until the errand ends.
template <typename T>
static int runErrand(QCoreApplication &app, T &errand)
{
    QObject::connect(
        &errand, &T::finished, &app, [](ExitCode code) { QCoreApplication::exit(static_cast<int>(code)); },
        Qt::QueuedConnection);
    const StopSignals stops;
    QObject::connect(&stops, &StopSignals::asked, &errand, &T::cancel);
    QMetaObject::invokeMethod(&errand, &T::start, Qt::QueuedConnection);
    return QCoreApplication::exec();
}

/// On a phone, or on a saved reply where one is named.
template <typename T, typename Options>
static int runOnReply(QCoreApplication &app, const CommonOptions &common, const Options &options)
{
    if (options.replyFile.isEmpty()) {
        T errand(common, options);
        return runErrand(app, errand);
    }
    const auto reply = readReply(options.replyFile, common.timeout);
    if (const auto *code = std::get_if<ExitCode>(&reply))
        return static_cast<int>(*code);
    T errand(common, options, std::get<QByteArray>(reply));
    return runErrand(app, errand);
}

static int simulate(QCoreApplication &app, const Arguments &arguments)
{
    const Result<PhoneProfile> profile = profileFor(arguments.text);
    if (!profile) {
        printError(oneLine(profile.trouble(), Language::English));
        return static_cast<int>(ExitCode::Usage);
    }
    SimErrand errand(*profile);
    return runErrand(app, errand);
}

static int runCommand(QCoreApplication &app, const Arguments &arguments)
{
    switch (arguments.command) {
    case Arguments::Command::Ports:
        return static_cast<int>(listPorts(arguments.common));
    case Arguments::Command::Store:
        return static_cast<int>(arguments.storeCommand->run(arguments.common, arguments.text, arguments.value));
    case Arguments::Command::Run:
    case Arguments::Command::Judge:
        return runOnReply<ReadingErrand>(app, arguments.common, arguments.screen);
    case Arguments::Command::Record:
        return runOnReply<RecordErrand>(app, arguments.common, arguments.console);
    case Arguments::Command::Compare:
        return runOnReply<CompareErrand>(app, arguments.common, arguments.console);
    case Arguments::Command::Survey: {
        SurveyErrand errand(arguments.common, arguments.survey);
        return runErrand(app, errand);
    }
    case Arguments::Command::Sim:
        return simulate(app, arguments);
    case Arguments::Command::Detect: {
        DetectErrand errand(arguments.common);
        return runErrand(app, errand);
    }
    case Arguments::Command::Send: {
        SendErrand errand(arguments.common, arguments.text, arguments.logFile);
        return runErrand(app, errand);
    }
    }
    return static_cast<int>(ExitCode::Usage);
}

/// A verdict that a full disk swallowed must not end like one that was printed.
static int unlessUnwritten(int code)
{
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
        return code;
    printError(u"prelt: the output could not be written whole. Make room where it goes, or name another file."_s);
    return static_cast<int>(weightier(static_cast<ExitCode>(code), ExitCode::Incomplete));
}

/// A document needs the faces of the system, but no display.
static std::unique_ptr<QCoreApplication> application(int &argc, char **argv, const Arguments &arguments)
{
    if (arguments.survey.pdfFile.isEmpty() && arguments.screen.report.pdf.isEmpty())
        return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QGuiApplication>(argc, argv);
}

int main(int argc, char **argv)
{
    const auto arguments = parseArguments(argc, argv);
    if (const auto *code = std::get_if<ExitCode>(&arguments))
        return static_cast<int>(*code);
    const auto app = application(argc, argv, std::get<Arguments>(arguments));
    QCoreApplication::setApplicationName(u"tavimo-prelt"_s);
    QCoreApplication::setApplicationVersion(u"2.22"_s);
    keepFoldersToOwner(std::get<Arguments>(arguments).common.home);
    return unlessUnwritten(runCommand(*app, std::get<Arguments>(arguments)));
}
