#include "columns.h"
#include "railbench.h"
#include "referenciasscreen.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

RailRow unpublished(const QString &refV, bool isTaken)
{
    RailRow row;
    row.id = 1;
    row.tipo = 1;
    row.orig = u"Ldo9"_s;
    row.refT = u"49"_s;
    row.refV = refV;
    row.isTaken = isTaken;
    return row;
}

QList<GoodReading> boards(const QList<double> &volts)
{
    QList<GoodReading> readings;
    for (const double value : volts)
        readings.append({1, u"LDO9"_s, u"board %1"_s.arg(readings.size()), value});
    return readings;
}

/// Every row of every kind of a model, as the store holds them.
QList<RailRow> allRows(const PhoneBench &bench, const QString &model)
{
    const Result<Store> store = Store::open(configStore(bench.folder.path()), Store::Access::Read, {});
    return *railRows(*store, {model, 0}) + *railRows(*store, {model, 1}) + *railRows(*store, {model, 2});
}

struct Bench : RailBench<ReferenciasScreen>
{
    explicit Bench(const QString &description) : RailBench(description) { connectPhone(); }

    void readBoard(const QString &description)
    {
        port.phone = phone(description);
        screen->read();
        gatherReply();
    }
    void takeBoard(const QString &description)
    {
        readBoard(description);
        screen->btTomar_Click();
        gatherReply(); // the serial number
    }
    /// What is kept of the rail that has no published reference.
    QString source() { return stored(u"IP X"_s, 1, u"Ldo9"_s).source.section(u", "_s, 1, 2); }
    bool enabled(const QString &control) const { return *screen->panel().fields.value(control).enabled; }
};

} // namespace

class TestReferencias : public QObject
{
    Q_OBJECT

private slots:
    void referenceOfBoards_data()
    {
        columns<QList<double>, QString, bool, QString>({"volts", "refV", "isTaken", "reference"});

        QTest::newRow("one board") << QList{1.803} << QString() << false << u"1.803"_s;
        QTest::newRow("two boards meet in the middle") << QList{1.800, 1.808} << QString() << false << u"1.804"_s;
        QTest::newRow("an outlier does not pull") << QList{1.800, 1.802, 1.950} << QString() << false << u"1.802"_s;
        QTest::newRow("boards that would fail each other") << QList{1.800, 2.000} << QString() << false << u"same"_s;
        QTest::newRow("a published one stays") << QList{1.803} << u"1.700"_s << false << u"same"_s;
        QTest::newRow("a taken one follows") << QList{1.803} << u"1.700"_s << true << u"1.803"_s;
        QTest::newRow("a taken one goes with its boards") << QList<double>() << u"1.700"_s << true << QString();
        QTest::newRow("one that varies goes") << QList{1.0, 2.0} << u"1.700"_s << true << QString();
    }

    void referenceOfBoards()
    {
        QFETCH(QList<double>, volts);
        QFETCH(QString, refV);
        QFETCH(bool, isTaken);
        QFETCH(QString, reference);
        const auto taken = referencesFrom({unpublished(refV, isTaken)}, boards(volts), QDate(2026, 11, 21));
        QCOMPARE(taken.isEmpty() ? u"same"_s : taken.first().refV, reference);
    }

    void boardsAreTakenAndUndone()
    {
        Bench bench(u"IP X"_s);
        const QList<RailRow> before = allRows(bench, u"IP X"_s);
        const auto ldo = std::ranges::find_if(before, [](const RailRow &row) { return row.orig == "Ldo9"_L1; });
        QVERIFY(ldo != before.end() && ldo->refV.isEmpty());

        bench.takeBoard(u"IP X,ldo9=1800"_s);
        const RailRow one = bench.stored(u"IP X"_s, ldo->tipo, u"Ldo9"_s);
        QCOMPARE(one.refV, u"1.800"_s);
        QCOMPARE(one.ref, u"1.800 V"_s);
        QVERIFY2(one.source.startsWith(u"recorded here, n = 1, Δ 0.0 %, 20"_s), qPrintable(one.source));
        QVERIFY(!bench.enabled(u"btTomar"_s)); // not the same reading twice

        bench.takeBoard(u"IP X,ldo9=1810,serial=SIM0BOARD2"_s);
        QCOMPARE(bench.stored(u"IP X"_s, ldo->tipo, u"Ldo9"_s).refV, u"1.805"_s);
        bench.screen->btDesfazer_Click();
        QCOMPARE(bench.stored(u"IP X"_s, ldo->tipo, u"Ldo9"_s).refV, u"1.800"_s);
        bench.screen->btDesfazer_Click();
        QCOMPARE(allRows(bench, u"IP X"_s), before);
        QVERIFY(!bench.enabled(u"btDesfazer"_s));
    }

