#include "arguments.h"
#include "detecterrand.h"
#include "readingerrand.h"
#include "senderrand.h"
#include "simerrand.h"
#include "storecommands.h"
#include "terminal.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

using namespace Qt::StringLiterals;

/// Runs the event loop until the errand ends.
template <typename T>
static int runErrand(QCoreApplication &app, T &errand)
{
    QObject::connect(
        &errand, &T::finished, &app, [](ExitCode code) { QCoreApplication::exit(static_cast<int>(code)); },
        Qt::QueuedConnection);
    QMetaObject::invokeMethod(&errand, &T::start, Qt::QueuedConnection);
    return QCoreApplication::exec();
}

static std::optional<QByteArray> readReply(const QString &path)
{
    QFile file(path);
    const bool open = path == "-"_L1 ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (open)
        return file.readAll();
    printError(u"prelt: --reply %1: %2. Name a file with the phone's bytes, or - for standard input."_s.arg(
        path, file.errorString()));
    return {};
}

static int judge(QCoreApplication &app, const Arguments &arguments)
{
    const auto reply = readReply(arguments.screen.replyFile);
    if (!reply)
        return static_cast<int>(ExitCode::Usage);
    ReadingErrand errand(arguments.common, arguments.screen, *reply);
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
    case Arguments::Command::Judge:
        return judge(app, arguments);
    case Arguments::Command::Sim:
        return simulate(app, arguments);
    case Arguments::Command::Detect: {
        DetectErrand errand(arguments.common);
        return runErrand(app, errand);
    }
    case Arguments::Command::Send: {
        SendErrand errand(arguments.common, arguments.text);
        return runErrand(app, errand);
    }
    case Arguments::Command::Run: {
        ReadingErrand errand(arguments.common, arguments.screen);
        return runErrand(app, errand);
    }
    }
    return static_cast<int>(ExitCode::Usage);
}

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(u"tavimo-prelt"_s);
    QCoreApplication::setApplicationVersion(u"2.22"_s);
    const auto arguments = parseArguments(argc, argv);
    if (const auto *code = std::get_if<ExitCode>(&arguments))
        return static_cast<int>(*code);
    return runCommand(app, std::get<Arguments>(arguments));
}
