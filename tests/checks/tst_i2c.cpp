#include "chipreading.h"
#include "columns.h"
#include "i2cscreen.h"
#include "models.h"
#include "phonebench.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString text(const Panel &panel, const QString &control)
{
    return panel.fields.value(control).text.value_or(u"unset"_s);
}

QStringList list(const Panel &panel)
{
    return panel.fields.value(u"ListView"_s).items.value_or(QStringList());
}

/// The screen on a phone, and the ticks of a run.
struct BusBench : PhoneBench
{
    explicit BusBench(const QString &description) : PhoneBench(description)
    {
        connectPhone();
        port.commands.clear();
        screen.open();
    }

    void step()
    {
        screen.TimerAuto_Timer();
        gatherReply();
        for (int tick = 0; tick < 30; ++tick) // in case nothing came
            screen.Timer1_Timer();
    }
    void runAll()
    {
        screen.btAutoTeste_Click();
        for (int tick = 0; tick < 12 && screen.isRunning(); ++tick)
            step();
    }

    I2CScreen screen{*session};
};

I2CInput input(const QString &model, const QList<BusReply> &replies, const QList<BusDevice> &expected)
{
    return {replies, expected, 2, BusRun::Finished, model, Language::Portuguese};
}

} // namespace

class TestI2C : public QObject
{
    Q_OBJECT

private slots:
    void busesOfTheModels_data()
    {
        columns<QString, QString, QString>({"model", "testable", "hidden"});
        for (const auto &model : {u"IP 6"_s, u"IP 6 Plus"_s, u"IP 6s"_s, u"IP 6s Plus"_s})
            QTest::newRow(qPrintable(model)) << model << u"012"_s << u"34567"_s;
        QTest::newRow("7") << u"IP 7"_s << u"01234"_s << u"67"_s;
        QTest::newRow("7 Plus") << u"IP 7 Plus"_s << u"0124"_s << u"67"_s;
        QTest::newRow("8") << u"IP 8"_s << u"023467"_s << QString();
        QTest::newRow("8 Plus") << u"IP 8 Plus"_s << u"023467"_s << QString();
        QTest::newRow("X") << u"IP X"_s << u"034567"_s << QString();
    }

    /// The phone's own log shows which buses were asked for.
    void busesOfTheModels()
    {
        QFETCH(const QString, model);
        BusBench bench(model);
        QString hidden;
        for (int bus = 0; bus < kBuses; ++bus)
            if (!isShown(bench.screen.panel(), element(u"btI2C", bus)))
                hidden += QString::number(bus);
        QTEST(hidden, "hidden");
        bench.runAll();
        QString asked;
        for (const QByteArray &command : std::as_const(bench.port.commands))
            asked += QString::fromLatin1(command).remove(u"i2c -s "_s);
        QTEST(asked, "testable");
        QVERIFY(!bench.screen.isRunning());
        QCOMPARE(text(bench.screen.panel(), u"btAutoTeste"_s), u"Auto Teste"_s);
        QCOMPARE(list(bench.screen.panel()).last(), u"Teste Finalizados"_s);
    }

    void goodOnlyWhereSomethingWasLookedFor_data()
    {
        columns<QString, Verdict, bool>({"phone", "verdict", "good"});
        QTest::newRow("all answer") << u"IP 7"_s << Verdict::Pass << true;
        QTest::newRow("nothing is expected") << u"IP X"_s << Verdict::None << false;
        QTest::newRow("one is silent") << u"IP 7,i2c1:75=off"_s << Verdict::Fail << false;
    }

    void goodOnlyWhereSomethingWasLookedFor()
    {
        QFETCH(const QString, phone);
        BusBench bench(phone);
        bench.screen.btAutoTeste_Click();
        QVERIFY(!isShown(bench.screen.panel(), u"FrameResultadoOK"_s));
        for (int tick = 0; tick < 12 && bench.screen.isRunning(); ++tick)
            bench.step();
        QTEST(bench.screen.reading().verdict, "verdict");
        QTEST(isShown(bench.screen.panel(), u"FrameResultadoOK"_s), "good");
        const bool saysGood =
            text(bench.screen.panel(), u"txtDadosI2C"_s).contains("Nenhuma falha detectada em I2C"_L1);
        QTEST(saysGood, "good");
    }

