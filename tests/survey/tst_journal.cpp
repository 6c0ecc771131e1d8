#include "columns.h"
#include "documentmaker.h"
#include "journalexport.h"
#include "journalform.h"
#include "journalpanel.h"
#include "panelgrid.h"
#include "phonebench.h"
#include "surveyjournal.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

Finding finding(const QString &what, FindingVerdict verdict)
{
    return {.key = what.toLower(),
            .what = what,
            .screens = {},
            .reading = u"1.200 V"_s,
            .reference = u"1.800"_s,
            .deviation = -33.3,
            .rule = Rule::tenPercent(),
            .verdict = verdict};
}

QList<Finding> listOf(const QString &verdict)
{
    return verdict.isEmpty() ? QList<Finding>() : QList{finding(u"PP1V8"_s, findingVerdictOf(verdict))};
}

JournalEntry entry(const QString &id, const QString &started, const QString &outcome, const QList<Finding> &findings)
{
    JournalEntry entry{
        {.id = id, .started = started, .outcome = outcome, .model = u"IP 7"_s, .serial = u"F2LX"_s + id}};
    entry.replies = {{0, u"pmuadc --read all"_s, u"BIST ldo2: \x1b[2J\x9b 1200\n"_s, true}};
    for (const Finding &found : findings)
        entry.findings.append(toJournal(found));
    return entry;
}

/// The journal's form over a store with three surveys; the middle one was never finished.
struct JournalBench : PhoneBench
{
    JournalBench() : PhoneBench(u"IP 7"_s)
    {
        session = std::make_unique<Session>(
            SessionParts{port, *store, boxes, [](const PortAddress &) -> Result<QString> { return u"phone"_s; },
                         [this](const QString &address) { opened.append(address); }});
        session->load();
        QObject::connect(session.get(), &Session::storeFailed, session.get(), [this] { ++failures; });
        keep(entry(u"1"_s, u"2026-11-19T10:00:00Z"_s, u"finished"_s,
                   {finding(u"PP3V0"_s, FindingVerdict::Pass), finding(u"PP1V8"_s, FindingVerdict::Fail)}));
        keep(entry(u"2"_s, u"2026-11-20T10:00:00Z"_s, u"running"_s, {finding(u"PP1V8"_s, FindingVerdict::Pass)}));
        keep(entry(u"3"_s, u"2026-11-21T10:00:00Z"_s, u"finished"_s,
                   {finding(u"PP1V8"_s, FindingVerdict::Pass), finding(u"PP3V0"_s, FindingVerdict::Pass)}));
        form = std::make_unique<Journal>(*session);
        form->CarregaDados();
        form->show();
    }

    void keep(const JournalEntry &kept) const
    {
        Result<Store> file = Store::open(store->path(), Store::Access::Write, 1s);
        if (!file || !keepInJournal(*file, kept))
            qFatal("no journal for the test");
    }
    JournalScreen &screen() const { return static_cast<JournalScreen &>(form->screen()); }
    template <typename T>
    T *control(const QString &name) const
    {
        return form->findChild<T *>(name);
    }
    QStringList listed() const
    {
        QStringList ids;
        for (const JournalSurvey &survey : screen().surveys())
            ids.append(survey.id);
        return ids;
    }
    void select(int row, QItemSelectionModel::SelectionFlags how = QItemSelectionModel::ClearAndSelect) const
    {
        auto *const grid = control<PanelGrid>(u"DBGrid1"_s);
        grid->selectionModel()->select(grid->model()->index(row, 0), how | QItemSelectionModel::Rows);
    }
    QString storedNote(const QString &id) const
    {
        const Result<Store> file = Store::open(store->path(), Store::Access::Read, 1s);
        return journalEntry(*file, id)->value().survey.note;
    }
    QString cell(int row, QStringView column) const { return screen().panel().rows.at(row).cell(column); }

    QStringList opened;
    int failures = 0;
    std::unique_ptr<Journal> form;
};

} // namespace

