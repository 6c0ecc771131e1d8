#include "columns.h"
#include "drift.h"
#include "labelledvalue.h"
#include "railevaluation.h"
#include "replytext.h"

#include <QTest>

#include <array>

using namespace Qt::StringLiterals;
using Kind = LabelledValue::Kind;

namespace {

/// One row of the reference table, the phone's line and what must come of them.
struct Case
{
    QString reply;
    QString refT = u"43"_s;
    QString refV = {};
    QString leitura;
    QString porc = {};
    Verdict verdict = Verdict::None;
    int volts = 3;
    int milli = 1;
    QString model = u"IP 7"_s;
    QString orig = u"Ldo3"_s;
    QString ci = {};
};

constexpr std::array kNever = {"Buck1"_L1, "Buck8"_L1, "mABuck1"_L1, "mABuck8"_L1};

EvaluatedRail evaluated(const Case &given)
{
    const RailContext context{given.reply, given.model, given.volts, given.milli, u"Sem Medição"_s};
    RailRow row;
    row.orig = given.orig;
    row.ci = given.ci;
    row.refT = given.refT;
    row.refV = given.refV;
    row.leitura = u"of the last phone"_s;
    row.porc = u"99 %"_s;
    return AvaliaLinhaPmu(context, row, {RailRules::Key::Orig, "mABuck0"_L1, kNever});
}

} // namespace

Q_DECLARE_METATYPE(Case)

class TestKit : public QObject
{
    Q_OBJECT

private slots:
    void judgesAtTheLimit()
    {
        const Rule rule = Rule::tenPercent();
        QCOMPARE(judged(10.0, rule), Verdict::Fail);
        QCOMPARE(judged(-10.0, rule), Verdict::Fail);
        QCOMPARE(judged(9.9, rule), Verdict::Pass);
        QCOMPARE(judged(-9.9, rule), Verdict::Pass);
        QCOMPARE(judged({}, rule), Verdict::Incomplete);
        QCOMPARE(judged(8.0, Rule::atLeast(8)), Verdict::Pass);
        QCOMPARE(judged(7.9, Rule::atLeast(8)), Verdict::Fail);
        QCOMPARE(judged(99.0, Rule::above(-10)), Verdict::Pass);
        QCOMPARE(judged(-10.0, Rule::above(-10)), Verdict::Fail);
        QCOMPARE(worst(Verdict::Incomplete, Verdict::Fail), Verdict::Fail);
        QCOMPARE(worst(Verdict::Incomplete, Verdict::Pass), Verdict::Incomplete);
    }

    void labelsOfIndices()
    {
        QCOMPARE(BistLabel(u"11"_s), u"BIST buck11:"_s);
        QCOMPARE(BistLabel(u"12"_s), u"BIST buck3_sw1:"_s);
        QCOMPARE(BistLabel(u"16"_s), u"BIST buck4_sw2:"_s);
        QCOMPARE(BistLabel(u"31"_s), u"ibuck11:"_s);
        QCOMPARE(BistLabel(u"59"_s), u"BIST ldo19:"_s);
        QCOMPARE(BistLabel(u"60"_s), u"BIST ildo0:"_s);
        QCOMPARE(BistLabel(u"80"_s), u"BIST ibuf_1v2:"_s);
        QCOMPARE(BistLabel(u"82"_s), u"BIST vrtc:"_s);
        for (const auto &hole :
             {u"17"_s, u"19"_s, u"32"_s, u"39"_s, u"83"_s, u"-1"_s, u"05"_s, u" 5"_s, u"+5"_s, u"x"_s})
            QCOMPARE(BistLabel(hole), QString());
    }

