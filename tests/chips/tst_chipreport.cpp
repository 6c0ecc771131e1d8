#include "acornreading.h"
#include "chestnutreading.h"
#include "chipscreens.h"
#include "phonebench.h"
#include "reportexport.h"
#include "settings.h"

#include <QFile>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const ReportHead kHead{u"21/11/2026"_s, Language::English, u"IP X"_s, u"Bench"_s};

QString addressOf(const Panel &panel)
{
    return panel.report ? reportAddress(u"https://r.example/"_s, *panel.report, kHead) : QString();
}

/// The screen of the IP X on a phone, with what its report gives.
struct ExportBench : PhoneBench
{
    ExportBench() : PhoneBench(u"IP X"_s) { screen.open(); }

    void readPhone()
    {
        connectPhone();
        screen.read();
        gatherReply();
    }
    QString stored() const
    {
        QString name;
        session->withStore<QString>(
            Store::Access::Read, [](Store &open) { return technicianName(open); }, session.get(),
            [&name](const QString &found) { name = found; });
        return name;
    }
    void set(const QString &name, const QString &value) const
    {
        session->keep([=](Store &open) { return setSetting(open, name, value); });
    }
    QStringList documents() const { return QDir(folder.filePath(u"out"_s)).entryList(QDir::Files); }

    AcornScreen screen{*session};
    ReportExport report{screen, folder.filePath(u"out"_s)};
};

} // namespace

class TestChipReport : public QObject
{
    Q_OBJECT

private slots:
    void acornInTheOrderOfTheService()
    {
        const Panel panel = readAcorn({u"\r\nacorn ground : 0.0000 mV\r\nacorn vin : 3801.0000 mV\r\n"
                                       "acorn vp : 10010.0000 mV\r\nacorn vn : -6000.0000 mV\r\n"
                                       "acorn vc : 1100.0000 mV\r\nacorn ip : 2.5004 mA\r\n[0:0] :-) "_s,
                                       false, u"IP X"_s, Language::English});
        QCOMPARE(addressOf(panel), u"https://r.example/relatorio/acorn.php?"
                                   "M1=PP1V1_RACER&L1=1.100%20V&R1=1.1%20V&P1=0%20%&I1=1"
                                   "&M2=PP3V5_RACER&L2=No%20Reading&R2=3.5%20V&P2=&I2=0"
                                   "&M3=PP5V25_TOUCH_VDDH&L3=No%20Reading&R3=5.25%20V&P3=&I3=0"
                                   "&M4=PN6V7_RACER&L4=-6.000%20V&R4=6.7%20V&P4=-10.4%20%&I4=0"
                                   "&M5=PP10V0_RACER&L5=10.010%20V&R5=10.0%20V&P5=0.1%20%&I5=1"
                                   "&M6=PP1V8_TOUCH_RACER_S2&L6=No%20Reading&R6=1.8%20V&P6=&I6=0"
                                   "&M7=PP1V1_S2&L7=No%20Reading&R7=1.1%20V&P7=&I7=0"
                                   "&M8=PP_CP1_OUT_ACORN&L8=No%20Reading&R8=-&P8=-&I8=3"
                                   "&M9=PP_BOOST1_ACORN&L9=No%20Reading&R9=-&P9=-&I9=3"
                                   "&M10=GND&L10=0.000%20V&R10=-&P10=-&I10=3"
                                   "&M11=PP_VDD_MAIN&L11=3.801%20V&R11=-&P11=-&I11=3"
                                   "&DATA=21/11/2026&IDIOMA=2&MODELO=IP%20X&EMP=Bench"_s);
        QVERIFY(!readAcorn({}).report); // nothing was read
    }

    void chestnutWithCurrentsInParentheses()
    {
        const Panel panel = readChestnut({u"\r\nchestnut vldo1 : 5712.0000 mV\r\nchestnut vldo2 : 5000.0000 mV\r\n"
                                          "chestnut vldo3 : 5100.0000 mV\r\nchestnut ildo1 : 12.3000 mA\r\n"
                                          "chestnut vneg : -5700.0000 mV\r\nchestnut ineg : 8.0000 mA\r\n"
                                          "chestnut vin : 3801.0000 mV\r\nchestnut vboost : 6000.0000 mV\r\n"_s,
                                          false, u"IP 6s"_s, Language::English});
        QCOMPARE(addressOf(panel),
                 u"https://r.example/relatorio/chest.php?"
                 "M1=PP6V0_DISPLAY_BOOST&L1=6.000%20V&R1=6.0%20V&P1=0%20%&I1=1"
                 "&M2=PN%20-5V7_DISPLAY_MESON_AVDDN&L2=-5.700%20V%20%20%20(8,000%20mA)&R2=-5.7%20V&P2=0%20%&I2=1"
                 "&M3=PP5V7_MESON_AVDDH&L3=5.712%20V%20%20%20(12,300%20mA)&R3=5.7%20V&P3=0.2%20%&I3=1"
                 "&M4=PP5V7_LCM_AVDDH&L4=5.000%20V%20%20%20(-%20mA)&R4=5.7%20V&P4=-12.2%20%&I4=0"
                 "&M5=PP5V1_TOUCH_VDDH&L5=5.100%20V%20%20%20(-%20mA)&R5=5.1%20V&P5=0%20%&I5=1"
                 "&M6=PP_VDD_MAIN&L6=3.801%20V&R6=-&P6=-&I6=1"
                 "&DATA=21/11/2026&IDIOMA=2&MODELO=IP%20X&EMP=Bench"_s);
    }

