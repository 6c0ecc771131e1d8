#include "bateriareading.h"
#include "bateriascreen.h"
#include "chipreading.h"
#include "columns.h"
#include "icreading.h"
#include "icscreen.h"
#include "phonebench.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString text(const Panel &panel, const QString &control)
{
    return panel.fields.value(control).text.value_or(u"unset"_s);
}

/// A gauge's reply with these lines, parted by "/".
Panel gauge(const QByteArray &lines, const QString &model = u"IP 7"_s)
{
    const QString reply = "\r\n"_L1 + QString::fromLatin1(lines).replace(u'/', u"\r\n"_s) + "\r\n[0:0] :-) "_L1;
    return readBateria({reply, model, Language::Portuguese});
}

} // namespace

class TestBateria : public QObject
{
    Q_OBJECT

private slots:
    void factsOfAReply_data()
    {
        columns<QByteArray, int, QString>({"lines", "fact", "shown"});
        const auto add = [](const char *fault, const char *lines, int fact, const QString &shown) {
            QTest::newRow(fault) << QByteArray(lines) << fact << shown;
        };
        add("rounded up", "design-capacity: \"1810mAh\"/nominal-capacity: \"1715mAh\"", 0, u"94 %"_s);
        add("two blanks", "design-capacity:  1810 mAh/nominal-capacity:  1715 mAh", 0, u"94 %"_s);
        add("a new battery", "design-capacity: \"1810mAh\"/nominal-capacity: \"1850mAh\"", 0, u"102 %"_s);
        add("equal is not 99", "design-capacity: \"1821mAh\"/nominal-capacity: \"1821mAh\"", 0, u"100 %"_s);
        add("nothing designed", "design-capacity: \"0mAh\"/nominal-capacity: \"1715mAh\"", 0, u"*"_s);
        add("negative", "design-capacity: \"1810mAh\"/nominal-capacity: \"-15mAh\"", 0, u"*"_s);
        add("half of it missing", "design-capacity: \"1810mAh\"", 0, u"*"_s);
        add("the closing quote stays", "cycle-count: \"512\"", 1, u"512"_s);
        add("a quote that opens nothing", "cycle-count:  512\"", 1, u"512\""_s);
        add("one blank takes the first digit", "cycle-count: 512", 1, u"12"_s);
        add("empty", "cycle-count: \"\"", 1, u"*"_s);
        add("no value at all", "cycle-count:", 1, u"*"_s);
        add("other letter case", "Cycle-Count: \"512\"", 1, u"*"_s);
        add("capacity", "design-capacity: \"1810mAh\"", 3, u"1810 mAh"_s);
        add("one blank before the unit", "nominal-capacity:  1715   mAh", 4, u"1715 mAh"_s);
        add("voltage", "voltage: \"4123mV\"", 5, u"4123 mV"_s);
        add("current keeps its sign and unit", "current: \"-215mA\"", 6, u"-215mA"_s);
        add("temperature", "temperature: \"28C\"", 7, u"28 Cº"_s);
    }

    void factsOfAReply()
    {
        QFETCH(const QByteArray, lines);
        QFETCH(const int, fact);
        QTEST(text(gauge(lines), element(u"Info", fact)), "shown");
        QCOMPARE(gauge(lines).verdict, Verdict::None);
    }

    void cutInTheLastLineIsNotTold()
    {
        const QString reply = u"\r\ndesign-capacity: \"1810mAh\"\r\nvoltage: \"41"_s;
        QCOMPARE(text(readBateria({reply, u"IP 7"_s}), u"Info(5)"_s), u"*"_s);
        QCOMPARE(text(readBateria({reply, u"IP 7"_s}), u"Info(3)"_s), u"1810 mAh"_s);
    }