    /// Each device of each model alone off is exactly that finding.
    void silentDevices()
    {
        int devices = 0;
        for (const QString &model : modelNames()) {
            BusBench healthy(model);
            healthy.runAll();
            for (const Row &row : healthy.screen.reading().rows) {
                const QString address = row.cell(u"Endereço");
                if (row.verdict == Verdict::None)
                    continue;
                const QString bus = row.cell(u"Barramento").last(1);
                BusBench bench(u"%1,i2c%2:%3=off"_s.arg(model, bus, address.mid(2)));
                bench.runAll();
                QStringList silent;
                for (const Judgement &judgement : bench.screen.judgements())
                    if (judgement.verdict != Verdict::Pass)
                        silent.append(judgement.what);
                QCOMPARE(silent, QStringList{u"I2C %1 %2 %3"_s.arg(bus, address, row.cell(u"Componente"))});
                ++devices;
            }
        }
        QVERIFY(devices > 0);
    }

    void twoSilentDevicesAreOneBlock()
    {
        const QList<BusDevice> expected{
            {2, u"x29"_s, u"Sensor"_s}, {2, u"x1A"_s, u"Chip"_s}, {2, u"x75"_s, u"Other"_s}};
        const Panel panel = readI2C(input(u"IP 7"_s, {{2, u"0x1A\r\n"_s}}, expected));
        QCOMPARE(text(panel, u"txtDadosI2C"_s), u"I2C 2\r\n- J4503 - Flex Front Camera and Prox. Sensor Cable"_s);
        QCOMPARE(text(panel, u"lbResultado"_s), u"x29 - Sensor - Sem Comunicação\r\n\r\nx1A - Chip - Comunicação OK"
                                                u"\r\n\r\nx75 - Other - Sem Comunicação"_s);
        QCOMPARE(list(panel).mid(0, 3), QStringList({QString(), u"  I2C 2"_s, u"x29 - Sensor - Sem Comunicação"_s}));
        QVERIFY(isShown(panel, u"OK"_s) && isShown(panel, u"NO"_s));
        QCOMPARE(list(readI2C(input(u"IP 8"_s, {{2, u"0x1A"_s}}, expected))).first(), u"  I2C 2"_s);
    }

    void keysAreFoundAnywhereAndToTheLetter()
    {
        const QList<BusDevice> expected{{2, u"x1A"_s, u"Chip"_s}};
        QCOMPARE(readI2C(input(u"IP 7"_s, {{2, u"0x29 beside 0x1AF"_s}}, expected)).verdict, Verdict::Pass);
        QCOMPARE(readI2C(input(u"IP 7"_s, {{2, u"0x1a"_s}}, expected)).verdict, Verdict::Fail);
        QCOMPARE(readI2C(input(u"IP 7"_s, {{2, u"0x1"_s, true}}, expected)).verdict, Verdict::Incomplete);
        QCOMPARE(readI2C(input(u"IP 7"_s, {{2, QString(), true}}, expected)).verdict, Verdict::Incomplete);
        QCOMPARE(readI2C(input(u"IP 7"_s, {{2, u"0x1A"_s, true}}, expected)).verdict, Verdict::Incomplete);
    }

    void cancelKeepsTheResults()
    {
        BusBench bench(u"IP 7,i2c1:75=off"_s);
        bench.screen.btAutoTeste_Click();
        QCOMPARE(text(bench.screen.panel(), u"btAutoTeste"_s), u"Cancelar"_s);
        bench.step();
        bench.step();
        const QString failures = text(bench.screen.panel(), u"txtDadosI2C"_s);
        QVERIFY(failures.startsWith("I2C 1"_L1));
        bench.screen.btAutoTeste_Click();
        QVERIFY(text(bench.screen.panel(), u"txtDadosI2C"_s).startsWith(failures));
        QVERIFY(text(bench.screen.panel(), u"txtDadosI2C"_s).endsWith(": 2, 3, 4"_L1));
        QCOMPARE(text(bench.screen.panel(), u"btAutoTeste"_s), u"Auto Teste"_s);
        bench.screen.TimerAuto_Timer();
        QCOMPARE(bench.port.commands.size(), 2);
    }

    void brokenOffIsNoPass()
    {
        BusBench bench(u"IP 7"_s);
        bench.screen.btAutoTeste_Click();
        bench.step();
        QCOMPARE(bench.screen.reading().verdict, Verdict::Incomplete); // the rest is still to come
        bench.screen.btAutoTeste_Click();
        QCOMPARE(bench.screen.reading().verdict, Verdict::Incomplete);
        const QList<Judgement> judgements = bench.screen.judgements();
        QCOMPARE(judgements.first().verdict, Verdict::Pass);
        QVERIFY(judgements.first().line.startsWith("0x"_L1));
        QCOMPARE(judgements.last().reading, u"Não testado"_s);
        QCOMPARE(judgements.last().verdict, Verdict::Incomplete);
    }

