#include "bucktestescreen.h"
#include "columns.h"
#include "railbench.h"
#include "recordings.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kShellPrompt = "\r\n[0A1B2C3D:00112233] :-) "_L1;

BuckReading readingOf(int buck, const QString &reply, bool cut = false)
{
    return readBucks({.replies = {{buck, reply, cut}}, .model = u"IP 7"_s, .language = Language::English});
}

QString note(const QString &model)
{
    return readBucks({.replies = {}, .model = model, .language = Language::English})
        .panel.fields[u"lbInfoBucks"_s]
        .text.value_or(QString());
}

using Bench = RailBench<BuckTesteScreen>;

/// Polls until the reply to the command in flight was taken; the next one may be on its way then.
void poll(Bench &bench)
{
    const qsizetype sent = bench.port.commands.size();
    const auto isGathering = [&] { return bench.session->Status() == "3"_L1 && bench.port.commands.size() == sent; };
    bench.session->Timer1_Timer();
    for (int tick = 0; tick < 400 && isGathering(); ++tick)
        bench.session->Timer2_Timer();
}

QStringList recorded(const Bench &bench)
{
    return bench.screen->panel().fields.value(u"ListViewComparador"_s).items.value_or(QStringList());
}

} // namespace

class TestBuckTeste : public QObject
{
    Q_OBJECT

private slots:
    void replies_data()
    {
        columns<int, QString, QString, Verdict>({"buck", "reply", "line", "verdict"});
        const auto add = [](const char *fault, int buck, const QString &said, const QString &line, Verdict verdict) {
            QTest::newRow(fault) << buck << u"\r\nbuckcheck %1\r\n"_s.arg(buck) + said + kShellPrompt << line
                                 << verdict;
        };
        const auto values = [](const QString &target, const QString &measured) {
            return u"   buck5: Reference: %1 V - Reading:  %2 V : PASS"_s.arg(target, measured);
        };
        const auto check = [](const QString &target, const QString &measured) {
            return u"buck5: target %1 mV, measured %2 mV, PASS"_s.arg(target, measured);
        };
        const QString none;
        add("decimals are dropped", 5, check(u"1100"_s, u"1099.9115"_s), values(u"1.100"_s, u"1.099"_s), Verdict::Pass);
        add("three digits and two", 5, check(u"850"_s, u"12"_s), values(u"0.850"_s, u"0.012"_s), Verdict::Pass);
        add("one digit and none", 5, check(u"5"_s, u"0.9"_s), values(u"0.005"_s, u"0.000"_s), Verdict::Pass);
        add("the target keeps five characters", 5, check(u"12345"_s, u"12345"_s), values(u"12.34"_s, u"12.345"_s),
            Verdict::Pass);
        add("below zero", 5, check(u"1100"_s, u"-7.5"_s), values(u"1.100"_s, u"-0.007"_s), Verdict::Pass);
        add("no number", 5, check(u"1100"_s, u"1x99"_s), none, Verdict::Incomplete);
        add("FAIL", 5, u"buck5: target 1100 mV, measured 900 mV, FAIL"_s,
            u"   buck5: Reference: 1.100 V - Reading:  0.900 V : FAIL"_s, Verdict::Fail);
        add("another word", 5, u"buck5: target 1100 mV, measured 900 mV -> ?? Skipped"_s,
            u"   buck5: Reference: 1.100 V - Reading:  0.900 V : Skip"_s, Verdict::Fail);
        add("no word: the prompt is none", 5, u"buck5: target 1100 mV, measured 900 mV"_s,
            u"   buck5: Reference: 1.100 V - Reading:  0.900 V : "_s, Verdict::Incomplete);
        add("only a voltage", 0, u"buck0 voltage: 1100.25 mV"_s, u"   buck0 voltage: 1.100 V"_s, Verdict::None);
        add("a voltage without a colon", 0, u"buck0 at 1100 mV"_s, none, Verdict::Incomplete);
        add("no unit", 0, u"buck0 voltage: 1100"_s, none, Verdict::Incomplete);
        add("nothing measured", 5, u"buck5: target 1100 mV"_s, none, Verdict::Incomplete);
        add("the late reply of another buck", 6, check(u"1100"_s, u"1100"_s), none, Verdict::Incomplete);
        add("not understood", 5, u"Command \"buckcheck\" not found!"_s, none, Verdict::Incomplete);
    }

    void replies()
    {
        QFETCH(const int, buck);
        QFETCH(const QString, reply);
        QFETCH(const QString, line);
        const BuckReading reading = readingOf(buck, reply);
        QCOMPARE(reading.panel.lines, line.isEmpty() ? QStringList() : QStringList(line));
        QCOMPARE(reading.verdicts.size(), reading.panel.lines.size());
        QTEST(reading.panel.verdict, "verdict");
    }

