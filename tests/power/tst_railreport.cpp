#include "buckldoscreen.h"
#include "railbench.h"
#include "reportexport.h"
#include "vcoresscreen.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// The pieces of the address from the row of this name on.
QStringList piecesOf(const Screen &screen, const QString &name)
{
    const ReportHead head{u"21/11/26"_s, Language::English, screen.session().model(), {}};
    if (!screen.reading().report)
        return {};
    const QStringList pieces = reportAddress({}, *screen.reading().report, head).section(u'?', 1).split(u'&');
    for (qsizetype at = 0; at + 4 < pieces.size(); at += 5)
        if (pieces.at(at).section(u'=', 1) == name)
            return pieces.sliced(at + 1, 4);
    return {};
}

QString malhaOf(const Screen &screen, const QString &orig)
{
    for (const Row &row : screen.panel().rows)
        if (row.cell(u"Orig") == orig)
            return row.cell(u"Malha");
    return {};
}

} // namespace

class TestRailReport : public QObject
{
    Q_OBJECT

private slots:
    void rowsOfTheGrid()
    {
        RailBench<BuckLdoScreen> bench(u"IP 6s,ldo2=1200,ldo3=timeout"_s);
        bench.connectPhone();
        bench.screen->chooseKind(1);
        QVERIFY(!bench.screen->reading().report);
        bench.readKind(1);
        QVERIFY(bench.screen->reading().report);
        QCOMPARE(bench.screen->reading().report->type, u"2"_s);
        QCOMPARE(bench.screen->reading().report->rows.size(), bench.screen->panel().rows.size());
        const QStringList fault = piecesOf(*bench.screen, malhaOf(*bench.screen, u"Ldo2"_s));
        QCOMPARE(fault.size(), 4);
        QVERIFY(fault.at(0).endsWith(u"=1.200%20V"));
        QVERIFY(fault.at(3).endsWith(u"=0"));
        const QStringList silent = piecesOf(*bench.screen, malhaOf(*bench.screen, u"Ldo3"_s));
        QVERIFY(silent.at(3).endsWith(u"=3")); // not measured is not judged
    }

    void onlyTheCoresOfTheChosenChip()
    {
        RailBench<VCoresScreen> bench(u"IP 7"_s);
        bench.connectPhone();
        bench.readKind(0);
        const auto all = bench.screen->reading().report->rows.size();
        bench.screen->cbICs_Click(3); // GPU
        QCOMPARE(bench.screen->reading().report->type, u"1"_s);
        QCOMPARE(bench.screen->reading().report->rows.size(), bench.screen->panel().rows.size());
        QVERIFY(bench.screen->reading().report->rows.size() < all);
    }
};

QTEST_GUILESS_MAIN(TestRailReport)
#include "reportaddress.h"
#include "tst_railreport.moc"
