#include "acornreading.h"
#include "chestnutreading.h"
#include "chestnutscreen.h"
#include "chipscreens.h"
#include "columns.h"
#include "models.h"
#include "phonebench.h"
#include "tigrisreading.h"
#include "tristarreading.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

using Reader = Panel (*)(const ChipInput &);

Q_DECLARE_METATYPE(Reader)

namespace {

struct Chip
{
    QLatin1StringView name;
    Reader read;
    QByteArray command;
    bool (*fits)(const QString &model);
};

const Chip kChips[] = {
    {"Tristar"_L1, readTristar, "pmuadc --read all", [](const QString &) { return true; }},
    {"Tigris"_L1, readTigris, "pmuadc --sel tigris --read all", [](const QString &) { return true; }},
    {"Acorn"_L1, readAcorn, "pmuadc --read all", hasOledPanel},
    {"Chestnut"_L1, readChestnut, "pmuadc --sel chestnut --read all",
     [](const QString &m) { return !hasOledPanel(m); }},
};

/// What the simulated phone delivers for the chip's command.
Panel readOn(const Chip &chip, const QString &description)
{
    PhoneProfile profile = phone(description);
    profile.touchOn = true;
    const QString reply = QString::fromLatin1(answer(profile, chip.command).replace("\n", "\r\n"));
    return chip.read({reply, false, profile.model});
}

/// What a control shows: its text and colour, or whether it is seen at all.
QString look(const Panel &panel, const QString &control)
{
    const Field field = panel.fields.value(control);
    QString shown = field.text.value_or(QString());
    if (field.back == Colour::Fault)
        shown += " (fault)"_L1;
    if (field.back == Colour::Pass)
        shown += " (pass)"_L1;
    return shown;
}

/// The expectations of a row that do not hold: "control=look", "control" for what is seen, "!control" for what is not.
QStringList differences(const Panel &panel, const QString &expected)
{
    QStringList wrong;
    for (const QString &part : expected.split(u" | "_s)) {
        const QString control = part.section(u'=', 0, 0);
        const bool isLook = part.contains(u'=');
        const bool holds = isLook                  ? look(panel, control) == part.section(u'=', 1)
                           : part.startsWith(u'!') ? !isShown(panel, part.sliced(1))
                                                   : isShown(panel, part);
        if (!holds)
            wrong.append(part + ": "_L1 + look(panel, control));
    }
    return wrong;
}

} // namespace