    void runGoesOverASilentBusAndEndsWithTheLink()
    {
        BusBench bench(u"IP 7"_s);
        QSignalSpy ended(&bench.screen, &Screen::readingEnded);
        bench.screen.btAutoTeste_Click();
        bench.port.keptBytes = 0;
        bench.step();
        bench.port.keptBytes = PhonePort::kAll;
        bench.step();
        QCOMPARE(bench.port.commands, QList<QByteArray>({"i2c -s 0", "i2c -s 1"}));
        bench.screen.TimerAuto_Timer();
        bench.port.pull();
        QVERIFY(!bench.screen.isRunning());
        QCOMPARE(text(bench.screen.panel(), u"btAutoTeste"_s), u"Auto Teste"_s);
        QVERIFY(!ended.isEmpty());
        bench.screen.btAutoTeste_Click();
        QVERIFY(!bench.screen.isRunning());
        QCOMPARE(text(bench.screen.panel(), u"lbAguarde"_s), u"Desconectado"_s);
    }

    void runWaitsForTheModel()
    {
        BusBench bench(u"IP 8,model=A9999"_s);
        bench.port.phone = phone(u"IP 8"_s);
        bench.screen.btAutoTeste_Click();
        bench.screen.TimerAuto_Timer();
        bench.gatherReply();
        bench.session->TimerVersao_Timer();
        for (int tick = 0; tick < 12 && bench.screen.isRunning(); ++tick)
            bench.step();
        QCOMPARE(bench.port.commands.value(0), QByteArray("syscfg print RMd#"));
        QCOMPARE(bench.port.commands.size(), 7);
    }

    void knownGoodPhoneTeaches()
    {
        BusBench bench(u"IP 6"_s);
        bench.screen.btI2C_Click(0);
        bench.gatherReply();
        QCOMPARE(bench.screen.reading().verdict, Verdict::None); // nothing is expected yet
        bench.boxes.answer = Answer::No;
        bench.screen.btConhecido_Click();
        QCOMPARE(bench.screen.reading().verdict, Verdict::None);
        bench.boxes.answer = Answer::Yes;
        bench.screen.btConhecido_Click();
        QCOMPARE(bench.boxes.questions.size(), 2);
        QCOMPARE(bench.screen.reading().verdict, Verdict::Pass);
        QCOMPARE(bench.screen.reading().rows.size(), 3);
        QVERIFY(bench.screen.reading().rows.first().source.startsWith("recorded here, 20"_L1));
        bench.port.phone = phone(u"IP 6,i2c0:27=off"_s);
        bench.screen.btI2C_Click(0);
        bench.gatherReply();
        QCOMPARE(bench.screen.reading().verdict, Verdict::Fail);
        bench.screen.btConhecido_Click();
        QVERIFY(bench.boxes.questions.last().contains("I2C 0 0x27"_L1)); // it would no longer be looked for
    }

    /// The diagram that opens is one that draws this model; one that is missing is told.
    void diagramsOfTheModels()
    {
        const QDir guides(QStringLiteral(PRELT_SOURCE_DIR "/data/guides"));
        for (const QString &model : modelNames()) {
            BusBench bench(model);
            bench.screen.btPdf_Click();
            QCOMPARE(bench.boxes.keys, QStringList{u"GUIDE_MISSING"_s});
            QFile source(guides.filePath(QFileInfo(bench.boxes.arguments.value(0)).completeBaseName() + u".md"_s));
            QVERIFY(source.open(QIODevice::ReadOnly));
            QVERIFY(source.readAll().contains(u"{{map %1}}"_s.arg(model).toUtf8()));
        }
    }

    void busThatTheModelLacksIsRefused()
    {
        BusBench bench(u"IP 7 Plus"_s);
        QSignalSpy refused(bench.session.get(), &Session::refused);
        for (const int bus : {3, 5, 6})
            bench.screen.btI2C_Click(bus);
        QCOMPARE(refused.size(), 3);
        QCOMPARE(bench.port.commands, QList<QByteArray>());
    }
};

QTEST_GUILESS_MAIN(TestI2C)
#include "tst_i2c.moc"
