#include "columns.h"
#include "data/otherprogram.h"
#include "journal.h"
#include "phoneprofile.h"

#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// What the program said and how it ended.
struct Outcome
{
    int code = -1;
    QByteArray out;
    QByteArray errors;

    QJsonObject json() const { return QJsonDocument::fromJson(out).object(); }
};

Outcome prelt(const QString &line, const QByteArray &input = {})
{
    QProcess program;
    program.start(QStringLiteral(PRELT_PROGRAM), QProcess::splitCommand(line));
    program.write(input);
    program.closeWriteChannel();
    if (!program.waitForFinished(60000) || program.exitStatus() != QProcess::NormalExit)
        return {};
    return {program.exitCode(), program.readAllStandardOutput(), program.readAllStandardError()};
}

QByteArray replyOf(const QString &description)
{
    const Result<PhoneProfile> phone = profileFor(description);
    return phone ? answer(*phone, "pmuadc --read all") : QByteArray();
}

constexpr auto kJudge = R"(judge buckldo --kind 1 --model "IP 7" --reply - )"_L1;

} // namespace

class TestCli : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("XDG_STATE_HOME", m_home.filePath(u"state"_s).toUtf8()); // the programs take their exchange down there
        QCOMPARE(atHome(u"store init"_s).code, 0);
        const Outcome again = atHome(u"store init"_s);
        QCOMPARE(again.code, 4);
        QVERIFY(again.errors.contains(m_home.path().toUtf8()));
        QCOMPARE(again.errors.count('\n'), 1);
    }

#ifdef Q_OS_UNIX
    // None of them is waited for.
    void oddRepliesAreRefused()
    {
        const QString pipe = m_home.filePath(u"pipe"_s);
        const QString big = m_home.filePath(u"big"_s);
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QFile file(big);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(20 << 20));
        for (const QString &path : {pipe, m_home.path(), u"/dev/zero"_s, big}) {
            const Outcome judged = atHome(u"judge buckldo --kind 1 --model \"IP 7\" --reply "_s + path);
            QCOMPARE(judged.code, 2);
            QVERIFY(judged.errors.contains(path.toUtf8()));
            QCOMPARE(judged.errors.count('\n'), 1);
        }
        QCOMPARE(atHome(kJudge, QByteArray((16 << 20) + 1, 'x')).code, 2);
    }

    void silentInputEndsInTime()
    {
        QProcess program;
        program.start(QStringLiteral(PRELT_PROGRAM),
                      QProcess::splitCommand(kJudge + "--timeout 1 --home "_L1 + m_home.path()));
        QVERIFY(program.waitForFinished(30000)); // its input is open, and nothing comes
        QCOMPARE(program.exitCode(), 3);
        QCOMPARE(atHome(kJudge + "--timeout 60"_L1, replyOf(u"IP 7"_s)).code, 0);
    }

    void strangeHomesAreNamed()
    {
        const QStringList before = QDir(m_home.path()).entryList(QDir::Dirs);
        QProcess program;
        program.start(u"/bin/sh"_s, {u"-c"_s, u"PRELT_HOME=$(printf '%s/\\377' \"$1\") exec \"$2\" store init"_s,
                                     u"sh"_s, m_home.path(), QStringLiteral(PRELT_PROGRAM)});
        QVERIFY(program.waitForFinished(30000));
        QCOMPARE(program.exitCode(), 4);
        QVERIFY(program.readAllStandardError().contains("PRELT_HOME"));
        QCOMPARE(QDir(m_home.path()).entryList(QDir::Dirs), before);
    }