class TestChips : public QObject
{
    Q_OBJECT

private slots:
    void fieldsOfAReply_data()
    {
        columns<Reader, QString, QString, QString>({"reader", "model", "reply", "expected"});
        const auto add = [](const char *fault, Reader reader, const char *model, const char *line,
                            const QString &expected) {
            const QString reply = "\r\n"_L1 + QString::fromLatin1(line).replace(u'/', u"\r\n"_s) + "\r\n[0:0] :-) "_L1;
            QTest::newRow(fault) << reader << QString::fromLatin1(model) << reply << expected;
        };
        const auto tristar = [&](const char *fault, const char *model, const char *line, const QString &expected) {
            add(fault, readTristar, model, line, expected);
        };
        const QString noReading = u"Malha1_V=Sem Medição | Porc1= (fault) | NO(1) | !OK(1)"_s;
        tristar("whole millivolts", "IP 6", "BIST ldo3: 2998 mV",
                u"Malha1_V=2.998 V | Porc1=-0.2 % (pass) | OK(1) | !NO(1) | lbUC=U1700 | lbNomeMalha1=PP3V0_TRISTAR"_s);
        tristar("millivolts with decimals", "IP 6 Plus", "BIST ldo3: 2998.0000 mV", u"Malha1_V=2.998 V"_s);
        tristar("another generation's output", "IP 6s", "BIST ldo7: 2998.0000 mV", noReading);
        tristar("its own output", "IP 7", "BIST ldo7: 3000.0000 mV", u"Malha1_V=3.000 V | lbUC=U4001"_s);
        tristar("ten per cent high", "IP X", "BIST ldo7: 3300.0000 mV",
                u"Malha1_V=3.300 V (fault) | Porc1=10 % (fault) | NO(1) | !OK(1) | lbNomeMalha1=PP3V0_S2"_s);
        tristar("ten per cent low", "IP 8", "BIST ldo7: 2700.0000 mV",
                u"Porc1=-10 % (fault) | NO(1) | OK(0) | OK(3)"_s);
        tristar("just inside", "IP 8", "BIST ldo7: 2701.0000 mV", u"Porc1=-9.9 % (pass) | OK(1)"_s);
        tristar("second rail low", "IP 6", "BIST buck3: 1620.0000 mV", u"Porc2=-10 % (fault) | NO(2) | !OK(2)"_s);
        tristar("time-out", "IP 6", "BIST ldo3: timeout mV", noReading);
        tristar("nothing but noise", "IP 6", "x", noReading + u" | Malha2_A=- mA | Malha3_V=- V | Porc3=ACC (pass)"_s);
        tristar("current at the ceiling", "IP 7 Plus", "BIST ldo7: 3000.0000 mV/BIST ildo7: 1.7004 mA",
                u"Malha1_A=1,700 mA (fault) | Porc1=0 % (fault) | NO(1) | !OK(1)"_s);
        tristar("current under the ceiling", "IP 7 Plus", "BIST ldo7: 3000.0000 mV/BIST ildo7: 1.6999 mA",
                u"Malha1_A=1,699 mA | Porc1=0 % (pass) | OK(1)"_s);
        tristar("two digits of current are no whole number", "IP 6", "BIST ildo3: 1.75 mA",
                u"Malha1_A=1,7 mA (fault)"_s);
        tristar("higher ceiling", "IP 8 Plus", "BIST ildo7: 3.3499 mA", u"Malha1_A=3,349 mA"_s);
        tristar("higher ceiling met", "IP X", "BIST ildo7: 3.3500 mA", u"Malha1_A=3,350 mA (fault) | NO(1)"_s);
        tristar("current without its prefix", "IP 6", "ibuck3: 96.6610 mA", u"Malha2_A=96,661 mA"_s);
        tristar("accessory", "IP 6", "BIST ldo6: 0.0000 mV/BIST ildo6: 0.1234 mA",
                u"Malha3_V=0.000 V | Malha3_A=0,123 mA | OK(3) | lbNomeMalha3=PP3V3_ACC | lbStatus2"_s);

        const auto tigris = [&](const char *fault, const char *model, const char *line, const QString &expected) {
            add(fault, readTigris, model, line, expected);
        };
        tigris("power just short of present", "IP 7", "tigris vbus : 4368.0000 mV",
               u"VBus_V=4.368 V (fault) | Baixa1"_s);
        tigris("power present", "IP 7", "tigris vbus : 4369.0000 mV",
               u"VBus_V=4.369 V (pass) | !Baixa1 | lbUC=U2101"_s);
        tigris("6.3 per cent is low", "IP 6", "tigris vbus : 4300.0000 mV", u"VBus_V=4.300 V (fault) | Baixa1"_s);
        tigris("battery at ten per cent", "IP 6", "tigris vbat : 3600.0000 mV/tigris vdd : 3700.0000 mV",
               u"VBat_V=3.600 V (fault) | Baixa3 | VDD_V=3.700 V"_s);
        tigris("battery just above", "IP 6", "tigris vbat : 3601.0000 mV/tigris vdd : 3700.0000 mV",
               u"VBat_V=3.601 V (pass) | !Baixa3 | VDD_V=3.700 V (pass)"_s);
        tigris("battery full", "IP 6", "tigris vbat : 4500.0000 mV", u"VBat_V=4.500 V (pass)"_s);
        tigris("temperature", "IP 6", "tigris die_temp : 25.4920 C", u"Temp=25.4 º"_s);
        tigris(
            "current is that of both inputs", "IP 8", "tigris ibus : 486.3000 mA",
            u"VBus_A=486,300 mA | VBus_A1=486,300 mA | VBus_A2=486,300 mA | lb_VBus1=VBUS 1 | FrameVbusX | lb_VBus2"_s);
        tigris("second input", "IP X", "tigris vbus1 : 0.0000 mV/tigris vbus2 : 12.0000 mV",
               u"VBus_V1=0.000 V (fault) | Baixa2 | VBus_V2=0.012 V (pass)"_s);
        tigris("one input only", "IP 7", "tigris vbus1 : 100.0000 mV/tigris vntc : 1.0000 mV",
               u"VBus_V1= | lbvntc= | !Baixa2 | lb_VBus1=VBUS | !FrameVbusX | !lb_VBus2"_s);
        tigris("time-out judges nothing", "IP 6", "tigris vbus : timeout mV/tigris vdd : timeout mV",
               u"VBus_V=Sem Medição | !Baixa1 | VDD_V=Sem Medição"_s);

        const auto acorn = [&](const char *fault, const char *line, const QString &expected) {
            add(fault, readAcorn, "IP X", line, expected);
        };
        acorn("negative rail, nine per cent", "acorn vn : -6100.0000 mV", u"M4=-6.100 V | P4=-8.9 % (pass) | OK(4)"_s);
        acorn("negative rail, ten per cent", "acorn vn : -6000.0000 mV",
              u"P4=-10.4 % (fault) | NO(4) | NO(11) | !OK(11)"_s);
        acorn("rails of the power chip", "BIST buck4: 1100.0000 mV/BIST buck3_sw2: 1500.0000 mV",
              u"M9=1.100 V | OK(9) | M10=1.500 V | P10=-16.6 % (fault) | NO(10)"_s);
        acorn("rail without a reference", "acorn ground : 0.0000 mV", u"M0=0.000 V | OK(0) | M1=Sem Medição | NO(1)"_s);
        acorn("gap shows in the overall mark", "acorn die_temp : 31.2500 C",
              u"M3=Sem Medição | P3= | NO(3) | Temp=31.2 º | NO(11) | !OK(11)"_s);
        acorn("currents", "acorn ia : 2.5004 mA", u"AMP1=2,500 mA | AMP2=- mA"_s);

        const auto chestnut = [&](const char *fault, const char *line, const QString &expected) {
            add(fault, readChestnut, "IP 6s", line, expected);
        };
        chestnut("first LDO", "chestnut vldo1 : 5701.3281 mV",
                 u"iLDO_V(1)=5.701 V | Porc1=0.1 % (pass) | OK(2) | !NO(2) | lbUC=U4000"_s);
        chestnut("negative rail", "chestnut vneg : -5000.0000 mV",
                 u"VNEG_V=-5.000 V | Porc4=-12.2 % (fault) | NO(1)"_s);
        chestnut("boost", "chestnut vboost : 6043.0000 mV", u"BOOST_V=6.043 V | Porc5=0.7 % (pass) | OK(0)"_s);
        chestnut("missing", "x", u"iLDO_V(3)=Sem Medição | Porc3= (fault) | NO(4) | iLDO_A(1)=- mA | VIN_V=- V"_s);
    }