    void valuesBehindLabels_data()
    {
        columns<QString, Kind, QString>({"reply", "kind", "value"});

        const auto add = [](const char *fault, const QString &reply, Kind kind, const QString &value = {}) {
            QTest::newRow(fault) << reply << kind << value;
        };
        add("a whole line", u"x\r\nBIST ldo3: 1800.0000 mV\r\ny"_s, Kind::Volt, u"1.800"_s);
        add("a current loses its last digit", u"BIST ldo3: 36.5238 mA\n"_s, Kind::Milliampere, u"36,523"_s);
        add("the first of two answers counts", u"BIST ldo3: 1.0000 mV\nBIST ldo3: 9.0000 mV\n"_s, Kind::Volt,
            u"0.001"_s);
        add("another output that begins alike", u"BIST ldo13: 1.0000 mV\nBIST ildo3: 9.0000 mA\n"_s, Kind::Missing);
        add("a label in other letter case", u"bist LDO3: 1800.0000 mV\n"_s, Kind::Missing);
        add("time-out", u"BIST ldo3: timeout mV\n"_s, Kind::TimedOut, u"timeout"_s);
        add("whole millivolts without a point", u"BIST ldo3: -800 mV\n"_s, Kind::Volt, u"-0.800"_s);
        add("temperature", u"BIST ldo3: 25.4920 C\r\n"_s, Kind::Celsius, u"25,492"_s);
        add("unit lost after the first letter", u"BIST ldo3: 25.4920 \r\nC"_s, Kind::Missing);
        add("noise in the number", u"BIST ldo3: 18q0.0000 mV\n"_s, Kind::Missing);
        add("two blanks", u"BIST ldo3:  1800.0000 mV\n"_s, Kind::Missing);
        add("no blank before the number", u"BIST ldo3:12800.0000 mV\n"_s, Kind::Missing);
        add("microvolts look like millivolts", u"BIST ldo3: 1800.0000 uV\n"_s, Kind::Missing);
        add("another unit passes for a current", u"BIST ldo3: 1800.0000 mX\n"_s, Kind::Missing);
        add("more volts than a phone can have", u"BIST ldo3: 1000000.0000 mV\n"_s, Kind::Missing);
        add("the most that is read", u"BIST ldo3: -999999.0000 mV\n"_s, Kind::Volt, u"-999.999"_s);
        add("number cut by a line end that a blank follows", u"BIST ldo3: 18\n mV"_s, Kind::Missing);
        add("half of the unit", u"BIST ldo3: 1800.0000 m\r\nBIST ldo4: 1.0000 mV\n"_s, Kind::Missing);
        add("number cut, then the prompt", u"BIST ldo3: 18\r\n[0011AABB:CCDD2233] :-) "_s, Kind::Missing);
        add("nothing behind the label", u"BIST ldo3:"_s, Kind::Missing);
    }

    void valuesBehindLabels()
    {
        QFETCH(QString, reply);
        const LabelledValue found = valueBehind(reply, u"BIST ldo3:"_s);
        QTEST(found.kind, "kind");
        QTEST(found.value, "value");
        QCOMPARE(valueBehind(reply, {}).kind, Kind::Missing);
    }

    void cutAnywhereGivesTheValueOrNothing()
    {
        const QString reply = u"\r\nBIST ldo3: 1800.0000 mV\r\n[0011AABB:CCDD2233] :-) "_s;
        const qsizetype whole = u"\r\nBIST ldo3: 1800.0000 mV"_s.size();
        for (qsizetype bytes = 0; bytes <= reply.size(); ++bytes) {
            const LabelledValue found = valueBehind(reply.left(bytes), u"BIST ldo3:"_s);
            QCOMPARE(found.kind, bytes < whole ? Kind::Missing : Kind::Volt);
            QCOMPARE(found.line, bytes < whole ? QString() : u"BIST ldo3: 1800.0000 mV"_s);
        }
    }

    void lostBytesNeverMakeAnotherNumber()
    {
        const QString line = u"BIST ldo3: 1800.0000 mV"_s;
        for (qsizetype bytes = 0; bytes < line.size(); ++bytes) {
            const QString noisy = line.left(bytes) + u"\r\nBIST ldo4: 900.0000 mV\r\n[0011AABB:CCDD2233] :-) "_s;
            QCOMPARE(valueBehind(noisy, u"BIST ldo3:"_s).kind, Kind::Missing);
        }
    }

    void linesOfAReply()
    {
        const QString reply = u"\r\necho\r\n one 7 mV\r\n\r\ntwo 8 mV"_s;
        QCOMPARE(lineWith(reply, u"mV"), u"one 7 mV"_s);
        QCOMPARE(lineWith(reply, u"two"), u"two 8 mV"_s); // the last one, without an end
        QVERIFY(lineWith(reply, u"three").isNull());
        QCOMPARE(lineAround(reply, 0), QString()); // the line end itself
        QCOMPARE(lineBehindEcho(reply), u"one 7 mV"_s);
        QCOMPARE(lineBehindEcho(u"echo\r\n"), QString());
    }

