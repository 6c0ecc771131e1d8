#include "columns.h"
#include "models.h"
#include "phonebench.h"
#include "queries.h"
#include "settingkeys.h"
#include "surveypanel.h"
#include "surveyscreen.h"

#include <QFile>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// A survey of a simulated phone that answers at once; the test is the clock.
struct SurveyBench : PhoneBench
{
    explicit SurveyBench(const QString &description, Journaling journaling = Journaling::Kept) : PhoneBench(description)
    {
        survey.chooseJournaling(journaling);
        connectPhone();
        survey.open();
        port.commands.clear();
    }

    void step()
    {
        survey.TimerPasso_Timer();
        if (survey.isRunning() && session->Status() == "3"_L1)
            gatherReply();
    }
    void runUntil(const QString &command)
    {
        while (survey.isRunning() && !port.commands.contains(command.toLatin1()))
            step();
    }
    void runAll()
    {
        survey.read();
        while (survey.isRunning())
            step();
    }
    QStringList found(FindingVerdict verdict) const
    {
        QStringList names;
        for (const Finding &finding : survey.findings())
            if (finding.verdict == verdict)
                names.append(finding.what);
        return names;
    }
    Finding finding(const QString &what) const
    {
        const QList<Finding> &all = survey.findings();
        const auto found = std::ranges::find(all, what, &Finding::what);
        return found == all.end() ? Finding{} : *found;
    }
    QStringList open() const
    {
        return found(FindingVerdict::Fail) + found(FindingVerdict::NotMeasured) + found(FindingVerdict::Marginal);
    }
    JournalEntry kept() const
    {
        const Result<Store> opened = Store::open(store->path(), Store::Access::Read, 1s);
        const auto all = journal(*opened);
        const auto entry =
            all && !all->isEmpty() ? journalEntry(*opened, all->first().id) : Result(std::optional<JournalEntry>());
        return entry && *entry ? **entry : JournalEntry();
    }

    SurveyScreen survey{*session};
    const QString kCharger = u"pmuadc --sel tigris --read all"_s;
};

} // namespace

class TestSurvey : public QObject
{
    Q_OBJECT

private slots:
    void healthyPhoneHasNoFinding_data()
    {
        columns<QString>({"model"});
        for (const QString &model : modelNames())
            QTest::newRow(qPrintable(model)) << model;
    }

    void healthyPhoneHasNoFinding()
    {
        QFETCH(const QString, model);
        SurveyBench bench(model, Journaling::None);
        bench.survey.chooseExtra(SurveyExtra::Syscfg, true);
        bench.survey.chooseExtra(SurveyExtra::Memory, true);
        bench.runAll();
        QCOMPARE(bench.open(), QStringList());
        QCOMPARE(bench.survey.reading().verdict, Verdict::Pass);
        QVERIFY(bench.found(FindingVerdict::Pass).contains(u"Wifi"_s));
        QVERIFY(bench.found(FindingVerdict::Pass).contains(u"RAM"_s));
        QCOMPARE(bench.survey.run().serial().size(), 12);
        QCOMPARE(bench.port.commands.count("pmuadc --read all"), 1); // five screens judge the one reply
    }

    void faultsAreFoundOnce_data()
    {
        columns<QString, QStringList, QString>({"phone", "found", "screens"});
        QTest::newRow("three") << u"IP 6s,ldo2=1200,i2c1:75=off,battery=worn"_s
                               << QStringList({u"PP1V8_VA"_s, u"SAÚDE DA BATERIA"_s, u"I2C 1 0x75 Tigris (charger)"_s})
                               << u"BuckLdo, PMU"_s;
        QTest::newRow("two screens and a chip")
            << u"IP 7,ldo7=timeout"_s << QStringList{u"PP3V0_TRISTAR_ANT_PROX"_s} << u"BuckLdo, PMU, Tristar"_s;
        QTest::newRow("in the last fifth") << u"IP 6s,ldo2=1944"_s << QStringList{u"PP1V8_VA"_s} << u"BuckLdo, PMU"_s;
        QTest::newRow("OLED panel") << u"IP X,acorn.va=timeout"_s << QStringList{u"PP3V5_RACER"_s} << u"Acorn"_s;
        QTest::newRow("storage, by two questions") << u"IP 8,nand=missing"_s << QStringList{u"NAND"_s} << u"Nand"_s;
        QTest::newRow("a radio") << u"IP 7 Plus,radio3=off"_s << QStringList{u"Gps"_s} << u"RFs"_s;
        QTest::newRow("touch supply that stays low")
            << u"IP 7,vldo3=3000"_s << QStringList{u"PP5V1_TOUCH_VDDH"_s} << u"Chestnut"_s;
        QTest::newRow("port controller") << u"IP X,tristar=off"_s << QStringList{u"HYDRA"_s} << u"IC"_s;
    }