class TestJournal : public QObject
{
    Q_OBJECT

private slots:
    void changes_data()
    {
        columns<QString, QString, QString>({"before", "after", "change"});
        QTest::newRow("broken since") << u"pass"_s << u"fail"_s << u"new fault"_s;
        QTest::newRow("broken near its limit") << u"marginal"_s << u"fail"_s << u"new fault"_s;
        QTest::newRow("nobody looked before") << QString() << u"fail"_s << u"fault, unknown before"_s;
        QTest::newRow("still there") << u"fail"_s << u"fail"_s << u"still faulty"_s;
        QTest::newRow("repaired") << u"fail"_s << u"pass"_s << u"repaired"_s;
        QTest::newRow("repaired, barely") << u"fail"_s << u"marginal"_s << u"repaired"_s;
        QTest::newRow("silence is no repair") << u"fail"_s << u"not measured"_s << u"fault, not judged since"_s;
        QTest::newRow("nor is a shorter survey") << u"fail"_s << QString() << u"fault, not judged since"_s;
        QTest::newRow("nor a lost reference") << u"fail"_s << u"not judged"_s << u"fault, not judged since"_s;
        QTest::newRow("silence is no fault") << u"pass"_s << u"not measured"_s << u"not judged any more"_s;
        QTest::newRow("speaks again") << u"not measured"_s << u"pass"_s << u"passes now"_s;
        QTest::newRow("nearer the limit") << u"pass"_s << u"marginal"_s << u"verdict changed"_s;
        QTest::newRow("good") << u"pass"_s << u"pass"_s << u"same"_s;
        QTest::newRow("never judged") << QString() << u"not judged"_s << u"same"_s;
    }

    void changes()
    {
        QFETCH(const QString, before);
        QFETCH(const QString, after);
        const QList<ComparedOutput> outputs = compareSurveys(listOf(before), listOf(after));
        QCOMPARE(outputs.size(), 1);
        QTEST(word(outputs.first().change), "change");
        QCOMPARE(outputs.first().before.has_value(), !before.isEmpty());
        QCOMPARE(outputs.first().after.has_value(), !after.isEmpty());
    }

    void changesComeFirst()
    {
        const auto outputs =
            compareSurveys({finding(u"A"_s, FindingVerdict::Pass), finding(u"B"_s, FindingVerdict::Fail),
                            finding(u"C"_s, FindingVerdict::Pass), finding(u"D"_s, FindingVerdict::Fail)},
                           {finding(u"A"_s, FindingVerdict::Pass), finding(u"B"_s, FindingVerdict::Pass),
                            finding(u"C"_s, FindingVerdict::Fail), finding(u"E"_s, FindingVerdict::Pass)});
        QStringList order;
        for (const ComparedOutput &output : outputs)
            order.append(output.what);
        QCOMPARE(order, QStringList({u"C"_s, u"B"_s, u"D"_s, u"E"_s, u"A"_s}));
    }

    void listIsSearched()
    {
        JournalBench bench;
        QCOMPARE(bench.listed(), QStringList({u"3"_s, u"2"_s, u"1"_s}));
        const QList<Row> rows = surveyRows(bench.screen().surveys(), Language::English);
        QCOMPARE(rows[1].cell(u"Resultado"), u"Not finished"_s);
        QCOMPARE(rows[2].cell(u"Falhas"), u"1"_s);
        auto *const search = bench.control<QLineEdit>(u"txtBusca"_s);
        bench.select(0);
        search->setText(u"pp1v8"_s);
        bench.screen().TimerBusca_Timer();
        QCOMPARE(bench.listed(), QStringList{u"1"_s});
        QVERIFY(bench.screen().chosen().isEmpty()); // what is not listed is not shown either
        QVERIFY(!bench.control<QPushButton>(u"btExcluir"_s)->isEnabled());
        search->clear();
        bench.screen().TimerBusca_Timer();
        QCOMPARE(bench.listed().size(), 3);
    }

    void oneIsShownFaultsFirst()
    {
        JournalBench bench;
        bench.select(2);
        QCOMPARE(bench.cell(0, u"Achado"), u"PP1V8"_s);
        QCOMPARE(bench.cell(0, u"Veredito"), u"Falha"_s);
        QCOMPARE(bench.screen().panel().verdict, Verdict::Fail);
        bench.select(1);
        QCOMPARE(bench.screen().panel().verdict, Verdict::Incomplete); // it passed as far as it went
    }

    void twoAreHeldAgainstEachOther_data()
    {
        columns<bool>({"byButton"});
        QTest::newRow("two chosen, the newer first") << false;
        QTest::newRow("compare with") << true;
    }

    void twoAreHeldAgainstEachOther()
    {
        QFETCH(const bool, byButton);
        JournalBench bench;
        bench.select(0);
        if (byButton)
            bench.control<QPushButton>(u"btComparar"_s)->click();
        bench.select(2, byButton ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::Select);
        QVERIFY(bench.screen().isComparing());
        QCOMPARE(bench.control<PanelGrid>(u"DBGrid1"_s)->selectionModel()->selectedRows().size(), 2);
        QCOMPARE(bench.cell(0, u"Mudanca"), u"Reparado"_s);
        QCOMPARE(bench.cell(0, u"Veredito1"), u"Falha"_s); // the older one is before
        QCOMPARE(bench.cell(0, u"Veredito2"), u"Aprovado"_s);
        QVERIFY(bench.screen().panel().fields[u"lbResumo"_s].text->contains(u"Números de série diferentes!"_s));
        const QJsonObject json = QJsonDocument::fromJson(bench.screen().json()).object();
        QCOMPARE(json[u"before"].toObject()[u"id"].toString(), u"1"_s);
        QCOMPARE(json[u"outputs"].toArray()[0].toObject()[u"change"].toString(), u"repaired"_s);
        QVERIFY(bench.control<PanelGrid>(u"DBGrid3"_s)->csv().contains("PP1V8"));
        bench.select(1, QItemSelectionModel::Select); // a third
        QVERIFY(!bench.screen().hasReading());
    }

