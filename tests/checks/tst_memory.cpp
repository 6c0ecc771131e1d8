#include "chipreading.h"
#include "columns.h"
#include "outrosscreen.h"
#include "phonebench.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString text(const Panel &panel, const QString &control)
{
    return panel.fields.value(control).text.value_or(u"unset"_s);
}

Panel reading(const QString &reply, bool cut = false)
{
    return readMemory({kFullMemoryTest, reply, true, false, cut, u"IP 7"_s, Language::English});
}

} // namespace

class TestMemory : public QObject
{
    Q_OBJECT

private slots:
    void wordsThatPass_data()
    {
        columns<QString, QString>({"reply", "status"});
        QTest::newRow("passed") << u"Block 8\r\nPassed\r\n"_s << u"Communication OK"_s;
        QTest::newRow("in a word") << u"Bypass Passive"_s << u"Communication OK"_s;
        QTest::newRow("capitals") << u"PASS PASSED"_s << u"No communication"_s;
        QTest::newRow("failed") << u"FAILED"_s << u"No communication"_s;
    }

    void wordsThatPass()
    {
        QFETCH(const QString, reply);
        const Panel panel = reading(reply);
        QTEST(text(panel, u"lbStatus"_s), "status");
        const bool passed = text(panel, u"lbStatus"_s) == "Communication OK"_L1;
        QCOMPARE(panel.verdict, passed ? Verdict::Pass : Verdict::Fail);
        QCOMPARE(isShown(panel, u"OK"_s), passed);
        QCOMPARE(isShown(panel, u"NO"_s), !passed);
    }

    void cutReplySaysSo()
    {
        QCOMPARE(reading(u"Passed"_s, true).verdict, Verdict::Incomplete);
        const Panel panel = reading(u"Block 3 of 8"_s, true);
        QVERIFY(isShown(panel, u"NO"_s));
        QCOMPARE(text(panel, u"lbStatus"_s), u"No communication"_s);
        QCOMPARE(panel.judgements.value(0).reading, u"No communication (Reading interrupted)"_s);
        QCOMPARE(panel.judgements.value(0).line, u"Block 3 of 8"_s);
    }

    void testsOfThePhone_data()
    {
        columns<QString, int, QByteArray, Verdict, QString>({"phone", "index", "command", "verdict", "running"});
        QTest::newRow("all") << u"IP 6"_s << 5 << QByteArray("testmemory") << Verdict::Pass << u"RAM|"_s;
        QTest::newRow("1 MB") << u"IP X"_s << 6 << QByteArray("testmemory --1MB") << Verdict::Pass << u"|TESTE 15s"_s;
        QTest::newRow("bad, all") << u"IP 7,memory=bad"_s << 5 << QByteArray("testmemory") << Verdict::Fail
                                  << u"RAM|"_s;
        QTest::newRow("bad, 1 MB") << u"IP 8,memory=bad"_s << 6 << QByteArray("testmemory --1MB") << Verdict::Fail
                                   << u"|TESTE 15s"_s;
    }

    void testsOfThePhone()
    {
        QFETCH(const QString, phone);
        QFETCH(const int, index);
        PhoneBench bench(phone);
        bench.connectPhone();
        OutrosScreen memory(*bench.session);
        QSignalSpy judged(&memory, &Screen::judged);
        memory.btBl_Click(index);
        QTEST(text(memory.panel(), u"lbStatus2"_s) + u'|' + text(memory.panel(), u"txtDados"_s), "running");
        memory.Timer1_Timer(); // the note is no reply
        QCOMPARE(judged.size(), 0);
        bench.gatherReply();
        QTEST(bench.port.commands.last(), "command");
        QTEST(memory.reading().verdict, "verdict");
        QVERIFY(text(memory.panel(), u"txtDados"_s).contains("Block 8 of 8"_L1));
        QCOMPARE(judged.size(), 1);
    }

    void otherButtonsStartNothing()
    {
        PhoneBench bench(u"IP 7"_s);
        OutrosScreen memory(*bench.session);
        memory.btBl_Click(5);
        QCOMPARE(text(memory.panel(), u"lbAguarde"_s), u"Desconectado!"_s);
        bench.connectPhone();
        bench.port.commands.clear();
        for (const int index : {-1, 0, 4, 7})
            memory.btBl_Click(index);
        QCOMPARE(bench.port.commands, QList<QByteArray>());
        QVERIFY(!memory.isReading());
    }

    void modelIsAskedFirst()
    {
        PhoneBench bench(u"IP 8,model=A9999"_s);
        bench.connectPhone();
        bench.port.phone = phone(u"IP 8"_s);
        OutrosScreen memory(*bench.session);
        memory.btBl_Click(6);
        bench.gatherReply();
        bench.session->TimerVersao_Timer();
        bench.gatherReply();
        QCOMPARE(bench.port.commands.last(), QByteArray("testmemory --1MB"));
        QCOMPARE(memory.reading().verdict, Verdict::Pass);
    }

    void recordingStandsBesideTheReply()
    {
        PhoneBench bench(u"IP 7"_s);
        bench.store->run<Done>(
            Store::Access::Write,
            [](Store &store) {
                return saveRecording(store, {u"IP 7"_s, u"testmemory"_s, u"testmemory\r\nPassed"_s});
            },
            bench.session.get(), [](const Result<Done> &) {});
        bench.connectPhone();
        OutrosScreen memory(*bench.session);
        memory.btBl_Click(5);
        bench.gatherReply();
        QVERIFY(!isShown(memory.panel(), u"FrameComparador"_s));
        memory.btComparador_Click();
        QVERIFY(isShown(memory.panel(), u"FrameComparador"_s));
        QCOMPARE(text(memory.panel(), u"txtComparador"_s), u"\r\nPassed"_s);
        memory.btBl_Click(6);
        bench.gatherReply();
        QCOMPARE(text(memory.panel(), u"txtComparador"_s), QString());
        QVERIFY(isShown(memory.panel(), u"lbIntegridade"_s));
    }
};

QTEST_GUILESS_MAIN(TestMemory)
#include "tst_memory.moc"