#endif

    void storedAddressIsChecked()
    {
        const QTemporaryDir home;
        QCOMPARE(prelt(u"store init --home "_s + home.path()).code, 0);
        OtherProgram(home.filePath(u"Config.pmx"_s))
            .run(u"Insert into Settings (Name, Value) values ('report-host', 'file:///etc')"_s);
        const Outcome judged = prelt(u"judge acorn --model \"IP X\" --reply - --report-url --home "_s + home.path(),
                                     "\r\nacorn vc : 1100.0000 mV\r\n[0:0] :-) ");
        QCOMPARE(judged.code, 4);
        QVERIFY(judged.out.isEmpty() && judged.errors.contains("report-host"));
    }

    void judgesSavedReplies_data()
    {
        columns<QByteArray, int, QString>({"reply", "code", "verdict"});

        const QByteArray healthy = replyOf(u"IP 7"_s);
        const qsizetype ldo5 = healthy.indexOf("BIST ldo5:");
        QTest::newRow("healthy") << healthy << 0 << u"pass"_s;
        QTest::newRow("a low rail") << replyOf(u"IP 7,ldo2=1200"_s) << 1 << u"fail"_s;
        QTest::newRow("cut in a number") << healthy.left(ldo5 + 13) << 5 << u"incomplete"_s;
        QTest::newRow("cut before the prompt") << healthy.left(healthy.lastIndexOf('[')) << 5 << u"incomplete"_s;
        QTest::newRow("empty file") << QByteArray() << 3 << QString();
    }

    void judgesSavedReplies()
    {
        QFETCH(QByteArray, reply);
        const Outcome judged = atHome(kJudge + "--json"_L1, reply);
        QTEST(judged.code, "code");
        QTEST(judged.json().value(u"verdict"_s).toString(), "verdict");
    }

    void reportIsPrintedOrWritten()
    {
        const QString judge = u"judge acorn --model \"IP X\" --reply - --lang en "_s;
        const QByteArray reply = "\r\nacorn vc : 1100.0000 mV\r\n[0:0] :-) ";
        const Outcome address = atHome(judge + u"--report-url --name \"José & True\" --date \"1 Nov\""_s, reply);
        QVERIFY(address.out.startsWith("relatorio/acorn.php?M1=PP1V1_RACER&L1=1.100%20V&R1=1.1%20V&P1=0%20%&I1=1&M2="));
        QVERIFY(address.out.endsWith("&DATA=1%20Nov&IDIOMA=2&MODELO=IP%20X&EMP=José%20&%201\n"));

        const QString pdf = m_home.filePath(u"report.pdf"_s);
        const Outcome written = atHome(judge + "--json --pdf "_L1 + pdf, reply);
        QCOMPARE(written.json().value(u"screen"_s).toString(), u"Acorn"_s);
        QFile file(pdf);
        QVERIFY(file.open(QIODevice::ReadOnly) && file.readAll().trimmed().endsWith("%%EOF"));

        const Outcome none = atHome(u"judge tristar --model \"IP 7\" --reply - --report-url"_s, reply);
        QCOMPARE(none.code, 2);
        QVERIFY(none.errors.contains("acorn"));
    }

    void savedAndLiveAgreeToTheLetter_data()
    {
        columns<QString, QString>({"model", "faults"});
        QTest::newRow("a fault") << u"IP 7"_s << u",ldo2=1200"_s;
        QTest::newRow("CR LF") << u"IP X"_s << u",crlf"_s;
    }

    void savedAndLiveAgreeToTheLetter()
    {
        QFETCH(QString, model);
        QFETCH(QString, faults);
        const QString path = m_home.filePath(u"reply"_s);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(replyOf(model + faults));
        file.close();
        const QString options = u" --kind 1 --json --lang en"_s;
        const Outcome judged = atHome(u"judge buckldo --model \"%1\" --reply %2"_s.arg(model, path) + options);
        const Outcome live = atHome(u"run buckldo --port \"sim:%1%2\""_s.arg(model, faults) + options);
        QVERIFY(!judged.out.isEmpty());
        QCOMPARE(live.out, judged.out);
        QCOMPARE(live.code, judged.code);
    }

    void faultIsNamed()
    {
        const QJsonObject judged = atHome(kJudge + "--json --volts 2"_L1, replyOf(u"IP 7,ldo2=1200"_s)).json();
        QCOMPARE(judged.value(u"command"_s).toString(), u"pmuadc --read all"_s);
        const QJsonArray findings = judged.value(u"findings"_s).toArray();
        QCOMPARE(findings.size(), 1);
        const QJsonObject finding = findings.first().toObject();
        QCOMPARE(finding.value(u"what"_s).toString(), u"PP1V8_VA"_s);
        QCOMPARE(finding.value(u"reading"_s).toString(), u"1.20 V"_s);
        QCOMPARE(finding.value(u"reference"_s).toString(), u"1.800"_s);
        QCOMPARE(finding.value(u"deviation"_s).toDouble(), -33.3);
        QCOMPARE(finding.value(u"line"_s).toString(), u"BIST ldo2: 1200.0000 mV"_s);
    }

    void tableIsForPeople()
    {
        const auto table = [this](QLatin1StringView language) {
            return atHome(kJudge + "--lang "_L1 + language, replyOf(u"IP 7,ldo2=1200"_s)).out;
        };
        const QByteArray shown = table("en"_L1);
        QVERIFY(shown.contains("PP1V8_VA") && shown.contains("-33.3 %") && shown.contains("FAIL (1 fail"));
        QVERIFY(!shown.contains('\x1b')); // no colour into a pipe
        QVERIFY(table("pt"_L1).contains("FALHA"));
        QVERIFY(table("es"_L1).contains("FALLA"));
    }

    void otherScreens_data()
    {
        columns<QString, int, QString>({"line", "code", "finding"});
        const QString everyOutput =
            u" --model \"IP 7\" --reply " PRELT_SOURCE_DIR "/tests/power/replies/everyoutput.txt"_s;
        QTest::newRow("core rails") << u"judge vcore"_s + everyOutput << 1 << u"PP0V9_NAND"_s;
        QTest::newRow("the chip without the fault") << u"judge vcore --ic GPU"_s + everyOutput << 0 << QString();
        QTest::newRow("at the tolerance") << u"judge pmu --kind 2"_s + everyOutput << 1 << u"PP1V8_SDRAM"_s;
        QTest::newRow("a gap inside the tolerance")
            << u"judge pmu --kind 2 --tolerance 10,1"_s + everyOutput << 5 << u"PP1V1_SDRAM"_s;
        QTest::newRow("a buck") << u"run bucktest --buck 3 --port \"sim:IP 7,buck3=1500\""_s << 1 << u"buck3"_s;
        QTest::newRow("all bucks") << u"run bucktest --all --port \"sim:IP 7,buck8=timeout\""_s << 5 << u"buck8"_s;
        QTest::newRow("port controller") << u"run tristar --port \"sim:IP 7,ildo7=2\""_s << 1
                                         << u"PP3V0_TRISTAR_ANT_PROX (mA)"_s;
        QTest::newRow("charger") << u"run tigris --port \"sim:IP 8,vbus=low\""_s << 1 << u"VBUS"_s;
        QTest::newRow("OLED panel") << u"run acorn --port \"sim:IP X,acorn.va=timeout\""_s << 5 << u"PP3V5_RACER"_s;
        QTest::newRow("touch comes up") << u"run chestnut --port \"sim:IP 7\""_s << 0 << QString();
        QTest::newRow("touch stays low") << u"run chestnut --port \"sim:IP 7,vldo3=3000\""_s << 1
                                         << u"PP5V1_TOUCH_VDDH"_s;
        QTest::newRow("battery is not judged") << u"run battery --port \"sim:IP 7,battery=worn\""_s << 0 << QString();
        QTest::newRow("chip is silent") << u"run ic --selector 2 --port \"sim:IP X,tristar=off\""_s << 1 << u"HYDRA"_s;
    }

    void otherScreens()
    {
        QFETCH(const QString, line);
        const Outcome outcome = atHome(line + " --json"_L1);
        QTEST(outcome.code, "code");
        const QJsonArray findings = outcome.json().value(u"findings"_s).toArray();
        QTEST(findings.first().toObject().value(u"what"_s).toString(), "finding");
    }

    void shortReplyIsTold()
    {
        const Outcome outcome = atHome(u"judge ic --model \"IP 7\" --reply - --json"_s, "tristar -p\r\nERROR\n:-) ");
        QCOMPARE(outcome.code, 5);
        QCOMPARE(outcome.errors.count('\n'), 1);
        QCOMPARE(outcome.json().value(u"verdict"_s).toString(), u"incomplete"_s);
    }

    /// A single fault of the phone is that finding and no other.
    void testsOfTheParts_data()
    {
        columns<QString, int, QString>({"line", "code", "findings"});
        const auto add = [](const char *what, const char *line, int code, const QString &findings) {
            QTest::newRow(what) << QString::fromLatin1(line) << code << findings;
        };
        add("all buses", "run i2c --auto --port \"sim:IP 7\"", 0, {});
        add("a silent device", "run i2c --auto --port \"sim:IP 7,i2c1:75=off\"", 1, u"I2C 1 0x75 Tigris (charger)"_s);
        add("its bus alone", "run i2c --bus 1 --port \"sim:IP 7,i2c1:75=off\"", 1, u"I2C 1 0x75 Tigris (charger)"_s);
        add("another bus", "run i2c --bus 0 --port \"sim:IP 7,i2c1:75=off\"", 0, {});
        add("nothing is expected", "run i2c --auto --port \"sim:IP X\"", 0, {});
        add("radio", "run rf --radio 2 --action on --port \"sim:IP 8,radio2=off\"", 1, u"Wifi"_s);
        add("another radio", "run rf --radio 1 --action on --port \"sim:IP 8,radio2=off\"", 0, {});
        add("a radio goes off", "run rf --radio 0 --action off --port \"sim:IP 6\"", 0, {});
        add("storage", "run nand --test 3 --port \"sim:IP 7,nand=missing\"", 1, u"NAND"_s);
        add("its size", "run nand --test 1 --port \"sim:IP 7\"", 0, {});
        add("memory", "run memory --test 6 --port \"sim:IP X,memory=bad\"", 1, u"RAM"_s);
        add("display is not judged", "run display --button bl:8 --port \"sim:IP 7,display=off\"", 0, {});
        add("a refused colour", "run display --button Cor_Azul --port \"sim:IP 6s\"", 0, {});
        add("noise on the line", "run buckldo --port \"sim:IP 7,garbage\"", 0, {});
    }

    void testsOfTheParts()
    {
        QFETCH(const QString, line);
        const Outcome outcome = atHome(line + " --json"_L1);
        QTEST(outcome.code, "code");
        QStringList findings;
        for (const auto &finding : outcome.json().value(u"findings"_s).toArray())
            findings.append(finding.toObject().value(u"what"_s).toString());
        QTEST(findings.join(u'|'), "findings");
    }

    void refusedModelIsNoFault()
    {
        const Outcome outcome = atHome(u"run acorn --json --port \"sim:IP 7\""_s);
        QCOMPARE(outcome.code, 0);
        QCOMPARE(outcome.json().value(u"verdict"_s).toString(), u"none"_s);
        QCOMPARE(outcome.json().value(u"messages"_s).toArray(), QJsonArray{u"SOMENTE_X"_s});
        QCOMPARE(outcome.errors.count('\n'), 1);
        QVERIFY(outcome.errors.contains("\"chestnut\""));
        QVERIFY(atHome(u"run chestnut --json --port \"sim:IP X\""_s).errors.contains("\"acorn\""));
        QCOMPARE(atHome(u"run acorn --json --port \"sim:IP X\""_s).errors, QByteArray());
    }

    void aVerdictThatCouldNotBeWrittenIsNoPass()
    {
        if (!QFile::exists(u"/dev/full"_s))
            QSKIP("no device that is always full");
        QProcess program;
        program.setStandardOutputFile(u"/dev/full"_s);
        program.start(QStringLiteral(PRELT_PROGRAM), {u"ports"_s, u"--json"_s, u"--home"_s, m_home.path()});
        QVERIFY(program.waitForFinished(60000));
        QCOMPARE(program.exitCode(), 5);
        QVERIFY(program.readAllStandardError().startsWith("prelt: the output"));
    }

    void fieldsAreATableForPeople()
    {
        const QByteArray chip = atHome(u"run tigris --lang en --port \"sim:IP 7,vbus=low\""_s).out;
        QVERIFY(chip.contains("4.300 V") && chip.contains("4.045 V +8 %") && chip.contains("FAIL (1 fail"));
        QCOMPARE(chip.count("VBUS"), 1); // voltage and current of a pin on one line
        const QByteArray battery = atHome(u"run battery --lang en --port \"sim:IP 6\""_s).out;
        QVERIFY(battery.contains("DESIGNATED CAPACITY  1810 mAh") && battery.contains("* FUNCTION NOT AVAILABLE"));
    }

    void troubleIsOneLine_data()
    {
        columns<QString, int, QByteArray>({"line", "code", "names"});

        const QByteArray folder = m_home.path().toUtf8();
        const QString home = " --home "_L1 + m_home.path();
        const auto add = [](const char *fault, const QString &line, int code, const QByteArray &names) {
            QTest::newRow(fault) << line << code << names;
        };
        add("no command", {}, 2, "--help");
        add("screen misspelt", u"run bukldo"_s, 2, "bukldo");
        add("no port given", u"run buckldo"_s, 2, "--port");
        add("no such kind", u"run buckldo --port 1 --kind 3"_s, 2, "--kind");
        add("no tolerance", u"judge pmu --tolerance 0 --model \"IP 7\" --reply -"_s, 2, "--tolerance");
        add("no buck", u"judge bucktest --model \"IP 7\" --reply -"_s, 2, "--buck");
        add("all bucks in one reply", u"judge bucktest --all --model \"IP 7\" --reply -"_s, 2, "--all");
        add("one buck and all", u"run bucktest --buck 5 --all --port 1"_s, 2, "--all");
        add("no such chip", u"run vcore --ic RAM --port 1"_s, 2, "--ic");
        add("a bus or all", u"run i2c --port 1"_s, 2, "--bus");
        add("no such bus", u"run i2c --bus 8 --port 1"_s, 2, "--bus");
        add("no such radio", u"run rf --radio 4 --port 1"_s, 2, "--radio");
        add("no such test", u"run nand --test 4 --port 1"_s, 2, "--test");
        add("no such button", u"run display --button bl:6 --port 1"_s, 2, "bl:6");
        add("no such model", u"judge buckldo --model \"IP 9\" --reply -"_s, 2, "--model");
        add("nothing to send", u"send \" \" --port 1"_s, 2, "command");
        add("two lines to send", u"send \"a\rShutdown\" --port 1"_s, 2, "U+000D");
        add("two lines to show", u"run display --text \"a\nb\" --port 1"_s, 2, "U+000A");
        add("blanks to show", u"run display --text \"  \" --port 1"_s, 2, "blanks");
        add("what no line carries", u"record --command \"a\u263A\" --port 1"_s, 2, "U+263A");
        add("no phone and no reply", u"compare --command x"_s, 2, "--port or --reply");
        add("a reply of no model", u"compare --command x --reply -"_s, 2, "--model");
        add("a log that cannot be", u"send sn --port \"sim:IP 7\" --log /no/such/log --lang en"_s + home, 2,
            "/no/such/log");
        add("a line that changes the phone", u"send \"syscfg add SrNm X\" --port \"sim:IP 7\""_s + home, 2, "SYSCFG");
        add("the same to be compared", u"compare --command \"syscfg add\" --port \"sim:IP 7\""_s + home, 2, "SYSCFG");
        add("a command that cannot be stored", u"record --command \"a'b\" --port \"sim:IP 7\" --lang en"_s + home, 2,
            "apostrophe");
        add("no such file", u"judge buckldo --model \"IP 7\" --reply /no/such/file"_s, 2, "/no/such/file");
        add("a folder as file", u"judge buckldo --model \"IP 7\" --reply "_s + m_home.path(), 2, folder);
        add("no store", kJudge + "--home /no/such/folder"_L1, 4, "/no/such/folder");
        add("empty reply", kJudge + "--lang en"_L1 + home, 3, "did not answer");
        add("no such port", u"run buckldo --port /dev/no-such-port"_s + home, 3, "/dev/no-such-port");
        add("number above 16", u"run buckldo --port 17"_s + home, 3, "16");
        add("no such phone", u"run buckldo --port \"sim:IP 9\""_s + home, 3, "IP 9");
        add("a fault that no phone has", u"sim \"IP 7,frob\""_s, 2, "frob");
    }

    void troubleIsOneLine()
    {
        QFETCH(QString, line);
        QFETCH(QByteArray, names);
        const Outcome outcome = prelt(line);
        QTEST(outcome.code, "code");
        QVERIFY2(outcome.errors.contains(names), outcome.errors.constData());
        QCOMPARE(outcome.errors.count('\n'), 1);
        QCOMPARE(outcome.out, QByteArray());
    }

    void lostLineIsNeverGood()
    {
        for (const QString &fault : {u"drop@30"_s, u"drop@900"_s, u"silent"_s}) { // in the handshake, in the reading
            const Outcome outcome = atHome(u"run buckldo --json --port \"sim:IP 7,%1\""_s.arg(fault));
            QCOMPARE(outcome.code, 3);
            QVERIFY(!outcome.errors.isEmpty());
            QVERIFY(outcome.out.isEmpty() || outcome.json().value(u"verdict"_s) == "incomplete"_L1);
        }
    }

    void unknownNumberNeedsAModel()
    {
        const QString run = u"run buckldo --json --port \"sim:IP 7,model=A9999\""_s;
        const Outcome refused = atHome(run);
        QCOMPARE(refused.code, 5);
        QVERIFY(refused.errors.contains("--model"));
        QCOMPARE(refused.out, QByteArray());

        const Outcome told = atHome(run + R"( --model "IP 7")"_L1);
        QCOMPARE(told.code, 0);
        QCOMPARE(told.json().value(u"model"_s).toString(), u"IP 7"_s);
        QCOMPARE(told.json().value(u"messages"_s).toArray(),
                 QJsonArray({u"MSG_ERRO_NAND"_s, u"MSG_SELECIONE_MODELO"_s}));
    }

    void recordsAndCompares()
    {
        const QString asked = u" --command \"pmuadc --read all\" --lang en --port "_s;
        const Outcome none = atHome(u"compare --json"_s + asked + u"\"sim:IP 7\""_s);
        QCOMPARE(none.code, 0);
        QCOMPARE(none.json().value(u"verdict"_s).toString(), u"none"_s);

        const Outcome recorded = atHome(u"record"_s + asked + u"\"sim:IP 7\""_s);
        QCOMPARE(recorded.code, 0);
        QVERIFY(recorded.out.startsWith("Recorded: IP 7, pmuadc --read all ("));
        const QJsonObject same = atHome(u"compare --json"_s + asked + u"\"sim:IP 7\""_s).json();
        QCOMPARE(same.value(u"verdict"_s).toString(), u"pass"_s);
        QVERIFY(same.value(u"mark"_s).toBool());

        const Outcome faulty = atHome(u"compare --json"_s + asked + u"\"sim:IP 7,ldo2=1200,buck3=off\""_s);
        QCOMPARE(faulty.code, 1);
        QVERIFY(!faulty.json().value(u"mark"_s).toBool());
        const QJsonArray lines = faulty.json().value(u"lines"_s).toArray();
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines[0][u"live"_s].toString(), u"BIST buck3: 0.0000 mV"_s);
        QCOMPARE(lines[1][u"live"_s].toString(), u"BIST ldo2: 1200.0000 mV"_s);
        QVERIFY(lines[1][u"change"_s].toString().startsWith(u"-6"));
        QCOMPARE(faulty.json().value(u"summary"_s)[u"text"_s].toString(),
                 u"First departs at BIST buck3, 2 lines differ"_s);

        const QString saved = u"compare --command \"pmuadc --read all\" --model \"IP 7\" --lang en --reply -"_s;
        const Outcome judged = atHome(saved, replyOf(u"IP 7,ldo2=1200"_s));
        QCOMPARE(judged.code, 1);
        QVERIFY(judged.out.contains("BIST ldo2: 1200.0000 mV") && !judged.out.contains("buck"));
        QCOMPARE(atHome(saved, replyOf(u"IP 7"_s).chopped(30)).code, 5);
        QCOMPARE(atHome(u"record"_s + asked + u"\"sim:IP 7,drop@900\""_s).code, 3);
        QCOMPARE(atHome(u"compare --json"_s + asked + u"\"sim:IP 7\""_s).code, 0); // what was kept is kept
    }

    void storeThatTakesNothingKeepsNothing()
    {
        const QString path = m_home.filePath(u"Config.pmx"_s);
        OtherProgram other(path);
        other.run(u"BEGIN IMMEDIATE"_s);
        const Outcome locked = atHome(u"record --command \"help nand\" --port \"sim:IP 8\" --lang en"_s);
        QCOMPARE(locked.code, 4);
        QCOMPARE(locked.out, QByteArray());
        QVERIFY(locked.errors.contains(path.toUtf8()));
        other.runAll({u"ROLLBACK"_s, u"BEGIN EXCLUSIVE"_s});
        QElapsedTimer waited;
        waited.start();
        QCOMPARE(atHome(u"record --command \"help nand\" --port \"sim:IP 8\""_s).code, 4);
        QVERIFY(waited.elapsed() < 9000); // all of its look-ups wait 5 s together
    }

    void whatCameOfACutReplyIsPrinted()
    {
        const Outcome late = atHome(u"send Shutdown --port \"sim:IP 7\" --lang en --timeout 2"_s);
        QCOMPARE(late.code, 5);
        QVERIFY(late.out.startsWith("Shutdown") && late.errors.contains("time was over"));
        const Outcome dropped = atHome(u"send \"pmuadc --read all\" --port \"sim:IP 7,drop@400\" --json"_s);
        QCOMPARE(dropped.code, 3);
        QVERIFY(dropped.json().value(u"cut"_s).toBool());
        QVERIFY(dropped.json().value(u"reply"_s).toString().contains(u"BIST"));
    }

    void changedRecordingIsTold()
    {
        const QString options = u" --command \"pmuadc --read all\" --lang en --port \"sim:IP X,ldo2=%1\""_s;
        QCOMPARE(atHome(u"record"_s + options.arg(1810)).code, 0);
        const QString near = u"compare --tolerance 1"_s + options.arg(1800);
        QVERIFY(!atHome(near).out.contains("outside the program"));
        OtherProgram(m_home.filePath(u"Config.pmx"_s))
            .run(u"Update Dados set Dados = replace(Dados, '1810', '1811') where Aparelho = 'IP X'"_s);
        const QByteArray told = atHome(near).out;
        QVERIFY(told.contains("outside the program") && told.contains("Within the tolerance, 1 line"));
        QVERIFY(told.contains("≈") && told.contains("ldo2: 1811"));
        const QJsonObject json = atHome(near + " --json"_L1).json();
        QCOMPARE(json.value(u"integrity"_s).toString(), u"changed"_s);
        QCOMPARE(atHome(u"record"_s + options.arg(1810)).code, 0); // whole again
    }

    void surveyIsOneTable()
    {
        const Outcome survey =
            atHome(u"survey --lang en --note wet --port \"sim:IP 6s,ldo2=1200,i2c1:75=off,battery=worn\""_s);
        QCOMPARE(survey.code, 1);
        QCOMPARE(survey.errors, QByteArray()); // no progress into a pipe
        const QByteArrayList lines = survey.out.split('\n');
        QVERIFY(lines[2].startsWith("Verdict") && lines[3].startsWith("Fail") && lines[6].startsWith("Pass"));
        QVERIFY(survey.out.contains("FAIL (3 failed, "));
    }

    void noiseNeverReachesTheTerminal()
    {
        const Outcome survey = atHome(u"survey --no-journal --port \"sim:IP 7,garbage\""_s);
        QVERIFY(survey.out.contains("\\x80")); // it was there
        const QString text = QString::fromUtf8(survey.out);
        QVERIFY(std::ranges::none_of(text, [](QChar c) { return c.category() == QChar::Other_Control && c != u'\n'; }));
    }

    void surveyForScripts()
    {
        const Outcome survey = atHome(u"survey --json --no-journal --with memory --port \"sim:IP X,drop@90000\""_s);
        QCOMPARE(survey.code, 0);
        const QJsonObject json = survey.json();
        QCOMPARE(json.value(u"outcome"_s).toString(), u"finished"_s);
        QVERIFY(json.value(u"journal"_s).isNull());
        const QJsonArray findings = json.value(u"findings"_s).toArray();
        QVERIFY(std::ranges::any_of(findings, [](const QJsonValue &one) {
            return one.toObject().value(u"what"_s) == u"RAM"_s && one.toObject().value(u"verdict"_s) == u"pass"_s;
        }));
        const Outcome lost = atHome(u"survey --json --port \"sim:IP X,drop@2000\""_s);
        QCOMPARE(lost.code, 3);
        QCOMPARE(lost.json().value(u"outcome"_s).toString(), u"link lost"_s);
        QVERIFY(!lost.json().value(u"findings"_s).toArray().isEmpty());
        QCOMPARE(lost.errors.count('\n'), 1);
    }

    void surveyKilledHalfWayIsInTheJournal()
    {
        for (const int answers : {2, 4, 7}) {
            QProcess program;
            program.start(QStringLiteral(PRELT_PROGRAM),
                          {u"survey"_s, u"--port"_s, u"sim:IP 6s,ldo2=1200"_s, u"--home"_s, m_home.path()});
            const auto kept = [this]() -> std::optional<JournalEntry> {
                const auto store = Store::open(m_home.filePath(u"Config.pmx"_s), Store::Access::Read, 1s);
                const auto newest = store ? journal(*store) : store.trouble();
                const bool isOurs = newest && !newest->isEmpty() && newest->first().outcome == "running"_L1;
                const auto entry = isOurs ? journalEntry(*store, newest->first().id) : std::optional<JournalEntry>();
                return entry ? *entry : std::nullopt;
            };
            QTRY_VERIFY_WITH_TIMEOUT(kept() && kept()->replies.size() >= answers, 20000);
            program.kill();
            QVERIFY(program.waitForFinished());
            const auto entry = kept();
            QVERIFY(entry && entry->survey.ended.isEmpty() && entry->survey.model == "IP 6s"_L1);
            QCOMPARE(entry->survey.faults, 1);
            const auto portChip = std::ranges::find(entry->findings, u"TRISTAR"_s, &JournalFinding::what);
            QCOMPARE(portChip != entry->findings.end(), entry->replies.size() > 2); // judged when it was answered
            QCOMPARE(atHome(u"store check"_s).code, 0);
            Result<Store> store = Store::open(m_home.filePath(u"Config.pmx"_s), Store::Access::Write, 1s);
            QVERIFY(store && deleteFromJournal(*store, entry->survey.id));
        }
    }

    void exchangeIsTakenDown()
    {
        const QString log = m_home.filePath(u"sent.log"_s);
        for (int time = 0; time < 2; ++time)
            QCOMPARE(atHome(u"send \"foo\" --port \"sim:IP 7\" --log %1"_s.arg(log)).code, 0);
        QFile file(log);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll();
        QCOMPARE(text.count("# Tavimo"), 1);
        QCOMPARE(text.count(" > foo\\r\n"), 2);
        QVERIFY(text.contains("Command \"foo\" not found!"));
    }

    void sendsAndDetects()
    {
        const Outcome sent = atHome(u"send \"foo bar\" --port \"sim:IP 7\""_s);
        QCOMPARE(sent.code, 0);
        QVERIFY(sent.out.startsWith("foo bar\nCommand \"foo\" not found!\n["));
        QCOMPARE(atHome(u"detect --port \"sim:IP 8 Plus\""_s).out, QByteArray("IP 8 Plus\n"));
        const Outcome unknown = atHome(u"detect --port \"sim:IP 7,model=hello\""_s);
        QCOMPARE(unknown.code, 5);
        QVERIFY(!unknown.errors.isEmpty());
    }

    void readsAStoreThatCannotBeWritten()
    {
        QFile store(m_home.filePath(u"Config.pmx"_s));
        const QFile::Permissions before = store.permissions();
        QVERIFY(store.setPermissions(QFile::ReadOwner));
        QVERIFY(QFile::setPermissions(m_home.path(), QFile::ReadOwner | QFile::ExeOwner));
        const Outcome judged = atHome(kJudge, replyOf(u"IP 7"_s));
        QFile::setPermissions(m_home.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        store.setPermissions(before);
        QCOMPARE(judged.code, 0);
    }

private:
    Outcome atHome(const QString &line, const QByteArray &input = {}) const
    {
        return prelt(line + " --home "_L1 + m_home.path(), input);
    }

    QTemporaryDir m_home;
};

QTEST_GUILESS_MAIN(TestCli)
#include "tst_cli.moc"
