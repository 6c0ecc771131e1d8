#include "reportaddress.h"

#include "columns.h"

#include <QTest>

using namespace Qt::StringLiterals;

static ReportRow row(const QString &name, const QString &reading, const QString &nominal, const QString &deviation,
                     RowMark mark)
{
    return {{.what = name, .reading = reading, .reference = nominal, .deviationText = deviation}, mark};
}

class TestReportAddress : public QObject
{
    Q_OBJECT

private slots:
    void exactText_data()
    {
        columns<QString, ReportSheet, ReportHead, QString>({"host", "sheet", "head", "address"});
        const ReportSheet chest{
            ReportPage::Chestnut,
            {},
            {row(u"PP6V0_DISPLAY_BOOST"_s, u"6.043 V"_s, u"6.0 V"_s, u"0.7 %"_s, RowMark::Yes),
             row(u"PN -5V7_DISPLAY_MESON_AVDDN"_s, u"-5.000 V   (12,3 mA)"_s, u"-5.7 V"_s, u"-12.2 %"_s, RowMark::No)}};
        const QString rows =
            u"M1=PP6V0_DISPLAY_BOOST&L1=6.043%20V&R1=6.0%20V&P1=0.7%20%&I1=1"
            "&M2=PN%20-5V7_DISPLAY_MESON_AVDDN&L2=-5.000%20V%20%20%20(12,3%20mA)&R2=-5.7%20V&P2=-12.2%20%&I2=0"_s;
        QTest::newRow("without a name") << u"https://reports.example/"_s << chest
                                        << ReportHead{u"21/11/2026"_s, Language::Portuguese, u"IP 6s Plus"_s, {}}
                                        << "https://reports.example/relatorio/chest.php?"_L1 + rows +
                                               "&DATA=21/11/2026&IDIOMA=1&MODELO=IP%206s%20Plus&EMP="_L1;
        QTest::newRow("a name is not escaped, but its words are replaced")
            << u"https://reports.example"_s << chest
            << ReportHead{u"11/21/26"_s, Language::English, u"IP 7"_s, u"True & False  São João=Ltda. + 100%"_s}
            << "https://reports.example/relatorio/chest.php?"_L1 + rows +
                   u"&DATA=11/21/26&IDIOMA=2&MODELO=IP%207&EMP=1%20&%200%20%20São%20João=Ltda.%20+%20100%"_s;
        QTest::newRow("rails tell their screen, and lose their numbers")
            << QString()
            << ReportSheet{ReportPage::Index,
                           u"2"_s,
                           {row(u"1. PP_A"_s, u"1.00 V"_s, u"1.000"_s, u"0 %"_s, RowMark::Yes),
                            row(u"11. PP_B"_s, u"0.50 V"_s, u"1.000"_s, u"-50 %"_s, RowMark::No),
                            row(u"17. PP_C"_s, u"Sem Medição*"_s, u"1.000"_s, {}, RowMark::NotJudged)}}
            << ReportHead{u"21/11/26"_s, Language::Spanish, u"IP X"_s, u"Rua 1. Andar"_s}
            << u"relatorio/index.php?M1=PP_A&L1=1.00%20V&R1=1.000&P1=0%20%&I1=1"
               "&M2=PP_B&L2=0.50%20V&R2=1.000&P2=-50%20%&I2=0&M3=PP_C&L3=Sem%20Medição*&R3=1.000&P3=&I3=3"
               "&TIPO=2&DATA=21/11/26&IDIOMA=3&MODELO=IP%20X&EMP=Rua%201.%20Andar"_s;
    }

    void exactText()
    {
        QFETCH(QString, host);
        QFETCH(ReportSheet, sheet);
        QFETCH(ReportHead, head);
        QTEST(reportAddress(host, sheet, head), "address");
    }
};

QTEST_GUILESS_MAIN(TestReportAddress)
#include "tst_reportaddress.moc"
