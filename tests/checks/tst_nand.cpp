#include "chipreading.h"
#include "columns.h"
#include "nandreading.h"
#include "nandscreen.h"
#include "phonebench.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString text(const Panel &panel, const QString &control)
{
    return panel.fields.value(control).text.value_or(u"unset"_s);
}

NandInput reply(NandTest test, const QString &reply)
{
    return {test, reply, true, false, u"IP 7"_s, Language::English};
}

} // namespace

class TestNand : public QObject
{
    Q_OBJECT

private slots:
    void sizeBandsAndGaps()
    {
        struct Band
        {
            int lowest;
            int highest;
            const char *name; ///< none: a gap
        };
        static constexpr Band kBands[] = {{0, 6, nullptr},        {7, 12, "8 GB"},       {13, 13, nullptr},
                                          {14, 20, "16 GB"},      {21, 21, nullptr},     {22, 39, "32 GB"},
                                          {40, 45, nullptr},      {46, 79, "64 GB"},     {80, 80, nullptr},
                                          {81, 139, "128 GB"},    {140, 190, nullptr},   {191, 349, "256 GB"},
                                          {350, 350, nullptr},    {351, 699, "512 GB"},  {700, 700, nullptr},
                                          {701, 1299, "1024 GB"}, {1300, 32767, nullptr}};
        for (const Band &band : kBands)
            for (const int gb : {band.lowest, band.highest}) {
                const QString gap = QString::number(gb) + u" GB APROX."_s;
                QCOMPARE(sizeClass(gb), band.name ? QString::fromLatin1(band.name) : gap);
            }
    }

    void sizeOfAReply_data()
    {
        columns<QString, QString>({"reply", "size"});
        QTest::newRow("last line") << u"\r\nPassed\r\nsize: 1DCC800\r\n[1:2] :-) "_s << u"32 GB"_s;
        QTest::newRow("exactly seven") << u"size: 6ACFC0\r\n["_s << u"8 GB"_s;         // 7 000 000
        QTest::newRow("one short of seven") << u"size: 6ACFBF["_s << u"6 GB APROX."_s; // 6 999 999
        QTest::newRow("lower case") << u"size: 1dcc800\r\n["_s << u"none"_s;
        QTest::newRow("no digit in the middle") << u"size: 1DCG800\r\n["_s << u"none"_s;
        QTest::newRow("blank in the middle") << u"size: 1DC C800\r\n["_s << u"none"_s;
        QTest::newRow("empty") << u"size: \r\n["_s << u"none"_s;
        QTest::newRow("no prompt") << u"size: 1DCC800\r\n"_s << u"none"_s;
        QTest::newRow("bracket before the colon") << u"[x] size: 1DCC800\r\n"_s << u"none"_s;
        QTest::newRow("51 digits") << u"size: "_s + QString(44, u'0') + u"1DCC800["_s << u"32 GB"_s;
        QTest::newRow("52 digits") << u"size: "_s + QString(45, u'0') + u"1DCC800["_s << u"none"_s;
        QTest::newRow("beyond 16 bits") << u"size: FFFFFFFFFF["_s << u"none"_s;
    }

    void sizeOfAReply()
    {
        QFETCH(const QString, reply);
        QTEST(sizeIn(reply).value_or(u"none"_s), "size");
    }

    void answers_data()
    {
        columns<int, QString, QString>({"test", "reply", "outcome"}); // verdict, mark, message
        const auto add = [](const char *fault, int test, const QString &reply, const char *outcome) {
            QTest::newRow(fault) << test << reply << QString::fromLatin1(outcome);
        };
        add("passed", 0, u"UID: 1\r\nPassed"_s, "pass OK");
        add("name alone", 2, u"name: x"_s, "pass OK");
        add("capitals are not enough", 0, u"PASS"_s, "fail NO");
        add("error", 0, u"ERROR: x"_s, "fail NO MSG_ERRO_NAND");
        add("error beside a pass", 0, u"ERROR\r\nPassed"_s, "pass OK");
        add("unknown command", 0, u"ERROR Passed: not found"_s, "none");
        add("size unread", 1, u"Passed\r\nsize: ?\r\n["_s, "incomplete OK");
        add("7000 characters", 3, QString(7000, u'x'), "fail NO");
        add("7001 characters", 3, QString(7001, u'x'), "pass OK");
        add("driver", 3, u"Driver is missing!"_s, "fail NO MSG_ERRO_NAND");
        add("driver beside 7000 characters", 3, QString(7000, u'x') + u"Driver is missing!"_s, "pass OK");
        add("an error is none of its words", 3, u"ERROR"_s, "fail NO");
    }

    void answers()
    {
        QFETCH(const int, test);
        QFETCH(const QString, reply);
        const Panel panel = readNand(::reply(static_cast<NandTest>(test), reply));
        QStringList outcome{word(panel.verdict)};
        for (const auto &mark : {u"OK"_s, u"NO"_s})
            if (isShown(panel, mark))
                outcome.append(mark);
        for (const Notice &message : panel.messages)
            outcome.append(message.key);
        QTEST(outcome.join(u' '), "outcome");
        NandInput cut = ::reply(static_cast<NandTest>(test), reply);
        cut.cut = true;
        QVERIFY(readNand(cut).verdict != Verdict::Pass);
    }

    void unavailableCommandSaysSo()
    {
        const Panel panel = readNand(reply(NandTest::Size, u"Command not found! size: 1DCC800 ["_s));
        QCOMPARE(text(panel, u"txtDados"_s), u"Not available for 6/6P"_s);
        QCOMPARE(text(panel, u"lbNand"_s), QString());
    }