    void noteIsNeverLost()
    {
        JournalBench bench;
        bench.select(0);
        auto *const note = bench.control<QLineEdit>(u"txtNota"_s);
        QTest::keyClicks(note, u"water"_s);
        bench.select(1);
        QCOMPARE(note->text(), QString());
        QCOMPARE(bench.storedNote(u"3"_s), u"water"_s);

        QTest::keyClicks(note, u"dropped"_s);
        const QString path = bench.store->path();
        QVERIFY(QFile::rename(path, path + u".gone"_s));
        QTest::keyClick(note, Qt::Key_Return);
        QVERIFY(bench.failures > 0);
        QCOMPARE(note->text(), u"dropped"_s);
        QVERIFY(QFile::rename(path + u".gone"_s, path));
        bench.select(0);
        QCOMPARE(note->text(), u"water"_s);
        QCOMPARE(bench.storedNote(u"2"_s), u"dropped"_s);
        QCOMPARE(surveyRows(bench.screen().surveys(), Language::English)[1].cell(u"Nota"), u"dropped"_s);
    }

    void deletedAfterAQuestion()
    {
        JournalBench bench;
        bench.select(1);
        bench.boxes.answer = Answer::No;
        bench.control<QPushButton>(u"btExcluir"_s)->click();
        QCOMPARE(bench.listed().size(), 3);
        bench.boxes.answer = Answer::Yes;
        bench.control<QPushButton>(u"btExcluir"_s)->click();
        QCOMPARE(bench.listed(), QStringList({u"3"_s, u"1"_s}));
        QVERIFY(!bench.screen().hasReading());
    }

    void newSurveysAreSeenWhenItIsRaised()
    {
        JournalBench bench;
        bench.select(0);
        bench.form->hide();
        bench.keep(entry(u"4"_s, u"2026-11-22T10:00:00Z"_s, u"finished"_s, {}));
        bench.form->show();
        QCOMPARE(bench.listed().first(), u"4"_s);
        const auto rows = bench.control<PanelGrid>(u"DBGrid1"_s)->selectionModel()->selectedRows();
        QCOMPARE(rows.size(), 1);
        QCOMPARE(rows.first().row(), 1); // still the one that was chosen
    }

    void printedAgain()
    {
        JournalBench bench;
        bench.select(1);
        DocumentMaker maker(*bench.session);
        const auto print = [&](const QString &path) {
            maker.make(*bench.screen().report(), path, DocumentMaker::Afterwards::Open);
        };
        print(bench.folder.filePath(u"nowhere/survey.pdf"_s));
        QTRY_COMPARE(bench.boxes.keys, QStringList{u"FILE_NOT_WRITTEN"_s});
        const QString path = bench.folder.filePath(u"survey.pdf"_s);
        print(path);
        QTRY_COMPARE(bench.opened.size(), 1);
        QVERIFY(bench.opened.first().endsWith(u"/survey.pdf"_s));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly) && file.read(5) == "%PDF-");
        const ReportDocument report =
            reportOf(entry(u"2"_s, u"2026-11-20T10:00:00Z"_s, u"running"_s, {}), Language::English);
        QCOMPARE(report.note, u"Not finished."_s); // the customer is told
        QCOMPARE(report.serial, u"F2LX2"_s);
    }

    void rawExchangeIsTextWhateverItHolds()
    {
        JournalBench bench;
        bench.select(0);
        bench.control<QPushButton>(u"btTroca"_s)->click();
        const QString shown = bench.screen().exchange();
        QVERIFY2(shown.startsWith(u"> pmuadc --read all\nBIST ldo2: \\x1B[2J\\x9B 1200\n"_s), qPrintable(shown));
        QVERIFY(shown.endsWith(u"interrompida"_s));
        const auto json = QJsonDocument::fromJson(bench.screen().json()).object();
        QCOMPARE(json[u"exchange"].toArray()[0].toObject()[u"reply"].toString(), u"BIST ldo2: \x1b[2J\x9b 1200\n"_s);
        bench.select(1);
        QVERIFY(bench.screen().isExchangeShown());
    }
};

QTEST_MAIN(TestJournal)
#include "tst_journal.moc"