    void lineWithoutAnEndIsNotCopiedWhole()
    {
        const LabelledValue value = valueBehind(u"BIST ldo3: 1800.0000 mV "_s.repeated(10'000), u"BIST ldo3:"_s);
        QCOMPARE(value.value, u"1.800"_s);
        QVERIFY(value.line.size() < 5000);
    }

    void labelsTooFarBackAreNotFound()
    {
        const QString line = u"BIST ldo3: 1800.0000 mV\n"_s;
        QCOMPARE(valueBehind(QString(32766, u'x') + line, u"BIST ldo3:"_s).kind, Kind::Volt);
        QCOMPARE(valueBehind(QString(32767, u'x') + line, u"BIST ldo3:"_s).kind, Kind::Missing);
    }

    void evaluatesRows_data()
    {
        QTest::addColumn<Case>("given");

        const auto add = [](const char *fault, const Case &given) { QTest::newRow(fault) << given; };
        const auto ldo3 = [](const QString &value) { return "BIST ldo3: "_L1 + value + " mV\n"_L1; };
        const auto ildo3 = [](const QString &value) { return "BIST ildo3: "_L1 + value + " mA\n"_L1; };
        const auto milli = [&](const QString &value, int decimals, const QString &shown) {
            return Case{.reply = ildo3(value), .refT = u"63"_s, .leitura = shown, .milli = decimals};
        };
        const QString none = u"Sem Medição*"_s;
        const QString healthy = ldo3(u"3000.0000"_s);

        add("one decimal", {ldo3(u"1800.0000"_s), u"43"_s, u"1.800"_s, u"1.8 V"_s, u"0 %"_s, Verdict::Pass, 1});
        add("cut, not rounded",
            {ldo3(u"1799.9000"_s), u"43"_s, u"1.800"_s, u"1.79 V"_s, u"-0.1 %"_s, Verdict::Pass, 2});
        add("ten per cent high", {ldo3(u"3300.0000"_s), u"43"_s, u"3.000"_s, u"3.300 V"_s, u"10 %"_s, Verdict::Fail});
        add("just inside", {ldo3(u"3299.0000"_s), u"43"_s, u"3.000"_s, u"3.299 V"_s, u"9.9 %"_s, Verdict::Pass});
        add("ten per cent low", {ldo3(u"2700.0000"_s), u"43"_s, u"3.000"_s, u"2.700 V"_s, u"-10 %"_s, Verdict::Fail});
        add("just inside below", {ldo3(u"2701.0000"_s), u"43"_s, u"3.000"_s, u"2.701 V"_s, u"-9.9 %"_s, Verdict::Pass});
        add("dead rail", {ldo3(u"0.0000"_s), u"43"_s, u"3.000"_s, u"0 V"_s, u"-100 %"_s, Verdict::Fail});
        add("dead rail beside a reference of one decimal",
            {ldo3(u"19.0000"_s), u"43"_s, u"1.8"_s, u"0.019 V"_s, u"-98.9 %"_s, Verdict::Fail});
        add("reference typed with a comma",
            {ldo3(u"3300.0000"_s), u"43"_s, u"3,0"_s, u"3.300 V"_s, u"10 %"_s, Verdict::Fail});
        add("negative reading", {ldo3(u"-12.0000"_s), u"43"_s, {}, u"-0.012 V"_s});
        add("negative reading at one decimal", {ldo3(u"-12.0000"_s), u"43"_s, {}, u"0 V"_s, {}, Verdict::None, 1});
        add("above ten volts the cut counts characters", {ldo3(u"12345.0000"_s), u"43"_s, {}, u"12.34 V"_s});
        add("nothing to judge at nominal 0", {ldo3(u"725.1234"_s), u"43"_s, u"0"_s, u"0.725 V"_s, u"0 %"_s});
        add("nominal 0.000 divides nothing", {ldo3(u"500.0000"_s), u"43"_s, u"0.000"_s, u"0.500 V"_s});
        add("time-out", {ldo3(u"timeout"_s), u"43"_s, u"3.000"_s, none, u"-100 %"_s, Verdict::Incomplete});
        add("time-out without a reference", {ldo3(u"timeout"_s), u"43"_s, {}, none});
        add("missing line", {u"BIST ldo4: 3000.0000 mV\n"_s, u"43"_s, u"3.000"_s, none, u"0 %"_s, Verdict::Incomplete});
        add("missing line without a reference", {{}, u"43"_s, {}, none});
        add("row without a reading index", {healthy, {}, u"3.000"_s, {}});
        add("hole in the numbering", {healthy, u"17"_s, {}, none});

        add("current without decimals", milli(u"96.6610"_s, 0, u"96 mA"_s));
        add("current at three decimals", milli(u"96.6610"_s, 3, u"96,661 mA"_s));
        add("current without a point", milli(u"125"_s, 2, u"12 mA"_s));
        add("current cut to its reference's decimals",
            {ildo3(u"1.6999"_s), u"63"_s, u"1.70"_s, u"1,6 mA"_s, u"-0.1 %"_s, Verdict::Pass});
        add("current padded to its reference's decimals",
            {ildo3(u"96.6610"_s), u"63"_s, u"96.6610"_s, u"96,6 mA"_s, u"0 %"_s, Verdict::Pass});
        add("three counts of a coarse reference are no three thousandths",
            {ildo3(u"1.4000"_s), u"63"_s, u"1.7"_s, u"1,4 mA"_s, u"-17.6 %"_s, Verdict::Fail});

        const auto firstCore = [](const QString &model, const QString &shown) {
            return Case{.reply = u"ibuck0: 96.6610 mA\n"_s,
                        .refT = u"20"_s,
                        .leitura = shown,
                        .model = model,
                        .orig = u"mA Buck0"_s};
        };
        add("first core hidden on 8", firstCore(u"IP 8"_s, u"*"_s));
        add("first core hidden on X", firstCore(u"IP X"_s, u"*"_s));
        add("first core measured on 7", firstCore(u"IP 7"_s, u"96,6 mA"_s));
        add("graphics core looks measured", {.reply = u"BIST buck1: 0.0000 mV\n"_s,
                                             .refT = u"1"_s,
                                             .refV = u"0.900"_s,
                                             .leitura = u"*"_s,
                                             .porc = u"0 %"_s,
                                             .orig = u"Buck1"_s});
        add("camera rail called dead",
            {.reply = ldo3(u"0.0000"_s), .refV = u"2.800"_s, .leitura = u"*"_s, .porc = u"0 %"_s, .ci = u"CAM"_s});
    }

    void evaluatesRows()
    {
        QFETCH(Case, given);
        const EvaluatedRail rail = evaluated(given);
        QCOMPARE(rail.row.leitura, given.leitura);
        QCOMPARE(rail.row.porc, given.porc);
        QCOMPARE(rail.verdict, given.verdict);
        QCOMPARE(rail.indexUnknown, given.refT == "17"_L1);
    }

    void driftFromARecording_data()
    {
        columns<QString, QString, std::optional<double>>({"reading", "recorded", "percent"});
        using Percent = std::optional<double>;
        QTest::newRow("lower") << u"1.500 V"_s << u"2.000 V"_s << Percent(-25);
        QTest::newRow("higher, with commas") << u"12,5 mA"_s << u"10,0 mA"_s << Percent(25);
        QTest::newRow("below zero") << u"-6.000 V"_s << u"-5.000 V"_s << Percent(-20);
        QTest::newRow("fewer places then: inside") << u"1.899 V"_s << u"1.8 V"_s << Percent(0);
        QTest::newRow("fewer places then: just below") << u"0.995 V"_s << u"1.0 V"_s << Percent(-0.5);
        QTest::newRow("fewer places then: above") << u"1.200 V"_s << u"1.0 V"_s << Percent(10);
        QTest::newRow("fewer places now: inside") << u"1.8 V"_s << u"1.899 V"_s << Percent(0);
        QTest::newRow("fewer places now: above") << u"1.2 V"_s << u"1.000 V"_s << Percent(20);
        QTest::newRow("a rail that died") << u"0 V"_s << u"1.8 V"_s << Percent(-100);
        QTest::newRow("a rail that was dead") << u"1.8 V"_s << u"0 V"_s << Percent(100);
        QTest::newRow("dead as before") << u"0 V"_s << u"0 V"_s << Percent(0);
        for (const char *missing : {"", "*", "**", "Sem Medi\u00e7\u00e3o*"}) {
            QTest::addRow("live %s", missing) << QString::fromUtf8(missing) << u"1.8 V"_s << Percent();
            QTest::addRow("recorded %s", missing) << u"1.8 V"_s << QString::fromUtf8(missing) << Percent();
        }
        QTest::newRow("other unit") << u"1.8 V"_s << u"1,8 mA"_s << Percent();
    }

    void driftFromARecording()
    {
        QFETCH(const QString, reading);
        QFETCH(const QString, recorded);
        QFETCH(const std::optional<double>, percent);
        const auto found = drift(reading, recorded);
        QCOMPARE(found.has_value(), percent.has_value());
        QVERIFY2(std::abs(found.value_or(0) - percent.value_or(0)) < 1e-9,
                 qPrintable(QString::number(found.value_or(0))));
    }
};

QTEST_GUILESS_MAIN(TestKit)
#include "tst_kit.moc"
