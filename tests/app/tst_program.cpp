#include "programbench.h"
#include "seeds.h"

#include <QSettings>
#include <QStandardPaths>

namespace {

struct Bench : ProgramBench
{
    Bench()
    {
        if (!createStore(folder.filePath(u"Config.pmx"_s)))
            qFatal("no store for the test");
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    }
    void start(QProcess &program, const QStringList &arguments = {}) const
    {
        ProgramBench::start(program, QStringLiteral(PRELT_WINDOW), arguments);
    }
    /// Leaves a survey running.
    void startSurvey(QProcess &program) const
    {
        start(program, {u"--port"_s, u"sim:IP 6s"_s, u"--connect"_s, u"--screen"_s, u"survey"_s, u"--read"_s});
    }
    QString layout() const { return folder.filePath(u"state/tavimo-prelt/window.ini"_s); }
};

/// A display of its own, or none where the machine has no such program.
struct Display
{
    Display()
    {
        server.start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-nolisten"_s, u"tcp"_s});
        if (server.waitForStarted() && server.waitForReadyRead(30000))
            name = u':' + QString::fromLatin1(server.readAllStandardOutput().trimmed());
    }
    ~Display()
    {
        server.kill();
        server.waitForFinished();
    }

    QProcess server;
    QString name;
};

} // namespace

/// How the window's program starts and ends, as the system sees it.
class TestProgram : public QObject
{
    Q_OBJECT

private slots:
    void isEndedInOrder_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("shutdown") << SIGTERM;
        QTest::newRow("closed terminal") << SIGHUP;
        QTest::newRow("interrupt") << SIGINT;
    }

    void isEndedInOrder()
    {
        QFETCH(const int, signal);
        const Bench bench;
        QProcess program;
        bench.startSurvey(program);
        WAIT_FOR(bench.survey().replies.size() >= 2);
        QVERIFY(bench.signal(program, signal));
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 0);
        QCOMPARE(bench.survey().survey.outcome, u"cancelled"_s);
        QCOMPARE(QSettings(bench.layout(), QSettings::IniFormat).value(u"window/front"_s).toString(), u"Survey"_s);
        QVERIFY(bench.log().contains("> nanduid") || bench.log().contains("> pmuadc"));
    }

    void leftOpenIsClosedByTheNextStart()
    {
        const Bench bench;
        QProcess killed;
        bench.startSurvey(killed);
        WAIT_FOR(!bench.survey().replies.isEmpty());
        killed.kill();
        QVERIFY(killed.waitForFinished());
        QCOMPARE(bench.survey().survey.outcome, u"running"_s);
        QProcess next;
        bench.start(next);
        WAIT_FOR(bench.survey().survey.outcome == "cancelled"_L1);
        QVERIFY(bench.signal(next, SIGTERM));
        QVERIFY(next.waitForFinished());
    }

    void noDisplayIsOneLine()
    {
        Bench bench;
        bench.environment.remove(u"WAYLAND_DISPLAY"_s);
        for (const auto &[variable, value] :
             {std::pair(u"QT_QPA_PLATFORM"_s, u"nosuch"_s), std::pair(u"QT_QPA_PLATFORM"_s, u"xcb"_s),
              std::pair(u"DISPLAY"_s, u""_s)}) {
            bench.environment.insert(u"DISPLAY"_s, u":4711"_s);
            bench.environment.remove(u"QT_QPA_PLATFORM"_s);
            bench.environment.insert(variable, value);
            QProcess program;
            bench.start(program);
            QVERIFY(program.waitForFinished());
            QCOMPARE(program.exitStatus(), QProcess::NormalExit);
            QCOMPARE(program.exitCode(), 2);
            const QByteArray errors = program.readAllStandardError();
            QVERIFY2(errors.startsWith("tavimo-prelt: there is no display (") && errors.count('\n') == 1,
                     errors.constData());
        }
    }

    void displayMayGoAway()
    {
        if (QStandardPaths::findExecutable(u"Xvfb"_s).isEmpty())
            QSKIP("no Xvfb to take away");
        Bench bench;
        Display display;
        QVERIFY(!display.name.isEmpty());
        bench.environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
        bench.environment.insert(u"DISPLAY"_s, display.name);
        // The display's own libraries copy texts by their length, which the strictest check takes for a fault.
        bench.environment.insert(u"ASAN_OPTIONS"_s,
                                 qEnvironmentVariable("ASAN_OPTIONS") + ":strict_string_checks=0"_L1);
        QProcess program;
        bench.startSurvey(program);
        WAIT_FOR(!bench.survey().replies.isEmpty());
        display.server.kill();
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        // The exchange that the journal holds is in the log as well: the end was not slower than the log.
        for (const JournalReply &reply : bench.survey().replies)
            QVERIFY2(bench.log().contains("> " + reply.command.toLatin1()), qPrintable(reply.command));
    }
};

QTEST_GUILESS_MAIN(TestProgram)
#include "tst_program.moc"
