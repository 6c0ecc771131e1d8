#include "buckldoreading.h"
#include "columns.h"
#include "models.h"
#include "portresolver.h"
#include "railbench.h"
#include "serialport.h"

#include <QSignalSpy>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

RailRow rail(qint64 id, const QString &ci, const QString &refV)
{
    RailRow row;
    row.id = id;
    row.modelo = u"IP 7"_s;
    row.orig = "Ldo"_L1 + QString::number(id);
    row.ci = ci;
    row.refT = QString::number(40 + id);
    row.refV = refV;
    return row;
}

QList<RailRow> fiveRails()
{
    return {rail(4, u"D"_s, u"1.000"_s), rail(1, u"B"_s, u"3.000"_s), rail(3, u"C"_s, {}), rail(2, u"A"_s, u"1.800"_s),
            rail(5, u"E"_s, u"1.000"_s)};
}

QString line(int ldo, const QString &millivolts)
{
    return u"BIST ldo%1: %2 mV\r\n"_s.arg(ldo).arg(millivolts);
}

QString order(const Panel &panel)
{
    QString letters;
    for (const Row &row : panel.rows)
        letters += row.cell(u"Orig").back();
    return letters;
}

Panel panelOf(const RailInput &input)
{
    return readRails(buckLdoTraits(), input, fiveRails()).panel;
}

} // namespace

class TestPower : public QObject
{
    Q_OBJECT

private slots:
    void verdictOfAReply_data()
    {
        columns<QString, bool, Verdict, int>({"reply", "cut", "verdict", "judged"});

        const QString three = line(1, u"3000.0"_s) + line(2, u"1800.0"_s) + line(4, u"1000.0"_s);
        const QString good = three + line(5, u"1000.0"_s);
        QTest::newRow("all four within limits") << good << false << Verdict::Pass << 4;
        QTest::newRow("all lines there, prompt missing") << good << true << Verdict::Incomplete << 4;
        QTest::newRow("one line missing") << three << false << Verdict::Incomplete << 4;
        QTest::newRow("one timed out") << three + line(5, u"timeout"_s) << false << Verdict::Incomplete << 4;
        QTest::newRow("a fault outweighs a gap") << line(1, u"300.0"_s) << false << Verdict::Fail << 4;
        QTest::newRow("a fault in a cut reply stays one") << line(1, u"300.0"_s) << true << Verdict::Fail << 4;
        QTest::newRow("noise only") << u"\r\nx"_s << false << Verdict::Incomplete << 4;
        QTest::newRow("nothing read yet") << QString() << false << Verdict::None << 0;
    }

    void verdictOfAReply()
    {
        QFETCH(QString, reply);
        QFETCH(bool, cut);
        const Panel panel = panelOf({.reply = reply, .cut = cut, .model = u"IP 7"_s});
        QTEST(panel.verdict, "verdict");
        QTEST(static_cast<int>(panel.judgements.size()), "judged");
        QCOMPARE(panel.rows.size(), 5);
        QCOMPARE(panel.rows.front().cell(u"Leitura").isEmpty(), reply.isEmpty());
    }

    void ordersOfTheGrid()
    {
        const QString reply = line(1, u"3000.0"_s) + line(2, u"1200.0"_s) + line(3, u"1000.0"_s) + line(5, u"1090.0"_s);
        const auto ordered = [&](RailOrder by) {
            return order(panelOf({.reply = reply, .model = u"IP 7"_s, .order = by}));
        };
        QCOMPARE(ordered(RailOrder::ModeloOrig), u"12345"_s);
        QCOMPARE(ordered(RailOrder::CiOrig), u"21345"_s);
        QCOMPARE(ordered(RailOrder::PorcDescending), u"25134"_s); // -33.3 %, 9 %, 0 %, no reference, not measured
    }

    void noteFollowsModelAndLanguage()
    {
        const auto note = [](const QString &model, Language language) {
            return panelOf({.reply = {}, .model = model, .language = language})
                .fields[u"lbVar"_s]
                .text.value_or(QString());
        };
        QVERIFY(note(u"IP X"_s, Language::English).contains("CPU 8/X (BUCK 0)"_L1));
        QVERIFY(note(u"IP 8 Plus"_s, Language::Portuguese).contains("CORRENTE"_L1));
        QCOMPARE(note(u"IP 7"_s, Language::English),
                 u"* GPU ( BUCK 1 / 8 ) and * CAMERA DO NOT DISPLAY VALUES IN PURPLE MODE"_s);
        QVERIFY(note(u"IP 7"_s, Language::Spanish).contains(u"CÁMARA"_s));
    }

