#include "alignment.h"
#include "autocomparison.h"
#include "columns.h"
#include "commandhistory.h"
#include "helpprefix.h"
#include "masking.h"
#include "numberchange.h"
#include "replydifference.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A row as one short text: kind, live line, recorded line, change.
QString told(const DifferenceRow &row)
{
    static constexpr char kSigns[] = {'=', 'm', '~', '!', '+', '-'};
    const QChar sign = QLatin1Char(kSigns[static_cast<int>(row.kind)]);
    return QStringList{sign, row.live, row.recorded, row.change}.join(u'|');
}

QStringList toldDifference(const DifferenceInput &input)
{
    QStringList rows;
    for (const DifferenceRow &row : difference(input).rows)
        rows.append(told(row));
    return rows;
}

constexpr auto kPrompt = "\r\n[0A1B2C3D:00112233] :-) "_L1;

} // namespace

class TestDifference : public QObject
{
    Q_OBJECT

private slots:
    void rows_data()
    {
        columns<QString, QString, QStringList>({"live", "recorded", "rows"});
        const auto row = [](const char *fault, const QString &live, const QString &recorded, const QStringList &rows) {
            QTest::newRow(fault) << live << recorded << rows;
        };
        row("alike but for line ends and prompt", "\r\n\r\r\na b\r\nc"_L1 + kPrompt, u"a b\n\nC \n[1:2] :-) "_s,
            {u"=|a b|a b|"_s, u"=|c|C|"_s});
        row("prompt without a line of its own", u"a[0:1] :-) "_s, u"a\r\n[2:3] :-) "_s, {u"=|a|a|"_s});
        row("a number", u"BIST ldo2: 1200.0000 mV"_s, u"BIST ldo2: 1800.0000 mV"_s,
            {u"!|BIST ldo2: 1200.0000 mV|BIST ldo2: 1800.0000 mV|-600.0000 mV (-33.3 %)"_s});
        row("no number any more", u"BIST ldo2: timeout mV"_s, u"BIST ldo2: 1800.0 mV"_s,
            {u"!|BIST ldo2: timeout mV|BIST ldo2: 1800.0 mV|"_s});
        row("another order", u"a: 1 mV\nb: 2 mV\nc: 3 mV"_s, u"c: 3 mV\na: 1 mV\nb: 4 mV"_s,
            {u"=|a: 1 mV|a: 1 mV|"_s, u"!|b: 2 mV|b: 4 mV|-2 mV (-50.0 %)"_s, u"=|c: 3 mV|c: 3 mV|"_s});
        row("labels without a colon", u"vbat 3800 mV\nvddout 1 mV"_s, u"vddout 1 mV\nvbat 3700 mV"_s,
            {u"!|vbat 3800 mV|vbat 3700 mV|+100 mV (+2.7 %)"_s, u"=|vddout 1 mV|vddout 1 mV|"_s});
        row("a label that repeats", u"t: 1\nt: 2\nt: 3"_s, u"t: 1\nt: 5\nt: 3"_s,
            {u"=|t: 1|t: 1|"_s, u"!|t: 2|t: 5|-3 (-60.0 %)"_s, u"=|t: 3|t: 3|"_s});
        row("a missing line", u"a: 1\nc: 3"_s, u"a: 1\nb: 2\nc: 3"_s,
            {u"=|a: 1|a: 1|"_s, u"-||b: 2|"_s, u"=|c: 3|c: 3|"_s});
        row("a line too many", u"a: 1\nb: 2\nc: 3"_s, u"a: 1\nc: 3"_s,
            {u"=|a: 1|a: 1|"_s, u"+|b: 2||"_s, u"=|c: 3|c: 3|"_s});
        row("text in place of text", u"start\nFAILED\nend"_s, u"start\nPassed\nend"_s,
            {u"=|start|start|"_s, u"!|FAILED|Passed|"_s, u"=|end|end|"_s});
        row("masked", u"SrNm: C39XYZ\nok"_s, u"SrNm: xxxxx®\nok"_s, {u"m|SrNm: C39XYZ|SrNm: xxxxx®|"_s, u"=|ok|ok|"_s});
        row("masked, and another thing beside it", u"SrNm: c39xyz bad"_s, u"SrNm: xxxxx® good"_s,
            {u"!|SrNm: c39xyz bad|SrNm: xxxxx® good|"_s});
        row("control characters", u"a\x1B[2J\u0000b"_s, u"a"_s, {u"!|a\\x1B[2J\\x00b|a|"_s});
        row("nothing to compare with", u"a"_s, {}, {});
    }