    void faultsAreFoundOnce()
    {
        QFETCH(const QString, phone);
        SurveyBench bench(phone, Journaling::None);
        bench.runAll();
        QTEST(bench.open(), "found");
        QTEST(bench.survey.findings().first().screens.join(u", "_s), "screens");
    }

    void outputsAreTheSameInEveryLanguage_data()
    {
        columns<qsizetype>({"kept"});
        QTest::newRow("whole replies") << PhonePort::kAll;
        QTest::newRow("cut replies") << qsizetype(60);
        QTest::newRow("silence") << qsizetype(0);
    }

    /// Or else surveys in two languages could not be compared.
    void outputsAreTheSameInEveryLanguage()
    {
        QFETCH(const qsizetype, kept);
        SurveyBench bench(u"IP X"_s, Journaling::None);
        bench.port.keptBytes = kept;
        bench.survey.chooseExtra(SurveyExtra::Syscfg, true);
        bench.survey.chooseExtra(SurveyExtra::Memory, true);
        bench.runAll();
        const auto outputs = [&bench](Language language) {
            QStringList keys;
            for (const Finding &finding : bench.survey.run().findings(language))
                keys.append(finding.key);
            return keys;
        };
        QVERIFY(!outputs(Language::Portuguese).isEmpty());
        QCOMPARE(outputs(Language::English), outputs(Language::Portuguese));
        QCOMPARE(outputs(Language::Spanish), outputs(Language::Portuguese));
    }

    void whatIsNotJudged_data()
    {
        columns<QString, QString, QString, QString>({"phone", "what", "reading", "line"});
        QTest::newRow("a gauge that does not tell the health")
            << u"IP 6"_s << u"SAÚDE DA BATERIA"_s << u"o medidor deste modelo não informa"_s << QString();
        QTest::newRow("a value of the gauge")
            << u"IP 7"_s << u"CICLOS DE CARGA"_s << u"512"_s << u"cycle-count: \"512\""_s;
        QTest::newRow("the storage") << u"IP 7"_s << u"Tamanho da NAND"_s << u"32 GB"_s << u"size: 1DCC800"_s;
        QTest::newRow("a bus with nothing expected")
            << u"IP X"_s << u"I2C 0"_s << u"nenhuma resposta (nenhum componente esperado)"_s << QString();
    }

    void whatIsNotJudged()
    {
        QFETCH(const QString, phone);
        QFETCH(const QString, what);
        SurveyBench bench(phone, Journaling::None);
        bench.runAll();
        const Finding found = bench.finding(what);
        QTEST(found.reading, "reading");
        QTEST(found.line, "line");
        QCOMPARE(found.verdict, FindingVerdict::NotJudged);
        QCOMPARE(found.reference, QString());
    }

    void screensAreCalledAsInTheRail()
    {
        const Finding finding{.key = {}, .what = {}, .screens = {u"BuckLdo"_s, u"Tristar"_s, u"RFs"_s}, .reading = {}};
        QCOMPARE(screenNames(finding, u"IP 7"_s, Language::English), u"Buck & Ldo, Tristar, RF"_s);
        QCOMPARE(screenNames(finding, u"IP X"_s, Language::English), u"Buck & Ldo, Hydra, RF"_s);
    }

    void batteryLimitIsASetting()
    {
        SurveyBench bench(u"IP 7"_s, Journaling::None); // 94 %
        {
            Result<Store> store = Store::open(bench.store->path(), Store::Access::Write, 1s);
            QVERIFY(store && !setNamedSetting(*store, kBatteryWorn, u"100"_s));
            QVERIFY(setNamedSetting(*store, kBatteryWorn, u"95"_s));
        }
        bench.runAll();
        const Finding worst = bench.survey.findings().first();
        QCOMPARE(worst.verdict, FindingVerdict::Fail);
        QCOMPARE(worst.reference, u"≥ 95 %"_s);
        QCOMPARE(worst.source, u"setting battery-worn"_s);
    }

