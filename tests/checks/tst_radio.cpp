#include "chipreading.h"
#include "columns.h"
#include "models.h"
#include "phonebench.h"
#include "rfs_esqscreen.h"
#include "rfsscreen.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString text(const Panel &panel, const QString &control)
{
    return panel.fields.value(control).text.value_or(u"unset"_s);
}

QString colour(const Panel &panel, int index)
{
    return literal(panel.fields.value(radio(index).field).back.value_or(Colour::Fault));
}

constexpr auto kGreen = "&H0000FF00"_L1;
constexpr auto kGrey = "&H00808080"_L1;
constexpr auto kWhite = "&H00FFFFFF"_L1;

} // namespace

class TestRadio : public QObject
{
    Q_OBJECT

private slots:
    void markers_data()
    {
        columns<int, QString, bool>({"radio", "reply", "up"});
        QTest::newRow("was up") << 0 << u"x Baseband is already powered on"_s << true;
        QTest::newRow("ready") << 0 << u"BB_HSIC_RDY"_s << true;
        QTest::newRow("another's marker") << 1 << u"BB_HSIC_RDY Wifi is already on"_s << false;
        QTest::newRow("Bluetooth was up") << 1 << u"Already on"_s << true;
        QTest::newRow("other letter case") << 1 << u"already on, On Success, ok"_s << false;
        QTest::newRow("OK in a word") << 2 << u"BOOKED"_s << true;
        QTest::newRow("Wi-Fi was up") << 2 << u"Wifi is already on"_s << true;
        QTest::newRow("GPS was up") << 3 << u"GPS is already on"_s << true;
        QTest::newRow("error") << 3 << u"ERROR: no response"_s << false;
    }

    void markers()
    {
        QFETCH(const int, radio);
        QFETCH(const QString, reply);
        QTEST(cameUp(radio, reply), "up");
    }

    /// On, on again, silent, off and properties of every radio.
    void radiosOfThePhone()
    {
        for (int index = 0; index < kRadios; ++index) {
            PhoneBench bench(u"IP 8"_s);
            bench.connectPhone();
            RFsScreen radios(*bench.session);
            const auto run = [&](RadioAction action) {
                radios.chooseRadio(index);
                radios.chooseAction(action);
                radios.read();
                bench.gatherReply();
                return radios.reading().verdict;
            };
            for (int time = 0; time < 2; ++time) {
                QCOMPARE(run(RadioAction::On), Verdict::Pass);
                QCOMPARE(colour(radios.panel(), index), kGreen);
                QCOMPARE(text(radios.panel(), u"lbStatus2"_s), radio(index).name.toString() + u"\r\nComunicação OK"_s);
            }
            QCOMPARE(run(RadioAction::Properties), Verdict::None);
            QVERIFY(text(radios.panel(), u"txtDados"_s).contains("state up"_L1));
            QCOMPARE(colour(radios.panel(), index), kGreen);
            QCOMPARE(run(RadioAction::Off), Verdict::None);
            QCOMPARE(colour(radios.panel(), index), kWhite);
            QVERIFY(!isShown(radios.panel(), u"NO"_s));
            bench.port.phone = phone(u"IP 8,radio%1=off"_s.arg(index));
            QCOMPARE(run(RadioAction::On), Verdict::Fail);
            QCOMPARE(colour(radios.panel(), index), kGrey);
            QVERIFY(text(radios.panel(), u"txtDados"_s).endsWith("\r\n\r\nREPITA PROCESSO"_L1));
            QCOMPARE(radios.judgements().size(), 1);
            QCOMPARE(radios.judgements().value(0).line, u"ERROR: no response"_s);
            for (int other = 0; other < kRadios; ++other)
                if (other != index)
                    QVERIFY(colour(radios.panel(), other) != kGrey);
        }
    }

    void offIsWhiteBeforeTheReply()
    {
        PhoneBench bench(u"IP 6"_s);
        bench.connectPhone();
        RFsScreen radios(*bench.session);
        radios.btOff_Click(1);
        QVERIFY(radios.isReading());
        QCOMPARE(colour(radios.panel(), 1), kWhite);
    }

    void silenceKeepsTheColour()
    {
        PhoneBench bench(u"IP 7"_s);
        bench.connectPhone();
        RFsScreen radios(*bench.session);
        radios.btOn_Click(2);
        bench.gatherReply();
        bench.port.keptBytes = 0;
        radios.btOn_Click(2);
        bench.gatherReply();
        for (int tick = 1; tick < 30; ++tick)
            radios.Timer1_Timer();
        QVERIFY(!radios.isReading() && !radios.hasReading());
        QCOMPARE(colour(radios.panel(), 2), kGreen);
    }

    void oldestModelsHaveNoGps()
    {
        for (const QString &model : modelNames()) {
            PhoneBench bench(model);
            bench.connectPhone();
            bench.port.commands.clear();
            RFsScreen radios(*bench.session);
            const bool isRefused = model.startsWith("IP 6"_L1);
            for (const auto click :
                 {&RFsScreen::btOn_Click, &RFsScreen::btOff_Click, &RFsScreen::btPropriedades_Click}) {
                (radios.*click)(3);
                bench.gatherReply();
            }
            QCOMPARE(bench.boxes.keys, QStringList(isRefused ? 3 : 0, u"MSG_NAO_PARA_IP6"_s));
            QCOMPARE(bench.port.commands.size(), isRefused ? 0 : 3);
            radios.btOn_Click(0);
            QCOMPARE(bench.port.commands.last(), QByteArray("baseband --on"));
        }
    }

    void nothingIsSentWithoutALink()
    {
        PhoneBench bench(u"IP 7"_s);
        RFsScreen radios(*bench.session);
        radios.btOff_Click(0);
        QCOMPARE(text(radios.panel(), u"lbAguarde"_s), u"Desconectado"_s);
        QVERIFY(colour(radios.panel(), 0) != kWhite);
        bench.session->connectOrDisconnect(u"1"_s);
        radios.btOff_Click(0);
        QCOMPARE(text(radios.panel(), u"lbAguarde"_s), u"Aguarde..."_s);
        QCOMPARE(bench.port.commands, QList<QByteArray>{"syscfg print RMd#"});
    }

    void referenceVoltages()
    {
        QCOMPARE(rfTipo(u"IP 6s Plus"_s, 2), u"T"_s);
        QCOMPARE(rfTipo(u"IP 7"_s, 1), u"I"_s);
        QCOMPARE(rfTipo(u"IP X"_s, 2), u"Q"_s);
        PhoneBench bench(u"IP 7"_s);
        RFs_EsqScreen voltages(*bench.session);
        voltages.open();
        voltages.ComboAparelhos_Click(u"IP 6"_s);
        QCOMPARE(voltages.panel().rows.size(), 5);
        QCOMPARE(voltages.panel().rows.first().cell(u"Malha"), u"PP_VCC_MAIN"_s);
        QCOMPARE(voltages.panel().rows.at(1).cell(u"REF"), u"0.900"_s);
        voltages.ComboAparelhos_Click(u"IP 7"_s);
        QCOMPARE(voltages.panel().fields.value(u"Botao1"_s).checked, std::optional(true)); // it begins with "INT."
        voltages.Botao2_Click();
        QCOMPARE(voltages.panel().rows.size(), 2);
        voltages.ComboAparelhos_Click(QString());
        QVERIFY(voltages.panel().rows.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestRadio)
#include "tst_radio.moc"