    void unknownIndexIsToldOnce()
    {
        QList<RailRow> rows = fiveRails();
        rows[0].refT = u"17"_s;
        rows[1].refT = u"17"_s;
        const Panel panel = readRails(buckLdoTraits(), {.reply = u"\r\n"_s, .model = u"IP 7"_s}, rows).panel;
        QCOMPARE(panel.messages, QList<Notice>({{{}, {u"Tavimo Prelt"_s, u"17NOT "_s}}}));
    }

    void healthyPhonesHaveNoFault_data()
    {
        QTest::addColumn<QString>("model");
        for (const QString &model : modelNames())
            QTest::newRow(qPrintable(model)) << model;
    }

    void healthyPhonesHaveNoFault()
    {
        QFETCH(QString, model);
        RailBench bench(model);
        bench.connectPhone();
        QCOMPARE(bench.session->model(), model);
        for (const int kind : {1, 2}) {
            bench.readKind(kind);
            QVERIFY(!bench.screen->reading().judgements.isEmpty());
            QCOMPARE(bench.screen->reading().verdict, Verdict::Pass);
        }
    }

    void readingReachesGridAndStore()
    {
        RailBench bench(u"IP 7,ldo2=1200"_s);
        bench.connectPhone();
        bench.readKind(2);
        QCOMPARE(bench.screen->panel().verdict, Verdict::Pass);
        QVERIFY(!bench.stored(u"IP 7"_s, 2, u"Buck3"_s).leitura.isEmpty());

        bench.readKind(1);
        QCOMPARE(bench.screen->panel().verdict, Verdict::Fail);
        QCOMPARE(bench.shown(u"Ldo2"_s).cell(u"Malha"), u"PP1V8_VA"_s);
        QCOMPARE(bench.shown(u"Ldo2"_s).cell(u"PORC"), u"-33.3 %"_s);
        QCOMPARE(bench.stored(u"IP 7"_s, 1, u"Ldo2"_s).leitura, u"1.200 V"_s);
        QCOMPARE(bench.stored(u"IP 7"_s, 1, u"Ldo2"_s).porc, u"-33.3 %"_s);
        QVERIFY(!bench.stored(u"IP 7"_s, 2, u"Buck3"_s).leitura.isEmpty()); // one reply holds both kinds
        QCOMPARE(bench.port.commands.last(), QByteArray("pmuadc --read all"));
    }

    void readingsOfOtherModelsAreCleared()
    {
        RailBench bench(u"IP 7"_s);
        bench.connectPhone();
        bench.readKind(1);
        bench.session->chooseModel(u"IP 6s"_s);
        QCOMPARE(bench.stored(u"IP 7"_s, 1, u"Ldo2"_s).leitura, QString());
        QCOMPARE(bench.screen->panel().verdict, Verdict::None);
        QVERIFY(!bench.screen->hasReading());
        QVERIFY(bench.screen->panel().title.endsWith("IP 6s"_L1));
    }

    void decimalsShowAtOnceAndStay()
    {
        RailBench bench(u"IP 7,ldo2=1299,ildo2=12.3456"_s);
        bench.connectPhone();
        bench.readKind(1);
        bench.screen->ComboDecimais_Click(u"1"_s);
        bench.screen->ComboDecimaisAmp_Click(u"0"_s);
        bench.screen->ComboDecimais_Click(u"4"_s);
        QCOMPARE(bench.shown(u"Ldo2"_s).cell(u"Leitura"), u"1.2 V"_s);
        QCOMPARE(bench.shown(u"mALdo2"_s).cell(u"Leitura"), u"12 mA"_s);

        BuckLdoScreen next(*bench.session);
        next.open();
        QCOMPARE(next.panel().fields.value(u"ComboDecimais"_s).text, u"1"_s);
        QCOMPARE(next.panel().fields.value(u"ComboDecimaisAmp"_s).text, u"0"_s);
    }

    void recordingIsRefused()
    {
        RailBench bench(u"IP 7"_s);
        bench.screen->btGravar_Click(1); // not connected
        bench.connectPhone();
        bench.screen->btGravar_Click(1); // nothing read
        QCOMPARE(bench.boxes.keys, QStringList{u"PRIMEIRO_LEITURA"_s});
        bench.screen->chooseKind(1);
        bench.screen->read();
        bench.screen->btGravar_Click(1); // still gathering
        QCOMPARE(bench.boxes.questions, QStringList());
    }