    void silentPhoneIsNotMeasured()
    {
        SurveyBench bench(u"IP 7"_s, Journaling::None);
        bench.port.keptBytes = 0;
        bench.runAll();
        QCOMPARE(bench.survey.reading().verdict, Verdict::Incomplete);
        QVERIFY(bench.found(FindingVerdict::NotMeasured).contains(u"Tensões: pmuadc --read all"_s));
        QVERIFY(bench.found(FindingVerdict::Pass).isEmpty());
    }

    void questionWithoutAnswerIsRepeated()
    {
        SurveyBench bench(u"IP 7"_s, Journaling::None);
        bench.survey.read();
        bench.runUntil(u"tristar -p"_s);
        bench.port.keptBytes = 0;
        bench.runUntil(bench.kCharger); // lost on its way
        bench.port.keptBytes = PhonePort::kAll;
        while (bench.survey.isRunning())
            bench.step();
        QCOMPARE(bench.port.commands.count(bench.kCharger.toLatin1()), 2);
        QCOMPARE(bench.open(), QStringList());
    }

    /// The tail of another command is no answer, and what it might have told is no finding.
    void strayReplyIsNotJudged()
    {
        SurveyBench bench(u"IP 7"_s);
        bench.port.before = "BIST ldo2: 1.0000 mV\n[0:0] :-) ";
        bench.port.answers = false;
        bench.runAll();
        QCOMPARE(bench.survey.reading().verdict, Verdict::Incomplete);
        QCOMPARE(bench.finding(u"Tensões: pmuadc --read all"_s).reading, u"Não é a resposta"_s);
        QVERIFY(bench.found(FindingVerdict::Pass).isEmpty() && bench.found(FindingVerdict::Fail).isEmpty());
        QVERIFY(bench.kept().replies.value(1).reply.contains("BIST ldo2"_L1)); // what went over the line is kept
    }

    void brokenOffBeforeAnythingWasJudged()
    {
        SurveyBench bench(u"IP 6s"_s);
        QCOMPARE(bench.survey.reading().verdict, Verdict::None);
        bench.survey.read();
        bench.step(); // the serial number is no finding
        bench.survey.btCancelar_Click();
        QCOMPARE(bench.survey.findings().size(), 0);
        QCOMPARE(bench.survey.reading().verdict, Verdict::Incomplete);
        QCOMPARE(verdictOf({}, SurveyEnd::Finished), Verdict::None);
    }

    void deletedWhileItRunsStaysDeleted()
    {
        SurveyBench bench(u"IP 6s"_s);
        bench.survey.read();
        bench.runUntil(u"nanduid"_s);
        Result<Store> store = Store::open(bench.store->path(), Store::Access::Write, 1s);
        QVERIFY(store && deleteFromJournal(*store, bench.survey.run().id));
        while (bench.survey.isRunning())
            bench.step();
        QVERIFY(journal(*store)->isEmpty());
        const Query rest{"Rest", "Select 1 from SurveyReplies union all Select 1 from SurveyFindings"};
        QVERIFY(!store->run(rest)->next());
        bench.runAll(); // the next one is a survey of its own
        QCOMPARE(bench.kept().survey.outcome, u"finished"_s);
    }

    void cancelKeepsWhatIsDone()
    {
        SurveyBench bench(u"IP 6s,ldo2=1200"_s);
        bench.survey.read();
        bench.runUntil(u"nanduid"_s);
        bench.survey.TimerPasso_Timer(); // the next question is in flight
        bench.survey.btCancelar_Click();
        QVERIFY(!bench.survey.isRunning());
        QCOMPARE(bench.session->Status(), u"1"_s);
        QCOMPARE(bench.open(), QStringList{u"PP1V8_VA"_s});
        QCOMPARE(bench.kept().survey.outcome, u"cancelled"_s);
        QVERIFY(bench.found(FindingVerdict::Pass).contains(u"NAND"_s));
        bench.runAll(); // and it may be started again
        QCOMPARE(bench.kept().survey.outcome, u"finished"_s);
    }

    void lostLinkKeepsWhatIsDone_data()
    {
        columns<QString, bool, QString>({"command", "inFlight", "judged"});
        QTest::newRow("between two questions") << u"tristar -p"_s << false << u"TRISTAR"_s;
        QTest::newRow("in a reply") << u"tristar -p"_s << true << u"TRISTAR"_s;
    }