    void fieldsOfAReply()
    {
        QFETCH(const Reader, reader);
        QFETCH(const QString, model);
        QFETCH(const QString, reply);
        QFETCH(const QString, expected);
        const Panel panel = reader({reply, false, model});
        const QStringList wrong = differences(panel, expected);
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(u'\n')));
        QVERIFY(panel.verdict != Verdict::Pass); // what the line does not tell was not measured
    }

    void statusTurnsBlackAtAFault()
    {
        const auto fore = [](const char *line) {
            return readTristar({QString::fromLatin1(line), false, u"IP 6"_s}).fields.value(u"lbStatus"_s).fore;
        };
        QCOMPARE(fore("BIST ldo3: 3000.0000 mV"), Colour::Status);
        QCOMPARE(fore("BIST ldo3: 300.0000 mV"), Colour::Text);
        QCOMPARE(fore("BIST ildo3: 2.0000 mA"), Colour::Text);
        QCOMPARE(fore("BIST ldo3: timeout mV"), Colour::Status);
    }

    void designators_data()
    {
        columns<QString, QString>({"model", "names"}); // Tristar, Tigris, Chestnut
        QTest::newRow("6") << u"IP 6"_s << u"U1700 U1401 U1501"_s;
        QTest::newRow("6 Plus") << u"IP 6 Plus"_s << u"U1700 U1401 U1501"_s;
        QTest::newRow("6s") << u"IP 6s"_s << u"U4500 U2300 U4000"_s;
        QTest::newRow("6s Plus") << u"IP 6s Plus"_s << u"U4500 U2300 U4000"_s;
        QTest::newRow("7") << u"IP 7"_s << u"U4001 U2101 U3703"_s;
        QTest::newRow("7 Plus") << u"IP 7 Plus"_s << u"U4001 U2101 U3703"_s;
        QTest::newRow("8") << u"IP 8"_s << u"U6300 U3300 U5600"_s;
        QTest::newRow("8 Plus") << u"IP 8 Plus"_s << u"U6300 U3300 U5600"_s;
        QTest::newRow("X has no Chestnut") << u"IP X"_s << u"U6300 U3300 unset"_s;
        QTest::newRow("unknown") << u"IP 9"_s << u"unset unset unset"_s;
    }

    void designators()
    {
        QFETCH(const QString, model);
        QStringList names;
        for (const Reader reader : {readTristar, readTigris, readChestnut})
            names.append(reader({u"x"_s, false, model}).fields.value(u"lbUC"_s).text.value_or(u"unset"_s));
        QTEST(names.join(u' '), "names");
    }

    /// Every rail that a screen judges, on every model that has it: faulty, missing, and timed out.
    void faultsOfThePhone_data()
    {
        columns<int, QString, QString, QString, QString>({"chip", "models", "fault", "faulty", "gap"});
        const auto add = [](int chip, const char *models, const char *fault, const QString &faulty,
                            const QString &gap) {
            QTest::addRow("%s %s%s", kChips[chip].name.data(), models, fault)
                << chip << QString::fromLatin1(models) << QString::fromLatin1(fault) << faulty << gap;
        };
        const QString first = u"Malha1_V=Sem Medição | Porc1= (fault) | NO(1) | !OK(1) | OK(0) | OK(3)"_s;
        const QString firstLow = u"Malha1_V=2.700 V (fault) | Porc1=-10 % (fault) | NO(1) | !OK(1) | OK(0)"_s;
        const QString current = u"Malha1_A=3,350 mA (fault) | NO(1) | !OK(1)"_s;
        const QString noCurrent = u"Malha1_A=- mA | OK(1) | !NO(1)"_s;
        add(0, "IP 6", "ldo3=2700", firstLow, first);
        add(0, "IP 7", "ldo7=2700", firstLow, first);
        add(0, "IP 8", "ldo7=2700", firstLow, first);
        add(0, "IP X", "ldo7=2700", firstLow, first);
        add(0, "IP 6", "ildo3=3.35", current, noCurrent);
        add(0, "IP 7", "ildo7=3.35", current, noCurrent);
        add(0, "IP 8", "ildo7=3.35", current, noCurrent);
        add(0, "IP X", "ildo7=3.35", current, noCurrent);
        add(0, "IP", "buck3=1620", u"Malha2_V=1.620 V (fault) | Porc2=-10 % (fault) | NO(2) | !OK(2)"_s,
            u"Malha2_V=Sem Medição | Porc2= (fault) | NO(2) | !OK(2)"_s);
        add(1, "IP", "tigris.vbus=low", u"VBus_V=4.300 V (fault) | Baixa1 | !Baixa3"_s,
            u"VBus_V=Sem Medição | !Baixa1"_s);
        add(1, "IP", "tigris.vbat=3600", u"VBat_V=3.600 V (fault) | Baixa3 | !Baixa1"_s,
            u"VBat_V=Sem Medição | !Baixa3"_s);
        add(1, "IP 8", "vbus1=off", u"VBus_V1=0.000 V (fault) | Baixa2"_s, u"VBus_V1=Sem Medição | !Baixa2"_s);
        add(1, "IP X", "vbus1=off", u"VBus_V1=0.000 V (fault) | Baixa2"_s, u"VBus_V1=Sem Medição | !Baixa2"_s);
        const auto acorn = [&](const char *fault, int rail, const QString &deviation) {
            const QString marks = u"NO(%1) | !OK(%1) | NO(11) | !OK(11)"_s.arg(rail);
            add(2, "IP X", fault, u"P%1=%2 (fault) | "_s.arg(rail).arg(deviation) + marks,
                u"M%1=Sem Medição | P%1= | "_s.arg(rail) + marks);
        };
        acorn("acorn.vp=9000", 3, u"-10 %"_s);
        acorn("acorn.vn=-6000", 4, u"-10.4 %"_s);
        acorn("acorn.vh=5775", 5, u"10 %"_s);
        acorn("acorn.va=off", 7, u"-100 %"_s);
        acorn("acorn.vc=990", 8, u"-10 %"_s);
        acorn("buck4=1210", 9, u"10 %"_s);
        acorn("buck3_sw2=off", 10, u"-100 %"_s);
        const auto chestnut = [&](const char *fault, const QString &field, int deviation, int mark) {
            const QString marks = u" | NO(%1) | !OK(%1)"_s.arg(mark);
            const QString tenLow = u"Porc%1=-10 % (fault)"_s.arg(deviation);
            add(3, "IP", fault, tenLow + marks, field + u"=Sem Medição | Porc%1= (fault)"_s.arg(deviation) + marks);
        };
        chestnut("chestnut.vldo1=5130", u"iLDO_V(1)"_s, 1, 2);
        chestnut("chestnut.vldo2=5130", u"iLDO_V(2)"_s, 2, 3);
        chestnut("chestnut.vldo3=4590", u"iLDO_V(3)"_s, 3, 4);
        chestnut("chestnut.vneg=-5130", u"VNEG_V"_s, 4, 1);
        chestnut("chestnut.vboost=5400", u"BOOST_V"_s, 5, 0);
    }

    void faultsOfThePhone()
    {
        QFETCH(const int, chip);
        QFETCH(const QString, models);
        QFETCH(const QString, fault);
        QFETCH(const QString, faulty);
        QFETCH(const QString, gap);
        int phones = 0;
        for (const QString &model : modelNames()) {
            if (!model.startsWith(models) || !kChips[chip].fits(model))
                continue;
            ++phones;
            const Panel bad = readOn(kChips[chip], model + u',' + fault);
            QCOMPARE(bad.verdict, Verdict::Fail);
            QCOMPARE(differences(bad, faulty).join(u'\n'), QString());
            for (const auto &why : {u"=missing"_s, u"=timeout"_s}) {
                const Panel panel = readOn(kChips[chip], model + u',' + fault.section(u'=', 0, 0) + why);
                QCOMPARE(panel.verdict, Verdict::Incomplete);
                QCOMPARE(differences(panel, gap).join(u'\n'), QString());
                QCOMPARE(std::ranges::count(panel.judgements, Verdict::Incomplete, &Judgement::verdict), 1);
            }
        }
        QVERIFY(phones > 0);
    }

    void healthyPhonesPass()
    {
        for (const Chip &chip : kChips) {
            for (const QString &model : modelNames()) {
                if (!chip.fits(model))
                    continue;
                const Panel panel = readOn(chip, model);
                QVERIFY2(panel.verdict == Verdict::Pass, qPrintable(chip.name + u' ' + model));
            }
        }
    }

    void cutReplyIsNeverGood()
    {
        for (const Chip &chip : kChips) {
            const QString model = chip.name == "Acorn"_L1 ? u"IP X"_s : u"IP 8"_s;
            PhoneProfile profile = phone(model);
            profile.touchOn = true;
            const QString reply = QString::fromLatin1(answer(profile, chip.command).replace("\n", "\r\n"));
            for (qsizetype bytes = 1; bytes <= reply.size(); ++bytes)
                QCOMPARE(chip.read({reply.left(bytes), true, model}).verdict, Verdict::Incomplete);
        }
    }

    void refusalsByModel_data()
    {
        columns<QString, QString, QString>({"screen", "model", "other"});
        QTest::newRow("Acorn") << u"Acorn"_s << u"IP 8"_s << u"Chestnut"_s;
        QTest::newRow("Chestnut") << u"Chestnut"_s << u"IP X"_s << u"Acorn"_s;
    }

    void refusalsByModel()
    {
        QFETCH(const QString, screen);
        QFETCH(const QString, model);
        QFETCH(const QString, other);
        PhoneBench bench(model);
        bench.connectPhone();
        bench.port.commands.clear();
        const std::unique_ptr<ChipScreen> chip = screen == "Acorn"_L1
                                                     ? std::unique_ptr<ChipScreen>(new AcornScreen(*bench.session))
                                                     : std::unique_ptr<ChipScreen>(new ChestnutScreen(*bench.session));
        chip->btExecutaLeitura_Click();
        QCOMPARE(bench.port.commands, QList<QByteArray>());
        QCOMPARE(bench.boxes.keys + bench.boxes.questions, // both are information boxes
                 QStringList{screen == "Acorn"_L1 ? u"SOMENTE_X"_s : u"NOT FOR X!"_s});
        QVERIFY(chip->hasAnswer() && !chip->hasReading());
        QCOMPARE(chip->reading().verdict, Verdict::None);
        QCOMPARE(chip->panel().fields.value(u"btExecutaLeitura"_s).enabled, std::optional(true));
        QVERIFY(isShown(chip->panel(), u"btOutraTela"_s));
        QSignalSpy requested(chip.get(), &Screen::screenRequested);
        chip->btOutraTela_Click();
        QCOMPARE(requested.value(0).value(0), other);
        bench.session->chooseModel(u"IP 6"_s);
        QCOMPARE(isShown(chip->panel(), u"btOutraTela"_s), screen == "Acorn"_L1);
    }

    void unknownModelIsAskedFirst()
    {
        PhoneBench bench(u"IP X,model=A9999"_s);
        bench.connectPhone();
        bench.port.phone = phone(u"IP X"_s);
        bench.port.commands.clear();
        AcornScreen acorn(*bench.session);
        acorn.readAtOpening();
        QCOMPARE(bench.port.commands, QList<QByteArray>());
        acorn.btExecutaLeitura_Click();
        QCOMPARE(acorn.panel().fields.value(u"btExecutaLeitura"_s).enabled, std::optional(false));
        bench.gatherReply();
        bench.session->TimerVersao_Timer();
        bench.gatherReply();
        QCOMPARE(bench.port.commands, QList<QByteArray>({"syscfg print RMd#", "pmuadc --read all"}));
        QCOMPARE(acorn.reading().verdict, Verdict::Pass);
    }

    void failedModelQueryGivesTheButtonBack()
    {
        PhoneBench bench(u"IP 7,model=A9999"_s);
        bench.connectPhone();
        TristarScreen tristar(*bench.session);
        tristar.readAtOpening();
        QVERIFY(tristar.isReading());
        bench.gatherReply();
        bench.session->TimerVersao_Timer();
        QVERIFY(!tristar.isReading() && !tristar.hasReading());
        QCOMPARE(tristar.panel().fields.value(u"btExecutaLeitura"_s).enabled, std::optional(true));
    }

    void openingReadsOnce()
    {
        PhoneBench bench(u"IP 7"_s);
        TigrisScreen tigris(*bench.session);
        tigris.readAtOpening();
        QCOMPARE(bench.port.commands, QList<QByteArray>());
        bench.connectPhone();
        tigris.readAtOpening();
        tigris.btExecutaLeitura_Click(); // pressed while the first is on its way
        bench.gatherReply();
        QCOMPARE(bench.port.commands.last(), QByteArray("pmuadc --sel tigris --read all"));
        QCOMPARE(bench.port.commands.size(), 2);
        QCOMPARE(tigris.reading().verdict, Verdict::Pass);
        bench.session->connectOrDisconnect(u"1"_s);
        QCOMPARE(tigris.reading().verdict, Verdict::Pass); // what was read stays
        bench.connectPhone();
        QVERIFY(!tigris.hasReading()); // it was another phone's, for all we know
    }

    void touchIsSwitchedOnOnce()
    {
        PhoneBench bench(u"IP 7,chestnut.vldo3=4000"_s);
        bench.connectPhone();
        bench.port.commands.clear();
        ChestnutScreen chestnut(*bench.session);
        QSignalSpy judged(&chestnut, &Screen::judged);
        QSignalSpy ended(&chestnut, &Screen::readingEnded);
        chestnut.readAtOpening();
        bench.gatherReply();
        QCOMPARE(chestnut.reading().fields.value(u"iLDO_V(3)"_s).text, u"0.000 V"_s);
        QCOMPARE(judged.size() + ended.size(), 0);
        chestnut.TimerTouch_Timer();
        QCOMPARE(chestnut.panel().fields.value(u"btTouch"_s).text, u"Desativar Touch"_s);
        chestnut.Timer1_Timer(); // "touch --on" is still in flight
        bench.gatherReply();
        QCOMPARE(chestnut.reading().fields.value(u"iLDO_V(3)"_s).text, u"0.000 V"_s); // its reply is no reading
        chestnut.Timer1_Timer();
        bench.gatherReply();
        QCOMPARE(bench.port.commands, QList<QByteArray>({"pmuadc --sel chestnut --read all", "touch --on",
                                                         "pmuadc --sel chestnut --read all"}));
        QCOMPARE(judged.size(), 1);
        QCOMPARE(ended.size(), 1);
        QCOMPARE(chestnut.reading().verdict, Verdict::Fail); // 4.000 V: a second fault is only shown
    }

    void touchByHandIsNeverUndone()
    {
        PhoneBench bench(u"IP 7"_s);
        bench.connectPhone();
        bench.port.commands.clear();
        ChestnutScreen chestnut(*bench.session);
        chestnut.btTouch_Click();
        bench.gatherReply();
        QCOMPARE(chestnut.panel().fields.value(u"btTouch"_s).text, u"Ativar Touch"_s);
        chestnut.read();
        bench.gatherReply();
        QVERIFY(isShown(chestnut.panel(), u"btTouch"_s));
        QCOMPARE(chestnut.reading().verdict, Verdict::Fail); // and no touch --on
        chestnut.btTouch_Click();
        bench.gatherReply();
        QCOMPARE(bench.port.commands,
                 QList<QByteArray>({"touch --off", "pmuadc --sel chestnut --read all", "touch --on"}));
    }

    void missingTouchLineSwitchesNothing()
    {
        PhoneBench bench(u"IP 7,chestnut.vldo3=timeout"_s);
        bench.connectPhone();
        ChestnutScreen chestnut(*bench.session);
        QSignalSpy judged(&chestnut, &Screen::judged);
        chestnut.readAtOpening();
        bench.gatherReply();
        QCOMPARE(judged.size(), 1);
        QCOMPARE(chestnut.reading().verdict, Verdict::Incomplete);
    }

    void repeatIsDroppedWithTheLink()
    {
        PhoneBench bench(u"IP 7"_s);
        bench.connectPhone();
        ChestnutScreen chestnut(*bench.session);
        QSignalSpy ended(&chestnut, &Screen::readingEnded);
        chestnut.readAtOpening();
        bench.gatherReply();
        QCOMPARE(ended.size(), 0);
        bench.port.pull();
        QCOMPARE(ended.size(), 1);
        QVERIFY(chestnut.hasReading());
    }
};

QTEST_GUILESS_MAIN(TestChips)
#include "tst_chips.moc"