    void noteTellsWhy()
    {
        const auto note = [](const QString &model) { return text(gauge("cycle-count: \"512\"", model), u"lbVar"_s); };
        QCOMPARE(note(u"IP 6s"_s), u"* FUNÇÃO NÃO DISPOÍVEL PARA ESSE MODELO"_s);
        QCOMPARE(note(u"IP 7"_s), u"* SEM MEDIÇÃO"_s);
        const Panel whole =
            gauge("cycle-count: \"1\"/charge-percentage: \"87\"/design-capacity: \"1810mAh\"/"
                  "nominal-capacity: \"1715mAh\"/voltage: \"1mV\"/current: \"1mA\"/temperature: \"1C\"");
        QVERIFY(!isShown(whole, u"lbVar"_s));
        QCOMPARE(whole.fields.value(u"MedidorSaude"_s).value, 94);
        QCOMPARE(whole.fields.value(u"MedidorCarga"_s).value, 87);
        QCOMPARE(gauge("x").fields.value(u"MedidorSaude"_s).value, kGaugeUnknown);
    }

    void twoCommandsInARow()
    {
        PhoneBench bench(u"IP 8"_s);
        bench.connectPhone();
        bench.port.commands.clear();
        BateriaScreen battery(*bench.session);
        QSignalSpy ended(&battery, &Screen::readingEnded);
        battery.readAtOpening();
        QVERIFY(isShown(battery.panel(), u"FrameVCore"_s));
        bench.gatherReply();
        QVERIFY(battery.txtDados().contains("cycle-count"_L1) && !battery.txtDados().contains("GasGauge"_L1));
        QCOMPARE(text(battery.panel(), u"Info(1)"_s), QString());
        battery.TimerLer_Timer();
        bench.gatherReply();
        QCOMPARE(bench.port.commands, QList<QByteArray>({"battery --properties", "device  --key GasGauge -p"}));
        QVERIFY(battery.txtDados().contains("GasGauge"_L1));
        QCOMPARE(text(battery.panel(), u"Info(0)"_s), u"94 %"_s);
        QVERIFY(!isShown(battery.panel(), u"FrameVCore"_s));
        QCOMPARE(ended.size(), 1);
        battery.btBateria_Click();
        QCOMPARE(text(battery.panel(), u"Info(0)"_s), QString());
        QVERIFY(!isShown(battery.panel(), u"lbVar"_s));
    }

    void linkLostBetweenTheCommands()
    {
        PhoneBench bench(u"IP 8"_s);
        bench.connectPhone();
        BateriaScreen battery(*bench.session);
        battery.readAtOpening();
        bench.gatherReply();
        bench.port.pull();
        QCOMPARE(battery.panel().fields.value(u"btBateria"_s).enabled, std::optional(true));
        QVERIFY(!battery.hasReading());
    }

    void silentGaugeGivesNoReading()
    {
        PhoneBench bench(u"IP 8"_s);
        bench.connectPhone();
        bench.port.keptBytes = 0;
        BateriaScreen battery(*bench.session);
        QSignalSpy refused(bench.session.get(), &Session::refused);
        battery.readAtOpening();
        bench.gatherReply();
        battery.TimerLer_Timer();
        bench.gatherReply();
        QVERIFY(!battery.hasReading());
        QCOMPARE(refused.size(), 1);
        QCOMPARE(text(battery.panel(), u"Info(7)"_s), QString());
    }

    void lengthsOfTheChipsReply_data()
    {
        columns<int, Verdict, QString>({"length", "verdict", "status"});
        QTest::newRow("nothing yet") << 30 << Verdict::Incomplete << QString();
        QTest::newRow("too short") << 31 << Verdict::Fail << u"Sem Comunicação"_s;
        QTest::newRow("just too short") << 150 << Verdict::Fail << u"Sem Comunicação"_s;
        QTest::newRow("long enough") << 151 << Verdict::Pass << u"Comunicação OK"_s;
    }

    void lengthsOfTheChipsReply()
    {
        QFETCH(const int, length);
        QFETCH(const Verdict, verdict);
        const Panel panel = readIC({QString(length, u'x'), false, u"IP X"_s});
        QCOMPARE(panel.verdict, verdict);
        QTEST(text(panel, u"lbStatus"_s), "status");
        QCOMPARE(isShown(panel, u"OK"_s), verdict == Verdict::Pass);
        QCOMPARE(isShown(panel, u"NO"_s), verdict == Verdict::Fail);
        QCOMPARE(isShown(panel, u"lbStatus2"_s), length > 30);
        QCOMPARE(text(panel, u"lbIC"_s), length > 30 ? u"HYDRA"_s : QString());
        QCOMPARE(readIC({QString(length, u'x'), true, u"IP X"_s}).verdict, Verdict::Incomplete); // neither good nor bad
    }