    void lostLinkKeepsWhatIsDone()
    {
        QFETCH(const QString, command);
        QFETCH(const bool, inFlight);
        QFETCH(const QString, judged);
        SurveyBench bench(u"IP 6s"_s);
        bench.survey.read();
        bench.runUntil(command);
        if (inFlight)
            bench.survey.TimerPasso_Timer();
        bench.port.pull();
        bench.survey.TimerPasso_Timer();
        QVERIFY(!bench.survey.isRunning());
        QCOMPARE(bench.survey.run().end, SurveyEnd::LinkLost);
        QCOMPARE(bench.survey.reading().verdict, Verdict::Incomplete);
        QVERIFY(bench.found(FindingVerdict::Pass).contains(judged));
        QCOMPARE(bench.kept().survey.outcome, u"link lost"_s);
    }

    void journalGrowsWithTheSurvey()
    {
        SurveyBench bench(u"IP 6s,ldo2=1200"_s);
        bench.survey.chooseNote(u"water damage"_s);
        bench.survey.read();
        QCOMPARE(bench.kept().survey.outcome, u"running"_s);
        bench.runUntil(u"pmuadc --read all"_s);
        const JournalEntry half = bench.kept();
        QCOMPARE(half.replies.size(), 2);
        QVERIFY(half.replies[1].reply.contains("BIST ldo2: 1200.0000 mV"_L1));
        QCOMPARE(half.survey.faults, 1);
        QCOMPARE(half.survey.note, u"water damage"_s);
        while (bench.survey.isRunning())
            bench.step();
        const JournalEntry whole = bench.kept();
        QCOMPARE(whole.survey.outcome, u"finished"_s);
        QCOMPARE(whole.survey.serial, bench.survey.run().serial());
        QCOMPARE(whole.replies.size(), bench.survey.run().answers.size());
        QList<Finding> findings;
        for (const JournalFinding &finding : whole.findings)
            findings.append(fromJournal(finding));
        const auto shown = bench.survey.findings();
        QCOMPARE(findings.size(), shown.size());
        QVERIFY(std::ranges::all_of(shown, [&](const Finding &one) {
            return std::ranges::any_of(
                findings, [&](const Finding &other) { return other.key == one.key && other.verdict == one.verdict; });
        }));
    }

    void brokenStoreDoesNotStopIt()
    {
        SurveyBench bench(u"IP 6s"_s);
        QSignalSpy failed(&bench.survey, &SurveyScreen::journalFailed);
        const QString path = bench.store->path();
        bench.survey.read();
        QVERIFY(QFile::rename(path, path + u".gone"_s));
        bench.runUntil(u"nanduid"_s);
        QCOMPARE(failed.size(), 1); // told once, not at every step
        QVERIFY(!bench.survey.journal().isComplete());
        QVERIFY(QFile::rename(path + u".gone"_s, path));
        while (bench.survey.isRunning())
            bench.step();
        QVERIFY(bench.survey.journal().isComplete()); // what had to wait was written at the end
        QCOMPARE(bench.kept().replies.size(), bench.survey.run().answers.size());
        QCOMPARE(bench.survey.reading().verdict, Verdict::Pass);
    }

    void journalIsSearchedAndCleared()
    {
        SurveyBench bench(u"IP 6s,ldo2=1200"_s);
        bench.runAll();
        const QString id = bench.survey.run().id;
        Result<Store> store = Store::open(bench.store->path(), Store::Access::Write, 1s);
        QVERIFY(store && setJournalNote(*store, id, u"100% dry_"_s));
        for (const QString &word : {u"PP1V8_VA"_s, u"ip 6s"_s, u"00% d"_s, bench.survey.run().serial(), QString()})
            QCOMPARE(journal(*store, word)->size(), 1);
        for (const QString &word : {u"PP1V8_SDRAM"_s, u"y_%"_s, u"IP 7"_s}) // what passed is no reason to be found
            QCOMPARE(journal(*store, word)->size(), 0);
        QVERIFY(keepInJournal(*store, {bench.kept().survey}));
        QCOMPARE(bench.kept().survey.note, u"100% dry_"_s); // a late write leaves the note
        QVERIFY(deleteFromJournal(*store, id));
        QVERIFY(journal(*store)->isEmpty());
        QVERIFY(!journalEntry(*store, id)->has_value());
        const Query rest{"Rest", "Select 1 from SurveyReplies union all Select 1 from SurveyFindings"};
        QVERIFY(!store->run(rest)->next());
    }
};

QTEST_GUILESS_MAIN(TestSurvey)
#include "tst_survey.moc"
