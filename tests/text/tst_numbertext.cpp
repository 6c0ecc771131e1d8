#include "columns.h"
#include "numbertext.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestNumberText : public QObject
{
    Q_OBJECT

private slots:
    void milliToUnit_data()
    {
        columns<QString, QString>({"value", "unit"});
        QTest::newRow("one digit needs two zeros") << u"5.0"_s << u"0.005"_s;
        QTest::newRow("three digits need the zero before the point") << u"123.9999"_s << u"0.123"_s;
        QTest::newRow("six digits are the last to be divided") << u"123456.0"_s << u"123.456"_s;
        QTest::newRow("seven digits stay") << u"1234567.0"_s << u"1234567"_s;
        QTest::newRow("cut, not rounded up") << u"1799.9999"_s << u"1.799"_s;
        QTest::newRow("sign comes back") << u"-5.0"_s << u"-0.005"_s;
        QTest::newRow("sign is no digit") << u"-6700.0000"_s << u"-6.700"_s;
        QTest::newRow("sign before seven digits") << u"-1234567.0"_s << u"-1234567"_s;
        QTest::newRow("no point, no division") << u"1800"_s << u"1800"_s;
        QTest::newRow("empty") << u""_s << u""_s;
        QTest::newRow("first point counts") << u"1800.5.7"_s << u"1.800"_s;
    }

    void milliToUnit()
    {
        QFETCH(QString, value);
        QTEST(milliToUnitText(value).value_or(u"nothing"_s), "unit");
    }

    void milliToUnitFindsNoPointTooFar()
    {
        QCOMPARE(milliToUnitText(QString(254, u'1') + u".0"_s), QString(254, u'1'));
        QCOMPARE(milliToUnitText(QString(255, u'1') + u".0"_s), std::nullopt);
        QCOMPARE(milliToUnitText(u'-' + QString(254, u'1') + u".0"_s), u'-' + QString(254, u'1'));
        QCOMPARE(milliToUnitText(QString(300, u'1')), QString(300, u'1'));
    }

    void cutsDecimals_data()
    {
        columns<QString, int, QString>({"value", "decimals", "text"});
        QTest::newRow("comma") << u"3,14159"_s << 2 << u"3.14"_s;
        QTest::newRow("blank is a point") << u"3 14159"_s << 2 << u"3.14"_s;
        QTest::newRow("never rounded") << u"9.999"_s << 1 << u"9.9"_s;
        QTest::newRow("minus zero point zero stays") << u"-0.04"_s << 1 << u"-0.0"_s;
        QTest::newRow("minus zero alone") << u"-0"_s << 1 << u"0"_s;
        QTest::newRow("no decimals leave the point") << u"-0.04"_s << 0 << u"-0."_s;
        QTest::newRow("too few digits") << u"1.5"_s << 3 << u"1.5"_s;
        QTest::newRow("no point") << u"15"_s << 1 << u"15"_s;
    }

    void cutsDecimals()
    {
        QFETCH(QString, value);
        QFETCH(int, decimals);
        QTEST(decimalsText(value, decimals), "text");
    }

    void oneDecimal_data()
    {
        columns<QString, QString>({"value", "text"});
        QTest::newRow("comma") << u"3,19"_s << u"3.1"_s;
        QTest::newRow("unit after a blank") << u"12 mA"_s << u"12.m"_s;
        QTest::newRow("ends in its point") << u"12."_s << u"12."_s;
        QTest::newRow("minus zero stays") << u"-0"_s << u"-0"_s;
        QTest::newRow("no point") << u"-12"_s << u"-12"_s;
    }

    void oneDecimal()
    {
        QFETCH(QString, value);
        QTEST(oneDecimalText(value), "text");
    }

    void deviation_data()
    {
        columns<QString, QString, QString>({"measured", "reference", "deviation"});
        QTest::newRow("equal") << u"1.800"_s << u"1.800"_s << u"0"_s;
        QTest::newRow("one count") << u"1.801"_s << u"1.800"_s << u"0.1"_s;
        QTest::newRow("three counts are no percentage") << u"1.234"_s << u"1.231"_s << u"0.3"_s;
        QTest::newRow("four counts are one") << u"1.235"_s << u"1.231"_s << u"0.3"_s; // 0.3249
        QTest::newRow("four counts of a small reference") << u"0.104"_s << u"0.100"_s << u"4.0"_s;
        QTest::newRow("one count down") << u"2.999"_s << u"3.000"_s << u"-0.1"_s;
        QTest::newRow("three counts down") << u"0.997"_s << u"1.000"_s << u"-0.3"_s;
        QTest::newRow("four counts down") << u"0.996"_s << u"1.000"_s << u"-0.4"_s;
        QTest::newRow("exactly ten per cent has no decimal") << u"3.300"_s << u"3.000"_s << u"10"_s;
        QTest::newRow("exactly minus ten") << u"2.700"_s << u"3.000"_s << u"-10"_s;
        QTest::newRow("just inside ten") << u"3.299"_s << u"3.000"_s << u"9.9"_s;
        QTest::newRow("a whole per cent that the division misses") << u"1.133"_s << u"1.100"_s << u"3.0"_s;
        QTest::newRow("cut, not rounded") << u"112.3456"_s << u"100.0000"_s << u"12.3"_s;
        QTest::newRow("negative cut toward zero") << u"87.6544"_s << u"100.0000"_s << u"-12.3"_s;
        QTest::newRow("less than a tenth is zero") << u"1000.4"_s << u"1000.0"_s << u"0"_s; // 0.04
        QTest::newRow("less than a tenth down keeps its sign") << u"999.6"_s << u"1000.0"_s << u"-0.0"_s;
        QTest::newRow("so small that an exponent would come") << u"10000000.4"_s << u"10000000.0"_s << u"0"_s;
        QTest::newRow("gone") << u"0.000"_s << u"1.800"_s << u"-100"_s;
        QTest::newRow("large: six characters") << u"12345.678"_s << u"0.001"_s << u"123456"_s; // 1234567700
        QTest::newRow("negative rail") << u"-6.100"_s << u"-6.700"_s << u"-8.9"_s;             // 600 of -6700
        QTest::newRow("no number reads as 0") << u"-"_s << u"1.800"_s << u"-100"_s;
        QTest::newRow("three counts of a zero reference") << u"0.003"_s << u"0"_s << u"0.3"_s;
    }

    void deviation()
    {
        QFETCH(QString, measured);
        QFETCH(QString, reference);
        QTEST(deviationText(measured, reference).value_or(u"nothing"_s), "deviation");
    }

    void deviationFromZero()
    {
        QCOMPARE(deviationText(u"0.004"_s, u"0.000"_s), std::nullopt);
        QCOMPARE(deviationText(u"-0.004"_s, u"VAR"_s), std::nullopt);
    }

    void blanks()
    {
        QCOMPARE(withoutBlanks(u" mA Buck 0 "_s), u"mABuck0"_s);
        QCOMPARE(withoutBlanks(u"a\tb"_s), u"a\tb"_s);
    }

    void numberAtStart_data()
    {
        columns<QString, double>({"text", "number"});
        QTest::newRow("unit behind") << u"3300.5 mV"_s << 3300.5;
        QTest::newRow("blanks before") << u"  -12 %"_s << -12.0;
        QTest::newRow("second point ends it") << u"1.2.3"_s << 1.2;
        QTest::newRow("comma ends it") << u"1,9"_s << 1.0;
        QTest::newRow("letter is no exponent") << u"3E5"_s << 3.0;
        QTest::newRow("point first") << u".5"_s << 0.5;
        QTest::newRow("point last") << u"5."_s << 5.0;
        QTest::newRow("sign alone") << u"-"_s << 0.0;
        QTest::newRow("empty") << u""_s << 0.0;
    }

    void numberAtStart()
    {
        QFETCH(QString, text);
        QTEST(leadingNumber(text), "number");
    }
};

QTEST_GUILESS_MAIN(TestNumberText)
#include "tst_numbertext.moc"