    void rows()
    {
        QFETCH(QString, live);
        QFETCH(QString, recorded);
        QTEST(toldDifference({.live = live, .recorded = recorded, .masks = {u"C39xyz"_s, QString()}}), "rows");
    }

    void verdicts()
    {
        const auto verdict = [](const QString &live, const QString &recorded, bool cut, double tolerance = 0) {
            return difference({.live = live, .recorded = recorded, .tolerance = tolerance, .cut = cut}).verdict;
        };
        QCOMPARE(verdict(u"a: 1"_s, u"a: 1"_s, false), Verdict::Pass);
        QCOMPARE(verdict(u"a: 1"_s, u"a: 1"_s, true), Verdict::Incomplete);
        QCOMPARE(verdict(u"a: 1"_s, u"a: 1\nb: 1"_s, true), Verdict::Incomplete);
        QCOMPARE(verdict(u"a: 1\nb: 12"_s, u"a: 1\nb: 123"_s, true), Verdict::Incomplete); // cut in the number
        QCOMPARE(verdict(u"a: 1"_s, u"a: 1\nb: 1"_s, false), Verdict::Fail);
        QCOMPARE(verdict(u"a: 2\n"_s, u"a: 1\nb: 1"_s, true), Verdict::Fail);
        QCOMPARE(verdict(u"a"_s, {}, false), Verdict::None);
        QCOMPARE(verdict(u"a: 101"_s, u"a: 100"_s, false, 1.0), Verdict::Pass);
        QCOMPARE(verdict(u"a: 99 98"_s, u"a: 100 100"_s, false, 1.0), Verdict::Fail); // one of two is too far off
        QCOMPARE(verdict(u"a: 0.1"_s, u"a: 0"_s, false, 50), Verdict::Fail);          // no share of nothing
    }

    void fromOneDifferenceToTheNext()
    {
        const ReplyDifference found =
            difference({.live = u"a: 1\nb: 9\nc: 3\nd: 9"_s, .recorded = u"a: 1\nb: 2\nc: 3\nd: 4"_s});
        QCOMPARE(found.differing, 2);
        QCOMPARE(found.first(), std::optional<qsizetype>(1));
        QCOMPARE(found.next(1), std::optional<qsizetype>(3));
        QCOMPARE(found.next(3), std::nullopt);
        QCOMPARE(found.previous(3), std::optional<qsizetype>(1));
        QCOMPARE(found.previous(1), std::nullopt);
        QCOMPARE(found.rows[3].liveNumber, 4);
    }

    void numbersOfALine_data()
    {
        columns<QString, QString, QString>({"live", "recorded", "changes"});
        QTest::newRow("two of three") << u"x 1 2.5 3"_s << u"x 2 2.5 4.25"_s << u"-1 (-50.0 %), -1.25 (-29.4 %)"_s;
        QTest::newRow("unit written on") << u"t 37.5C"_s << u"t 36C"_s << u"+1.5C (+4.1 %)"_s;
        QTest::newRow("from zero") << u"v 5 mV"_s << u"v 0 mV"_s << u"+5 mV"_s;
        QTest::newRow("across zero") << u"v -5 mV"_s << u"v -10 mV"_s << u"+5 mV (+50.0 %)"_s;
        QTest::newRow("another unit") << u"v 5 mV"_s << u"v 6 V"_s << QString();
        QTest::newRow("names are no numbers") << u"buck3 on"_s << u"buck4 on"_s << QString();
        QTest::newRow("hexadecimal") << u"id 0x1A"_s << u"id 0x1B"_s << QString();
        QTest::newRow("one word more") << u"a 1"_s << u"a 1 2"_s << QString();
    }

    void numbersOfALine()
    {
        QFETCH(QString, live);
        QFETCH(QString, recorded);
        QStringList texts;
        for (const NumberChange &change : numberChanges(live, recorded))
            texts.append(change.text);
        QTEST(texts.join(u", "), "changes");
    }

    void alignmentHoldsForLongAndWildSequences()
    {
        QRandomGenerator chance(7);
        const auto wild = [&chance](int size, int words) {
            QList<int> sequence;
            for (int i = 0; i < size; ++i)
                sequence.append(static_cast<int>(chance.bounded(quint32(words))));
            return sequence;
        };
        for (const int size : {0, 1, 5, 60, 4000}) { // the last is more than the library does in one go
            const QList<int> left = wild(size, 1 + size / 10);
            const QList<int> right = wild(size / 3, 1 + size / 10) + left.first(size / 2);
            std::pair<qsizetype, qsizetype> last(-1, -1);
            const Pairs pairs = aligned(left, right);
            for (const auto &pair : pairs) {
                QVERIFY(pair.first > last.first && pair.second > last.second);
                QVERIFY(pair.first < left.size() && pair.second < right.size());
                QCOMPARE(left[pair.first], right[pair.second]);
                last = pair;
            }
            QVERIFY(size < 60 || !pairs.isEmpty());
        }
    }