    void cutRepliesAreNeverGood()
    {
        const QString whole = u"\r\nbuckcheck 5\r\nbuck5: target 1100 mV, measured 1100 mV, PASS"_s;
        for (qsizetype bytes = 1; bytes <= whole.size(); ++bytes)
            QCOMPARE(readingOf(5, whole.first(bytes), true).panel.verdict, Verdict::Incomplete);
        QCOMPARE(readingOf(5, QString(whole).replace("PASS"_L1, "FAIL"_L1), true).panel.verdict, Verdict::Fail);
    }

    void notes()
    {
        QCOMPARE(note(u"IP 6 Plus"_s).split("\r\n"_L1),
                 QStringList({u"   buck6 = NC = 0.000 V"_s,
                              u"   * Attention: IP 6 / IP 6 Plus always displays the result as FAIL on buck1, even if "
                              u"it is OK, if it is a GPU line."_s,
                              u"* GPU ( BUCK 1 / 8 ) and * CAMERA DO NOT DISPLAY VALUES IN PURPLE MODE"_s}));
        const auto starts = [](const QString &model, const QString &lines) { return note(model).startsWith(lines); };
        const QString graphics = u"\r\n   buck1 = GPU = 0.000 V\r\n   buck8 = GPU = 0.000 V\r\n"_s;
        QVERIFY(starts(u"IP 6s"_s, graphics + "   buck6 = CAMERA = 0.000 V\r\n* GPU"_L1));
        QVERIFY(starts(u"IP 7 Plus"_s, graphics + "   buck9 = CAMERA = 0.000 V\r\n* GPU"_L1));
        QVERIFY(starts(u"IP X"_s, graphics + "* GPU"_L1));
        QVERIFY(note(u"IP X"_s).contains("CPU 8/X"_L1));
    }

    void numbersThatAreSent_data()
    {
        columns<QString, QByteArray>({"typed", "command"});
        QTest::newRow("blanks") << u" 7 "_s << QByteArray("buckcheck 7");
        QTest::newRow("the last") << u"11"_s << QByteArray("buckcheck 11");
        QTest::newRow("zeros in front") << u"007"_s << QByteArray("buckcheck 7");
        for (const char *typed : {"12", "0012", "-1", "5.0", "five", "", "5;1"})
            QTest::newRow(typed) << QString::fromLatin1(typed) << QByteArray();
    }

    void numbersThatAreSent()
    {
        QFETCH(const QString, typed);
        Bench bench(u"IP 7"_s);
        bench.connectPhone();
        bench.port.commands.clear();
        bench.screen->Combo1_Change(typed);
        bench.screen->btBl_Click();
        QTEST(bench.port.commands.value(0), "command");
    }

    void oneBuckAtATime()
    {
        Bench bench(u"IP 7,buck3=1500"_s);
        bench.connectPhone();
        QCOMPARE(bench.screen->Combo1(), u"5"_s);
        bench.screen->Combo1_Change(u"3"_s);
        bench.screen->btBl_Click();
        poll(bench);
        QCOMPARE(bench.screen->panel().lines,
                 QStringList(u"   buck3: Referência: 1.800 V - Leitura:  1.500 V : FAIL"_s));
        QCOMPARE(bench.screen->panel().judgements.first().deviation, std::optional(-16.6));
        bench.screen->Combo1_Change(u"4"_s);
        bench.screen->btBl_Click();
        poll(bench);
        QCOMPARE(bench.screen->panel().lines.size(), 1); // the list holds one test
        QCOMPARE(bench.screen->panel().verdict, Verdict::Pass);
    }

    void runOverAllBucks_data()
    {
        columns<QString, int>({"model", "last"});
        QTest::newRow("IP 6") << u"IP 6"_s << 6;
        QTest::newRow("IP 6s") << u"IP 6s"_s << 8;
        QTest::newRow("IP 7 Plus") << u"IP 7 Plus"_s << 9;
        QTest::newRow("IP X") << u"IP X"_s << 11;
    }

    void runOverAllBucks()
    {
        QFETCH(const QString, model);
        QFETCH(const int, last);
        Bench bench(model);
        bench.connectPhone();
        bench.port.commands.clear();
        QSignalSpy ended(bench.screen.get(), &Screen::readingEnded);
        bench.screen->Botao1_Click();
        for (int buck = 0; buck <= last; ++buck) {
            QCOMPARE(bench.port.commands.last(), "buckcheck " + QByteArray::number(buck));
            QCOMPARE(bench.screen->panel().fields[u"Barra"_s].value, std::optional(100 * buck / (last + 1)));
            QCOMPARE(bench.screen->panel().lines.size(), buck);
            QVERIFY(bench.screen->panel().verdict != Verdict::Pass); // not before the last is tested
            QCOMPARE(ended.size(), 0);
            poll(bench);
        }
        QCOMPARE(bench.port.commands.size(), last + 1);
        QCOMPARE(bench.screen->panel().lines.size(), last + 1);
        QCOMPARE(ended.size(), 1);
        QCOMPARE(bench.screen->panel().verdict, model == "IP 6"_L1 ? Verdict::Fail : Verdict::Pass); // its buck1
    }