    void nothingToReportBeforeAReading()
    {
        ExportBench bench;
        bench.report.btExportar_Click();
        bench.report.savePdf(bench.folder.filePath(u"a.pdf"_s));
        QCOMPARE(bench.boxes.keys, QStringList({u"PRIMEIRO_LEITURA"_s, u"PRIMEIRO_LEITURA"_s}));
        QVERIFY(bench.boxes.inputs.isEmpty());
    }

    void nameIsAskedForAndKept()
    {
        ExportBench bench;
        bench.readPhone();
        bench.session->chooseLanguage(Language::English);
        bench.session->keep([](Store &store) { return setTechnicianName(store, u"Old & Co"_s); });
        bench.set(u"report-host"_s, u"https://r.example/"_s);

        bench.boxes.typed = QString(); // cancelled
        bench.report.btExportar_Click();
        QCOMPARE(bench.boxes.inputs,
                 QStringList({u"Report - PDF|Enter your name or company name: (Optional)|Old & Co"_s}));
        QCOMPARE(bench.stored(), u"Old & Co"_s);
        QVERIFY(bench.handedOut.isEmpty());

        bench.boxes.typed = u"São João & True"_s;
        bench.report.btExportar_Click();
        QCOMPARE(bench.stored(), u"São João & True"_s);
        QCOMPARE(bench.handedOut.size(), 1);
        QVERIFY(bench.handedOut.first().startsWith(u"https://r.example/relatorio/acorn.php?M1=PP1V1_RACER&L1="));
        QVERIFY(bench.handedOut.first().endsWith(u"&IDIOMA=2&MODELO=IP%20X&EMP=São%20João%20&%201"));

        bench.boxes.typed = u""_s; // nothing, but not cancelled
        bench.report.btExportar_Click();
        QVERIFY(bench.stored().isEmpty());
        QVERIFY(bench.handedOut.last().endsWith(u"&EMP="));
        QVERIFY(bench.documents().isEmpty());
    }

    void withoutAServiceADocumentIsMadeAndOpened()
    {
        ExportBench bench;
        bench.readPhone();
        bench.boxes.typed = u"Oficina"_s;
        QSignalSpy written(&bench.report, &ReportExport::written);
        bench.report.btExportar_Click();
        QVERIFY(bench.report.isBusy()); // the interface goes on meanwhile
        QVERIFY(written.wait());
        QCOMPARE(bench.documents().size(), 1);
        QCOMPARE(bench.handedOut, QStringList({bench.folder.filePath(u"out/"_s + bench.documents().first())}));
        QVERIFY(bench.documents().first().startsWith(u"Acorn IP X "));

        bench.report.btExportar_Click(); // what was handed out stays
        QVERIFY(written.wait());
        QCOMPARE(bench.documents().size(), 2);
    }

    void savedWhereItIsWanted()
    {
        ExportBench bench;
        bench.readPhone();
        QSignalSpy busy(&bench.report, &ReportExport::busyChanged);
        bench.report.savePdf(bench.folder.filePath(u"mine.pdf"_s));
        QTRY_COMPARE(busy.size(), 2);
        QVERIFY(QFile::exists(bench.folder.filePath(u"mine.pdf"_s)));
        QVERIFY(bench.handedOut.isEmpty());

        bench.set(u"logo"_s, bench.folder.filePath(u"mine.pdf"_s)); // no picture
        bench.report.savePdf(bench.folder.filePath(u"plain.pdf"_s));
        QTRY_COMPARE(bench.boxes.keys, QStringList({u"LOGO_NOT_READ"_s}));
        QVERIFY(QFile::exists(bench.folder.filePath(u"plain.pdf"_s)));

        bench.boxes.keys.clear();
        bench.set(u"logo"_s, {});
        bench.report.savePdf(bench.folder.path()); // a folder
        QTRY_COMPARE(bench.boxes.keys, QStringList({u"FILE_NOT_WRITTEN"_s}));
    }

    void documentHoldsMoreThanTheAddress()
    {
        const Panel panel = readAcorn(
            {u"\r\nacorn vn : -6000.0000 mV\r\nacorn vp : 10810.0000 mV\r\n"_s, false, u"IP X"_s, Language::English});
        const ReportDocument document = reportDocument(panel, kHead);
        QCOMPARE(document.title, u"Report - Acorn"_s);
        QCOMPARE(document.findings.size(), 11);
        const ReportFinding &fault = document.findings.at(3);
        QCOMPARE(fault.verdict, FindingVerdict::Fail);
        QCOMPARE(fault.line, u"acorn vn : -6000.0000 mV"_s);
        QCOMPARE(fault.tolerance, 10.0);
        QVERIFY(fault.deviation < -10.0);
        QCOMPARE(document.findings.at(4).verdict, FindingVerdict::Marginal); // 8.1 per cent
        QCOMPARE(document.findings.at(0).verdict, FindingVerdict::NotMeasured);
    }
};

QTEST_MAIN(TestChipReport)
#include "tst_chipreport.moc"