    void sourceFollowsTheBoards()
    {
        Bench bench(u"IP X"_s);
        bench.takeBoard(u"IP X,ldo9=1800,serial=SIM0BOARD1"_s);
        bench.takeBoard(u"IP X,ldo9=1820,serial=SIM0BOARD2"_s);
        bench.takeBoard(u"IP X,ldo9=1810,serial=SIM0BOARD3"_s); // the median stays
        QCOMPARE(bench.source(), u"n = 3, Δ 1.1 %"_s);
        bench.screen->btDesfazer_Click();
        QCOMPARE(bench.source(), u"n = 2, Δ 1.1 %"_s);
    }

    void aBoardCountsOnce()
    {
        Bench bench(u"IP X"_s);
        bench.takeBoard(u"IP X,ldo9=1800"_s);
        QVERIFY(!bench.boxes.questions.constLast().contains(u"já foi tomada"_s));
        bench.takeBoard(u"IP X,ldo9=1820"_s);
        QVERIFY(bench.boxes.questions.constLast().contains(u"Esta placa já foi tomada: 20"_s));
        QCOMPARE(bench.stored(u"IP X"_s, 1, u"Ldo9"_s).refV, u"1.820"_s);
        QCOMPARE(bench.source(), u"n = 1, Δ 0.0 %"_s);
        bench.takeBoard(u"IP X,ldo9=1820,serial=none"_s);
        QVERIFY(bench.boxes.questions.constLast().contains(u"não há como saber"_s));
        QCOMPARE(bench.source(), u"n = 2, Δ 0.0 %"_s);
    }

    void linkLostWhileTheSerialIsAsked()
    {
        Bench bench(u"IP X"_s);
        bench.readBoard(u"IP X"_s);
        bench.screen->btTomar_Click();
        bench.port.pull();
        QVERIFY(bench.boxes.questions.isEmpty());
        bench.screen->btTomar_Click(); // what was read is still there
        QVERIFY(bench.boxes.questions.constLast().contains(u"não há como saber"_s));
    }

    /// Outputs that stand in two kinds are one thing to a person.
    void questionCountsWhatTheTableShows()
    {
        Bench bench(u"IP X"_s);
        bench.readBoard(u"IP X"_s);
        const auto read = std::ranges::count_if(bench.screen->panel().rows,
                                                [](const Row &row) { return !row.cell(u"Leitura").isEmpty(); });
        const auto changed = std::ranges::count_if(bench.screen->panel().rows,
                                                   [](const Row &row) { return !row.cell(u"Nova").isEmpty(); });
        bench.screen->btTomar_Click();
        bench.gatherReply();
        const QString &question = bench.boxes.questions.constLast();
        QVERIFY2(question.contains(u"em %1 saídas?\n%2 referências mudam."_s.arg(read).arg(changed)),
                 qPrintable(question));
    }

    void publishedReferencesStay()
    {
        Bench bench(u"IP 6s"_s);
        QList<RailRow> before = allRows(bench, u"IP 6s"_s);
        bench.takeBoard(u"IP 6s,buck3=1500,ldo10=off"_s);
        QVERIFY2(bench.boxes.questions.constLast().contains(u"2 saídas"_s), // it looks faulty: the technician is warned
                 qPrintable(bench.boxes.questions.constLast()));
        QList<RailRow> after = allRows(bench, u"IP 6s"_s);
        for (QList<RailRow> *rows : {&before, &after})
            rows->removeIf([](const RailRow &row) { return row.isTaken || row.refV.isEmpty(); });
        QCOMPARE(after, before);
    }

    void halfABoardIsNotTaken()
    {
        Bench bench(u"IP X"_s);
        bench.port.keptBytes = 2000;
        bench.takeBoard(u"IP X"_s);
        QVERIFY(bench.boxes.questions.isEmpty());
        QVERIFY(!bench.enabled(u"btDesfazer"_s));
    }

    void noMeansNo()
    {
        Bench bench(u"IP X"_s);
        const QList<RailRow> before = allRows(bench, u"IP X"_s);
        bench.boxes.answer = Answer::No;
        bench.takeBoard(u"IP X"_s);
        QCOMPARE(allRows(bench, u"IP X"_s), before);
        QVERIFY(bench.enabled(u"btTomar"_s));
    }
};

QTEST_GUILESS_MAIN(TestReferencias)
#include "tst_referencias.moc"