    void runsEndEarly()
    {
        Bench bench(u"IP 7"_s);
        bench.connectPhone();
        bench.screen->Botao1_Click();
        poll(bench);
        bench.screen->Botao2_Click(); // in the middle of buck1
        QCOMPARE(bench.screen->panel().lines.size(), 1);
        QCOMPARE(bench.screen->panel().verdict, Verdict::Incomplete); // what was tested is good, the rest is not known
        QCOMPARE(bench.screen->unmeasured(),
                 u"Teste cancelado; não testados: buck1, buck2, buck3, buck4, buck5, buck6, buck7, buck8, buck9"_s);
        QCOMPARE(bench.session->Status(), u"1"_s);
        QCOMPARE(bench.screen->panel().fields[u"btBl"_s].enabled, std::optional(true));

        bench.port.keptBytes = 30; // what follows a cut reply could be the rest of it
        bench.port.commands.clear();
        bench.screen->Botao1_Click();
        poll(bench);
        QCOMPARE(bench.port.commands.size(), 1);
        QCOMPARE(bench.screen->panel().verdict, Verdict::Incomplete);
        QVERIFY(bench.screen->unmeasured().contains(u"Teste interrompido; não testados: buck1, "_s));

        bench.port.keptBytes = PhonePort::kAll;
        bench.screen->Botao1_Click();
        poll(bench);
        bench.port.pull();
        QCOMPARE(bench.screen->panel().verdict, Verdict::Incomplete);
        QCOMPARE(bench.screen->panel().fields[u"FrameVCore"_s].visible, std::optional(false));
    }

    void recordedBeside()
    {
        Bench bench(u"IP 7"_s);
        {
            Result<Store> store = Store::open(configStore(bench.folder.path()), Store::Access::Write, {});
            const QString reply = u"\r\nbuckcheck 3\r\nbuck3: target 1800 mV, measured 1795 mV, PASS"_s + kShellPrompt;
            QVERIFY(saveRecording(*store, {.aparelho = u"IP 7"_s, .comando = u"buckcheck 3"_s, .dados = reply}));
        }
        bench.connectPhone();
        for (const auto &[buck, line] :
             {std::pair{u"3"_s, u"   buck3: Referência: 1.800 V - Leitura:  1.795 V : PASS"_s},
              std::pair{u"4"_s, u"   buck4: Dados não localizados"_s}}) {
            bench.screen->Combo1_Change(buck);
            bench.screen->btBl_Click();
            poll(bench);
            QCOMPARE(recorded(bench), QStringList(line));
        }
    }

    void aBuckHasOneRowInBothLists()
    {
        const auto check = [](int buck) { return u"buck%1: target 900 mV, measured 900 mV, PASS"_s.arg(buck); };
        const BuckReading run = readBucks({.replies = {{4, check(4)}, {5, u"ERROR"_s}, {6, check(6)}}, .model = {}});
        const QStringList recorded = *run.panel.fields.value(u"ListViewComparador"_s).items;
        QCOMPARE(run.panel.lines.size(), recorded.size());
        QCOMPARE(run.panel.lines.at(1), u"   buck5: Sem Medição"_s);
        QCOMPARE(run.verdicts, QList({Verdict::Pass, Verdict::Incomplete, Verdict::Pass}));
    }

    void unknownModelIsAskedFor()
    {
        Bench bench(u"IP 7,model=A9999"_s);
        bench.connectPhone();
        QVERIFY(!bench.session->isModelKnown());
        bench.port.commands.clear();
        BuckTesteScreen opened(*bench.session);
        opened.open();
        QCOMPARE(bench.port.commands, QList<QByteArray>{"syscfg print RMd#"});
    }

    void otherPhonesAreForgotten()
    {
        Bench bench(u"IP 7"_s);
        bench.connectPhone();
        bench.screen->btBl_Click();
        poll(bench);
        bench.session->chooseModel(u"IP 6s"_s);
        QVERIFY(!bench.screen->hasReading());
        QCOMPARE(bench.screen->panel().verdict, Verdict::None);
    }
};

QTEST_GUILESS_MAIN(TestBuckTeste)
#include "tst_buckteste.moc"
