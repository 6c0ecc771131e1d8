#include "columns.h"
#include "serialnumber.h"
#include "surveyjournal.h"
#include "surveypace.h"
#include "surveypanel.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

Judgement rail(double deviation, const Rule &rule, Verdict verdict, const QString &screen = u"PMU"_s)
{
    return {.what = u"PP1V8"_s,
            .reading = u"%1 V"_s.arg(deviation),
            .reference = u"1.800"_s,
            .deviation = deviation,
            .rule = rule,
            .verdict = verdict,
            .screen = screen,
            .output = u"BIST ldo2:"_s};
}

} // namespace

class TestFindings : public QObject
{
    Q_OBJECT

private slots:
    void verdicts_data()
    {
        columns<double, Rule, Verdict, QString>({"deviation", "rule", "verdict", "word"});
        const Rule ten = Rule::tenPercent();
        QTest::newRow("inside four fifths") << 7.9 << ten << Verdict::Pass << u"pass"_s;
        QTest::newRow("the last fifth begins") << 8.0 << ten << Verdict::Pass << u"marginal"_s;
        QTest::newRow("below") << -9.9 << ten << Verdict::Pass << u"marginal"_s;
        QTest::newRow("a fault stays one") << -33.3 << ten << Verdict::Fail << u"fail"_s;
        QTest::newRow("one side alone") << -8.0 << Rule::above(-10) << Verdict::Pass << u"marginal"_s;
        QTest::newRow("nothing above") << 22.8 << Rule::above(-10) << Verdict::Pass << u"pass"_s;
        QTest::newRow("a limit beyond the reference") << 8.1 << Rule::atLeast(8) << Verdict::Pass << u"pass"_s;
        QTest::newRow("a ceiling has no fifth") << -0.1 << Rule::ceiling() << Verdict::Pass << u"pass"_s;
        QTest::newRow("not measured") << 0.0 << ten << Verdict::Incomplete << u"not measured"_s;
        QTest::newRow("held against nothing") << 0.0 << ten << Verdict::None << u"not judged"_s;
    }

    void verdicts()
    {
        QFETCH(double, deviation);
        QFETCH(Rule, rule);
        QFETCH(Verdict, verdict);
        QTEST(word(findingVerdict(rail(deviation, rule, verdict))), "word");
    }

    void worseScreenSpeaksForTheOutput()
    {
        const Rule ten = Rule::tenPercent();
        QList<Finding> findings;
        addFinding(findings, rail(5, ten, Verdict::Pass, u"BuckLdo"_s));
        addFinding(findings, rail(5, Rule::within(4), Verdict::Fail, u"PMU"_s));
        addFinding(findings, rail(5, ten, Verdict::Pass, u"Tristar"_s));
        addFinding(findings,
                   {.what = u"PP1V8"_s, .reading = u"-"_s, .verdict = Verdict::Incomplete, .screen = u"IC"_s});
        QCOMPARE(findings.size(), 2); // the last is no output of the reply
        QCOMPARE(findings[0].verdict, FindingVerdict::Fail);
        QCOMPARE(findings[0].rule, Rule::within(4));
        QCOMPARE(findings[0].screens, QStringList({u"BuckLdo"_s, u"PMU"_s, u"Tristar"_s}));
        QCOMPARE(overall(findings), Verdict::Fail);
        QCOMPARE(overall(findings.mid(1)), Verdict::Incomplete);
    }

    void journalGivesBackWhatItGot()
    {
        QList<Finding> findings;
        addFinding(findings, rail(-8.1, Rule::tenPercent(), Verdict::Pass));
        addFinding(findings, {.what = u"NAND"_s, .reading = u"32 GB"_s, .screen = u"Nand"_s});
        for (const Finding &finding : findings)
            QCOMPARE(fromJournal(toJournal(finding)), finding);
    }

    void serials_data()
    {
        columns<QString, QString>({"reply", "serial"});
        const QString echo = u"\r\nsyscfg print SrNm\r\r\n"_s, prompt = u"\r\n[1234:5678] :-) "_s;
        QTest::newRow("alone") << echo + u"F2LX1234ABCD"_s + prompt << u"F2LX1234ABCD"_s;
        QTest::newRow("named") << echo + u"SrNm: \"F2LX1234ABCD\""_s + prompt << u"F2LX1234ABCD"_s;
        QTest::newRow("not there") << echo + u"Not Found!"_s + prompt << QString();
        QTest::newRow("command not known") << echo + u"Command \"syscfg\" not found!"_s + prompt << QString();
        QTest::newRow("no answer") << QString() << QString();
    }

    void serials()
    {
        QFETCH(QString, reply);
        QTEST(serialIn(reply), "serial");
    }

    void remainingTimeFollowsThisPhone()
    {
        SurveyStep second;
        second.expected = 1000ms;
        const QList<SurveyStep> two{second, second};
        QCOMPARE(paceOf({}, two, 0ms).remaining, 2000ms);
        const QList<SurveyAnswer> slow{{second, {}, false, 3000ms}};
        QCOMPARE(paceOf(slow, two, 0ms).remaining, 6000ms);
        QCOMPARE(paceOf(slow, two, 1500ms).remaining, 4500ms);
        QCOMPARE(paceOf(slow, two, 1500ms).percent, 50);
        QCOMPARE(paceOf(slow, two, 9999ms).remaining, 3000ms); // overdue: the rest is still ahead
        QCOMPARE(paceOf(slow, {}, 0ms).percent, 100);
    }
};

QTEST_GUILESS_MAIN(TestFindings)
#include "tst_findings.moc"