    void faultsOfThePhone_data()
    {
        columns<QString, int, Verdict, QString>({"phone", "test", "verdict", "lbNand"});
        QTest::newRow("number") << u"IP 6"_s << 0 << Verdict::Pass << u"NAND"_s;
        QTest::newRow("size") << u"IP 8"_s << 1 << Verdict::Pass << u"NAND 32 GB"_s;
        QTest::newRow("information") << u"IP X"_s << 2 << Verdict::Pass << u"NAND"_s;
        QTest::newRow("configuration") << u"IP 7"_s << 3 << Verdict::Pass << u"NAND"_s;
        for (const int test : {0, 1, 2, 3})
            QTest::addRow("missing %d", test) << u"IP 7,nand=missing"_s << test << Verdict::Fail << QString();
    }

    void faultsOfThePhone()
    {
        QFETCH(const QString, phone);
        QFETCH(const int, test);
        PhoneBench bench(phone);
        bench.connectPhone();
        NandScreen nand(*bench.session);
        QSignalSpy judged(&nand, &Screen::judged);
        nand.btBl_Click(test);
        bench.gatherReply();
        QTEST(nand.reading().verdict, "verdict");
        QTEST(text(nand.panel(), u"lbNand"_s), "lbNand");
        const bool isFaulty = nand.reading().verdict == Verdict::Fail;
        QCOMPARE(bench.boxes.keys, isFaulty ? QStringList{u"MSG_ERRO_NAND"_s} : QStringList());
        nand.Timer1_Timer(); // a tick that was already on its way
        bench.session->chooseLanguage(Language::Spanish);
        QCOMPARE(judged.size(), 1);
        QCOMPARE(bench.boxes.keys.size(), isFaulty ? 1 : 0);
    }

    void sizeStaysUntilAnotherPhoneComes()
    {
        PhoneBench bench(u"IP 8"_s);
        bench.connectPhone();
        NandScreen nand(*bench.session);
        for (const int test : {1, 0}) {
            nand.btBl_Click(test);
            bench.gatherReply();
        }
        QCOMPARE(text(nand.panel(), u"lbNand"_s), u"NAND 32 GB"_s);
        bench.session->connectOrDisconnect(u"1"_s);
        QCOMPARE(text(nand.panel(), u"lbNand"_s), u"NAND 32 GB"_s);
        bench.connectPhone();
        QCOMPARE(text(nand.panel(), u"lbNand"_s), QString());
    }

    void replyThatNeverComesGivesUp()
    {
        PhoneBench bench(u"IP 8"_s);
        bench.connectPhone();
        bench.port.keptBytes = 0;
        NandScreen nand(*bench.session);
        QSignalSpy ended(&nand, &Screen::readingEnded);
        nand.btBl_Click(1);
        for (int tick = 0; tick < 50; ++tick) // the command is in flight: nothing is counted
            nand.Timer1_Timer();
        bench.gatherReply();
        for (int tick = 2; tick < 30; ++tick)
            nand.Timer1_Timer();
        QCOMPARE(ended.size(), 0);
        nand.Timer1_Timer();
        QCOMPARE(ended.size(), 1);
        QVERIFY(!nand.hasReading());
        QCOMPARE(text(nand.panel(), u"lbNand"_s), QString());
    }

    void nothingIsSentWhereItMayNot()
    {
        PhoneBench bench(u"IP 6s"_s);
        NandScreen nand(*bench.session);
        nand.btBl_Click(3);
        QCOMPARE(text(nand.panel(), u"lbStatus"_s), u"Desconectado"_s);
        QVERIFY(isShown(nand.panel(), u"lbAguarde"_s));
        nand.TimerAguarde_Timer();
        QVERIFY(!isShown(nand.panel(), u"lbAguarde"_s));
        bench.connectPhone();
        bench.port.commands.clear();
        nand.btBl_Click(2);
        QCOMPARE(bench.boxes.keys, QStringList{u"MSG_NAO_PARA_IP6"_s});
        bench.boxes.answer = Answer::No;
        nand.btBl_Click(3);
        QCOMPARE(bench.boxes.questions.size(), 1);
        QCOMPARE(bench.port.commands, QList<QByteArray>());
    }

    void linkLostOnTheWayJudgesNothing()
    {
        PhoneBench bench(u"IP 7"_s);
        bench.connectPhone();
        bench.port.keptBytes = 20;
        NandScreen nand(*bench.session);
        nand.btBl_Click(3);
        bench.session->Timer1_Timer();
        bench.port.pull();
        QVERIFY(!nand.isReading() && !nand.hasReading());
        QVERIFY(text(nand.panel(), u"txtDados"_s).contains("Key"_L1));
        QCOMPARE(text(nand.panel(), u"lbStatus"_s), QString());
    }

    void railsNeedTheModelAlone()
    {
        PhoneBench bench(u"IP 6s"_s);
        bench.connectPhone();
        bench.session->connectOrDisconnect(u"1"_s);
        NandScreen nand(*bench.session);
        QSignalSpy requested(&nand, &Screen::screenRequested);
        nand.btBl_Click(4);
        QVERIFY(!nand.panel().rows.isEmpty());
        for (const Row &row : nand.panel().rows)
            QCOMPARE(row.cell(u"Ci"), u"NAND"_s);
        nand.btVCore_Click();
        QCOMPARE(requested.value(0).value(1).toString(), u"NAND"_s);
    }
};

QTEST_GUILESS_MAIN(TestNand)
#include "tst_nand.moc"