    void chipTest_data()
    {
        columns<QString, int, QByteArray, Verdict>({"phone", "selector", "command", "verdict"});
        const QByteArray registers = "tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx";
        QTest::newRow("answers") << u"IP 7"_s << 1 << QByteArray("tristar -p") << Verdict::Pass;
        QTest::newRow("registers") << u"IP X"_s << 2 << registers << Verdict::Pass;
        QTest::newRow("silent") << u"IP 7,tristar=off"_s << 1 << QByteArray("tristar -p") << Verdict::Fail;
        QTest::newRow("silent, long echo") << u"IP X,tristar=off"_s << 2 << registers << Verdict::Fail;
    }

    void chipTest()
    {
        QFETCH(const QString, phone);
        QFETCH(const int, selector);
        PhoneBench bench(phone);
        bench.connectPhone();
        ICScreen chip(*bench.session);
        QSignalSpy judged(&chip, &Screen::judged);
        chip.chooseSelector(selector);
        chip.btBl_Click();
        bench.gatherReply();
        QTEST(bench.port.commands.last(), "command");
        QTEST(chip.reading().verdict, "verdict");
        QCOMPARE(judged.size(), 1);
    }

    void replyThatStaysShortIsTold()
    {
        PhoneBench bench(u"IP 7"_s);
        bench.connectPhone();
        bench.port.keptBytes = 20; // with the line break that the console starts with: 22
        ICScreen chip(*bench.session);
        QSignalSpy ended(&chip, &Screen::readingEnded);
        QSignalSpy told(bench.session.get(), &Session::refused);
        chip.btBl_Click();
        bench.gatherReply();
        for (int tick = 2; tick < 30; ++tick)
            chip.Timer1_Timer();
        QCOMPARE(ended.size(), 0);
        chip.Timer1_Timer();
        QCOMPARE(ended.size(), 1);
        QCOMPARE(text(chip.panel(), u"lbStatus"_s), QString());
        QCOMPARE(chip.reading().verdict, Verdict::Incomplete);
        QVERIFY(chip.hasAnswer());
        QCOMPARE(told.size(), 1);
        QCOMPARE(told.first().first().value<Notice>().key, u"REPLY_TOO_SHORT"_s);
    }

    void nothingIsSentWhileBusyOrClosed()
    {
        PhoneBench bench(u"IP 7"_s);
        ICScreen chip(*bench.session);
        chip.btBl_Click();
        QCOMPARE(text(chip.panel(), u"lbStatus"_s), u"Desconectado!"_s);
        QVERIFY(isShown(chip.panel(), u"lbAguarde"_s));
        chip.TimerAguarde_Timer();
        QVERIFY(!isShown(chip.panel(), u"lbAguarde"_s));
        bench.session->connectOrDisconnect(u"1"_s);
        chip.btBl_Click();
        QCOMPARE(text(chip.panel(), u"lbStatus"_s), u"Aguarde..."_s);
        QCOMPARE(bench.port.commands, QList<QByteArray>{"syscfg print RMd#"});
    }

    void unknownModelIsAskedFirst()
    {
        PhoneBench bench(u"IP 8,model=A9999"_s);
        bench.connectPhone();
        bench.port.phone = phone(u"IP 8"_s);
        ICScreen chip(*bench.session);
        chip.btBl_Click();
        bench.gatherReply();
        bench.session->TimerVersao_Timer();
        bench.gatherReply();
        QCOMPARE(bench.port.commands.last(), QByteArray("tristar -p"));
        QCOMPARE(text(chip.panel(), u"lbIC"_s), u"HYDRA"_s);
    }
};

QTEST_GUILESS_MAIN(TestBateria)
#include "tst_bateria.moc"
