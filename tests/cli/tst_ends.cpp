#include "columns.h"
#include "exitcode.h"
#include "programbench.h"
#include "seeds.h"

#include <QJsonDocument>
#include <QJsonObject>

using namespace std::chrono_literals;

namespace {

struct Bench : ProgramBench
{
    Bench()
    {
        if (!createStore(folder.filePath(u"Config.pmx"_s)))
            qFatal("no store for the test");
    }
    void start(QProcess &program, const QString &line) const
    {
        ProgramBench::start(program, QStringLiteral(PRELT_PROGRAM), QProcess::splitCommand(line));
    }
    int run(QProcess &program, const QString &line) const
    {
        start(program, line);
        return program.waitForFinished(60000) ? program.exitCode() : -1;
    }
};

} // namespace

/// How the command line ends when somebody or something ends it, and what it leaves behind.
class TestEnds : public QObject
{
    Q_OBJECT

private slots:
    void surveyIsClosed()
    {
        const Bench bench;
        QProcess program;
        bench.start(program, u"survey --json --lang en --port \"sim:IP 6s,ldo2=1200\""_s);
        WAIT_FOR(bench.survey().replies.size() >= 3);
        QVERIFY(bench.signal(program, SIGTERM));
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitCode(), 1); // a fault was found before
        const QJsonObject json = QJsonDocument::fromJson(program.readAllStandardOutput()).object();
        QCOMPARE(json.value(u"outcome"_s).toString(), u"cancelled"_s);
        QCOMPARE(json.value(u"verdict"_s).toString(), u"fail"_s);
        const JournalSurvey kept = bench.survey().survey;
        QCOMPARE(kept.outcome, u"cancelled"_s);
        QVERIFY(!kept.ended.isEmpty());
        QCOMPARE(program.readAllStandardError().count('\n'), 1);
        QCOMPARE(QDir(bench.folder.path()).entryList({u"*.running"_s}, QDir::Files), QStringList());
    }

    void whatCameIsPrinted_data()
    {
        columns<QString, QByteArray, int, QByteArray>({"line", "awaited", "signal", "printed"});
        QTest::newRow("a closed terminal")
            << u"send Shutdown --port \"sim:IP 7\""_s << QByteArray("< Shutdown") << SIGHUP << QByteArray("Shutdown");
        QTest::newRow("between two of many") << u"run bucktest --all --json --lang en --port \"sim:IP 7\""_s
                                             << QByteArray("> buckcheck 2") << SIGINT << QByteArray("\"incomplete\"");
        QTest::newRow("before anything came")
            << u"run buckldo --port \"sim:IP 7,silent\""_s << QByteArray("> ") << SIGTERM << QByteArray();
    }

    void whatCameIsPrinted()
    {
        QFETCH(const QString, line);
        QFETCH(const QByteArray, awaited);
        QFETCH(const int, signal);
        QFETCH(const QByteArray, printed);
        const Bench bench;
        QProcess program;
        bench.start(program, line);
        WAIT_FOR(bench.log().contains(awaited)); // it is there while the program runs
        QVERIFY(bench.signal(program, signal));
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 5);
        const QByteArray out = program.readAllStandardOutput();
        QVERIFY2(printed.isEmpty() ? out.isEmpty() : out.contains(printed), out.constData());
        QCOMPARE(program.readAllStandardError().count('\n'), 1);
    }

    void simulatedPhoneIsStoppedWell()
    {
        const Bench bench;
        QProcess program;
        program.start(QStringLiteral(PRELT_PROGRAM), {u"sim"_s, u"IP 7"_s});
        WAIT_FOR(program.canReadLine() || program.state() == QProcess::NotRunning);
        QVERIFY(bench.signal(program, SIGINT));
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 0);
    }

    void leftOpenIsClosedByTheNext()
    {
        const Bench bench;
        QProcess killed;
        bench.start(killed, u"survey --port \"sim:IP 6s\""_s);
        WAIT_FOR(!bench.survey().replies.isEmpty());
        const QString id = bench.survey().survey.id;
        const auto outcome = [&] {
            const auto store = Store::open(bench.folder.filePath(u"Config.pmx"_s), Store::Access::Read, 1s);
            const auto entry = store ? journalEntry(*store, id) : store.trouble();
            return entry && *entry ? (*entry)->survey.outcome : QString();
        };
        QProcess other;
        bench.start(other, u"survey --port \"sim:IP X\""_s);
        WAIT_FOR(bench.survey().survey.model == "IP X"_L1);
        QCOMPARE(outcome(), u"running"_s); // it runs still
        killed.kill();
        QVERIFY(killed.waitForFinished());
        QCOMPARE(outcome(), u"running"_s);
        QVERIFY(bench.signal(other, SIGTERM));
        QVERIFY(other.waitForFinished());
        QProcess next;
        bench.start(next, u"survey --port \"sim:IP 7\""_s);
        WAIT_FOR(outcome() == "cancelled"_L1);
        QVERIFY(bench.signal(next, SIGTERM));
        QVERIFY(next.waitForFinished());
    }

    void whatHappenedCountsByItsWeight_data()
    {
        columns<ExitCode, ExitCode, ExitCode>({"one", "other", "ends"});
        using enum ExitCode;
        QTest::newRow("link before fault") << Fault << Link << Link;
        QTest::newRow("fault before what is missing") << Fault << Incomplete << Fault;
        QTest::newRow("fault before the store") << Store << Fault << Fault;
        QTest::newRow("what is missing before good") << Good << Incomplete << Incomplete;
    }

    void whatHappenedCountsByItsWeight()
    {
        QFETCH(const ExitCode, one);
        QFETCH(const ExitCode, other);
        QTEST(weightier(one, other), "ends");
        QTEST(weightier(other, one), "ends");
    }

    void readingOutlivesItsReport_data()
    {
        columns<QString, int>({"line", "code"});
        QTest::newRow("good") << u"run acorn --port \"sim:IP X\""_s << 5;
        QTest::newRow("fault") << u"run acorn --port \"sim:IP X,acorn.vn=-6000\""_s << 1;
        QTest::newRow("lost in its middle") << u"run acorn --port \"sim:IP X,drop@500\""_s << 3;
        QTest::newRow("survey") << u"survey --no-journal --port \"sim:IP 6s,ldo2=1200\""_s << 1;
    }

    void readingOutlivesItsReport()
    {
        if (!QFile::exists(u"/dev/full"_s))
            QSKIP("no device that is always full");
        QFETCH(const QString, line);
        const Bench bench;
        for (const QString &pdf : {u"/dev/full"_s, bench.folder.filePath(u"no/such/folder.pdf"_s)}) {
            QProcess program;
            const int code = bench.run(program, line + " --lang en --pdf "_L1 + pdf);
            QTEST(code, "code");
            QVERIFY(program.readAllStandardOutput().contains("PP"));
            QVERIFY(program.readAllStandardError().contains(pdf.toUtf8()));
        }
        QVERIFY(!QFileInfo(u"/dev/full"_s).isFile()); // the device is still one
    }

    void everyCommandIsTakenDown_data()
    {
        columns<QString, QByteArray>({"line", "sent"});
        QTest::newRow("detect") << u"detect"_s << QByteArray("syscfg print");
        QTest::newRow("send") << u"send \"foo\""_s << QByteArray("foo");
        QTest::newRow("run") << u"run tristar"_s << QByteArray("pmuadc");
        QTest::newRow("record") << u"record --command \"help nand\""_s << QByteArray("help nand");
        QTest::newRow("compare") << u"compare --command \"help nand\""_s << QByteArray("help nand");
        QTest::newRow("survey") << u"survey --no-journal"_s << QByteArray("nanduid");
    }

    void everyCommandIsTakenDown()
    {
        QFETCH(const QString, line);
        QFETCH(const QByteArray, sent);
        const Bench bench;
        QProcess program;
        QVERIFY(bench.run(program, line + " --port \"sim:IP 7\""_L1) >= 0);
        const QByteArray log = bench.log();
        QVERIFY2(log.contains("> " + sent), log.constData());
        QVERIFY(log.contains(":-)"));
    }

    void logThatTakesNothingIsToldOnce()
    {
        const Bench bench;
        QFile inTheWay(bench.folder.filePath(u"state"_s));
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        QProcess program;
        QCOMPARE(bench.run(program, u"run tristar --lang en --port \"sim:IP 7\""_s), 0);
        const QByteArray errors = program.readAllStandardError();
        QVERIFY(errors.contains("exchange log") && errors.count('\n') == 1);
    }
};

QTEST_GUILESS_MAIN(TestEnds)
#include "tst_ends.moc"