    void linesThatMovedLeaveTheOthersAligned()
    {
        QList<int> left;
        for (int i = 0; i < 9000; ++i)
            left.append(i);
        QList<int> right = left;
        right.remove(100, 50);
        std::rotate(right.begin() + 8000, right.begin() + 8010, right.end());
        for (int i = 0; i < 6000; i += 2)
            right[i] = 10000 + i; // more changes than the library looks for at once
        QCOMPARE(aligned(left, right).size(), 9000 - 50 - 3000 - 10);
    }

    void mark_data()
    {
        columns<QString, QString, bool>({"console", "recording", "found"});
        const QString reply = "\r\n\r\r\nPMU\r\nok"_L1 + kPrompt;
        QTest::newRow("the same reply") << reply << reply << true;
        QTest::newRow("another phone's prompt")
            << reply << u"\r\n\r\r\npmu\r\nOK\r\n[FFFFFFFF:00000000] :-) "_s << true;
        QTest::newRow("at the very start") << reply << u"\r\nPMU\r\nok\r\n"_s << false;
        QTest::newRow("one character differs") << reply << u"\r\n\r\r\nPMU\r\nko"_s << false;
        QTest::newRow("masked serial number") << u"\r\nSrNm c39xyz"_s << u"..SrNm xxxxx®"_s << true;
        QTest::newRow("recording not masked") << u"\r\nSrNm c39xyz"_s << u"..SrNm C39XYZ"_s << false;
        QTest::newRow("too short to be cut") << u"\r\na[1] :-) "_s << u"..a[1] :-) "_s << true;
        QTest::newRow("prompt of another case")
            << "\r\nok\r\n[0A1B2C3D:00112233] :-P "_L1 + QString() << u"..ok"_s << false;
        QTest::newRow("no reply") << QString() << u"..ok"_s << false;
        QTest::newRow("no recording") << reply << QString() << false;
    }

    void mark()
    {
        QFETCH(QString, console);
        QFETCH(QString, recording);
        const QStringList masks = withoutMarkers({u"C3'qzx'9x'wvj'yz'kyb'"_s});
        QTEST(standsInRecording(console, recording, masks), "found");
    }

    void longerMaskGoesFirst()
    {
        QCOMPARE(masked(u"sn ABCD and abc"_s, {u"abcd"_s, QString(), u"ABC"_s}), u"sn xxxxx® and xxxxx®"_s);
        QCOMPARE(masked(u"ABC"_s, {u"a'qzx'bc"_s}), u"ABC"_s); // with its markers it masks nothing
    }

    void helpPrefix_data()
    {
        columns<QString, QString>({"command", "toggled"});
        QTest::newRow("help of a command") << u"help i2c"_s << u"i2c"_s;
        QTest::newRow("a command with arguments") << u"i2c -s"_s << u"help i2c "_s;
        QTest::newRow("a word alone") << u"syscfg"_s << u"help syscfg"_s;
        QTest::newRow("another case is not removed") << u"Help i2c"_s << u"Helpi2c"_s;
    }

    void helpPrefix()
    {
        QFETCH(QString, command);
        QTEST(helpToggled(command), "toggled");
    }

    void historyKeepsTheDraft()
    {
        CommandHistory history;
        QCOMPARE(history.older(u"draft"_s), u"draft"_s);
        for (const QString &command : {u"a"_s, u"b"_s, u"b"_s})
            history.add(command);
        QCOMPARE(history.sent(), QStringList({u"b"_s, u"b"_s, u"a"_s}));
        QCOMPARE(history.older(u"draft"_s), u"b"_s);
        QCOMPARE(history.older(u"b"_s), u"b"_s);
        QCOMPARE(history.older(u"b"_s), u"a"_s);
        QCOMPARE(history.older(u"a"_s), u"a"_s);
        QCOMPARE(history.newer(u"a"_s), u"b"_s);
        QCOMPARE(history.newer(u"b changed"_s), u"b"_s); // it becomes the draft
        QCOMPARE(history.newer(u"b"_s), u"b changed"_s);
        QCOMPARE(history.newer(u"b changed"_s), u"b changed"_s);
        history.add(u"c"_s);
        QCOMPARE(history.newer(u""_s), u""_s);
    }
};

QTEST_GUILESS_MAIN(TestDifference)
#include "tst_difference.moc"