    void recordingOverwritesOneSlot()
    {
        RailBench bench(u"IP 7,ldo2=1200"_s);
        const auto recorded = [&bench] { return bench.stored(u"IP 7"_s, 1, u"Ldo2"_s).g; };
        using Slots = std::array<QString, 3>;
        bench.connectPhone();
        bench.readKind(1);
        bench.screen->btGravar_Click(1);
        bench.screen->btGravar_Click(2);
        QCOMPARE(recorded(), Slots({u"1.200 V"_s, u"1.200 V"_s, {}}));

        bench.port.phone = phone(u"IP 7,ldo2=1500"_s);
        bench.readKind(1);
        bench.boxes.answer = Answer::No;
        bench.screen->btGravar_Click(2);
        bench.screen->btExcluir_Click(1);
        QCOMPARE(recorded(), Slots({u"1.200 V"_s, u"1.200 V"_s, {}}));
        bench.boxes.answer = Answer::Yes;
        bench.screen->btGravar_Click(2);
        QCOMPARE(recorded(), Slots({u"1.200 V"_s, u"1.500 V"_s, {}}));
        QCOMPARE(bench.shown(u"Ldo2"_s).cell(u"G2"), u"1.500 V"_s);
        bench.screen->btExcluir_Click(1);
        QCOMPARE(recorded(), Slots({QString(), u"1.500 V"_s, {}}));
        QCOMPARE(bench.boxes.questions.last(), u"Deseja excluir os dados gravados?\nGravação 1 · LDOs · IP 7"_s);
    }

    void unknownModelIsAskedFirst()
    {
        RailBench bench(u"IP 7,model=A9999"_s);
        bench.connectPhone();
        QVERIFY(!bench.session->isModelKnown());
        bench.port.phone = phone(u"IP 7,ldo2=1200"_s);
        bench.port.commands.clear();
        bench.screen->chooseKind(1);
        bench.screen->read();
        QCOMPARE(bench.port.commands, QList<QByteArray>{"syscfg print RMd#"});
        bench.gatherReply();
        bench.session->TimerVersao_Timer();
        QCOMPARE(bench.port.commands.last(), QByteArray("pmuadc --read all"));
        bench.gatherReply();
        QCOMPARE(bench.screen->panel().verdict, Verdict::Fail);
    }

    void silentPhoneGivesNoReading()
    {
        RailBench bench(u"IP 7"_s);
        bench.connectPhone();
        bench.port.keptBytes = 0;
        QSignalSpy refused(bench.session.get(), &Session::refused);
        bench.readKind(1);
        QVERIFY(!bench.screen->hasReading());
        QCOMPARE(bench.screen->panel().verdict, Verdict::None);
        QCOMPARE(refused.size(), 1);
    }

    void pulledCableIsNeverGood()
    {
        RailBench bench(u"IP 7"_s);
        bench.screen->chooseKind(1);
        const qsizetype size = answer(bench.port.phone, "pmuadc --read all").size();
        for (qsizetype bytes = 0; bytes < size - 3; bytes += bytes < size - 60 ? 131 : 7) {
            bench.port.keptBytes = PhonePort::kAll;
            bench.connectPhone();
            bench.port.keptBytes = bytes;
            bench.screen->read();
            bench.session->Timer1_Timer();
            bench.port.pull();
            QCOMPARE(bench.session->Status(), u"0"_s);
            QCOMPARE(bench.screen->hasReading(), bytes > 0);
            QCOMPARE(bench.screen->panel().verdict, bytes > 0 ? Verdict::Incomplete : Verdict::None);
        }
        QCOMPARE(bench.shown(u"Ldo2"_s).verdict, Verdict::Pass); // what came stays
        QCOMPARE(bench.screen->panel().fields.value(u"Botao4"_s).enabled, std::optional(true));
    }

    void liveThroughTheSimulatedPhone()
    {
        RailBench bench(u"IP 7"_s); // for its store
        SerialPort port;
        PortResolver resolver(0);
        const auto deviceFor = [&resolver](const PortAddress &address) { return resolver.deviceFor(address); };
        Session session({port, *bench.store, bench.boxes, deviceFor, {}, {.validaPorta = 50ms}});
        session.load();
        BuckLdoScreen screen(session);
        screen.open();
        QSignalSpy settled(&session, &Session::connectionSettled);
        QSignalSpy ended(&screen, &Screen::readingEnded);
        session.connectOrDisconnect(u"sim:IP 7,ldo2=1200"_s);
        QVERIFY(settled.wait());
        screen.chooseKind(1);
        screen.read();
        QVERIFY(ended.wait());
        QCOMPARE(screen.panel().verdict, Verdict::Fail);
        const auto &judgements = screen.panel().judgements;
        QCOMPARE(std::ranges::count(judgements, Verdict::Fail, &Judgement::verdict), 1);
        const auto fault = std::ranges::find(judgements, Verdict::Fail, &Judgement::verdict);
        QCOMPARE(fault->what, u"PP1V8_VA"_s);
        QCOMPARE(fault->reading, u"1.200 V"_s);
        QCOMPARE(fault->line, u"BIST ldo2: 1200.0000 mV"_s);
    }
};

QTEST_GUILESS_MAIN(TestPower)
#include "tst_power.moc"
