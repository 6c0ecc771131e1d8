#include "csv.h"
#include "home.h"
#include "models.h"
#include "queries.h"
#include "railorder.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// The parts of the data layer that need no store.
class tst_data : public QObject
{
    Q_OBJECT

private slots:
    void modelOfNumber_data();
    void modelOfNumber();
    void modelsInOrder();
    void csv_data();
    void csv();
    void pattern_data();
    void pattern();
    void order_data();
    void order();
    void folder();
};

void tst_data::modelOfNumber_data()
{
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("model");
    const std::pair<const char *, const char *> kNumbers[] = {
        {"A1549 A1586 A1589", "IP 6"},       {"A1524 A1593 A1522", "IP 6 Plus"}, {"A1700 A1633 A1688", "IP 6s"},
        {"A1634 A1687 A1699", "IP 6s Plus"}, {"A1779 A1660 A1778", "IP 7"},      {"A1784 A1785 A1661", "IP 7 Plus"},
        {"A1906 A1863 A1905", "IP 8"},       {"A1864 A1897 A1898", "IP 8 Plus"}, {"A1865 A1901 A1902", "IP X"},
    };
    for (const auto &[numbers, model] : kNumbers)
        for (const QString &number : QString::fromLatin1(numbers).split(u' '))
            QTest::newRow(qPrintable(number)) << number << QString::fromLatin1(model);
    QTest::newRow("nothing read") << QString() << QString();
    QTest::newRow("lower case") << u"a1549"_s << QString();
    QTest::newRow("blank behind") << u"A1549 "_s << QString();
    QTest::newRow("blank before") << u" A1549"_s << QString();
    QTest::newRow("longer number") << u"A15490"_s << QString();
    QTest::newRow("cut number") << u"A154"_s << QString();
}

void tst_data::modelOfNumber()
{
    QFETCH(QString, number);
    QTEST(modelForNumber(number), "model");
}

void tst_data::modelsInOrder()
{
    QCOMPARE(modelNames().join(u'|'), u"IP 6|IP 6 Plus|IP 6s|IP 6s Plus|IP 7|IP 7 Plus|IP 8|IP 8 Plus|IP X"_s);
}

void tst_data::csv_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<QList<QStringList>>("records");
    using Records = QList<QStringList>;
    QTest::newRow("empty file") << u""_s << true << Records{};
    QTest::newRow("last line without end") << u"a,b\nc,d"_s << true << Records{{u"a"_s, u"b"_s}, {u"c"_s, u"d"_s}};
    QTest::newRow("CR LF") << u"a,b\r\nc,d\r\n"_s << true << Records{{u"a"_s, u"b"_s}, {u"c"_s, u"d"_s}};
    QTest::newRow("byte order mark") << u"\ufeffa\n"_s << true << Records{{u"a"_s}};
    QTest::newRow("empty cells at both ends") << u",x,\n"_s << true << Records{{u""_s, u"x"_s, u""_s}};
    QTest::newRow("empty quoted cell") << u"\"\",b\n"_s << true << Records{{u""_s, u"b"_s}};
    QTest::newRow("comma and line end in quotes") << u"\"a,\r\nb\",c\n"_s << true << Records{{u"a,\r\nb"_s, u"c"_s}};
    QTest::newRow("doubled quotes") << u"\"a\"\"b\"\"\"\n"_s << true << Records{{u"a\"b\""_s}};
    QTest::newRow("quote inside a plain cell") << u"5\" cable,x\n"_s << true << Records{{u"5\" cable"_s, u"x"_s}};
    QTest::newRow("blanks are kept") << u" a , b\n"_s << true << Records{{u" a "_s, u" b"_s}};
    QTest::newRow("lone CR in a cell") << u"a\rb,c\n"_s << true << Records{{u"a\rb"_s, u"c"_s}};
    QTest::newRow("quote never closed") << u"\"a,b\nc\n"_s << false << Records{};
    QTest::newRow("text behind a closed quote") << u"\"a\"b,c\n"_s << false << Records{};
}

void tst_data::csv()
{
    QFETCH(QString, text);
    QFETCH(bool, valid);
    const std::optional<QList<QStringList>> records = csvRecords(text);
    QCOMPARE(records.has_value(), valid);
    QTEST(records.value_or(QList<QStringList>()), "records");
}

void tst_data::pattern_data()
{
    QTest::addColumn<QString>("wildcards");
    QTest::addColumn<QString>("expected");
    QTest::newRow("both ends") << u"*NAND*"_s << u"%NAND%"_s;
    QTest::newRow("a literal per cent is no wildcard") << u"5%*"_s << uR"(5\%%)"_s;
    QTest::newRow("a net's underscore is no wildcard") << u"PP1V8_VA"_s << uR"(PP1V8\_VA)"_s;
    QTest::newRow("the mark of a literal is literal itself") << uR"(a\*)"_s << uR"(a\\%)"_s;
}

void tst_data::pattern()
{
    QFETCH(QString, wildcards);
    QTEST(likePattern(wildcards), "expected");
}

static RailRow rail(qint64 id, const QString &orig, const QString &ci, const QString &leitura, const QString &porc)
{
    RailRow row;
    row.id = id;
    row.orig = orig;
    row.malha = u"PP_"_s + orig;
    row.ci = ci;
    row.leitura = leitura;
    row.porc = porc;
    return row;
}

void tst_data::order_data()
{
    QTest::addColumn<RailOrder>("order");
    QTest::addColumn<QString>("expected");
    QTest::newRow("text, not number; no letter case")
        << RailOrder::Orig << u"buck1 Buck10 Buck2 Buck3 Buck3_sw1 mABuck2"_s;
    QTest::newRow("chip first, then output") << RailOrder::CiOrig << u"Buck2 Buck3 mABuck2 buck1 Buck10 Buck3_sw1"_s;
    QTest::newRow("far below counts as far above; unread last")
        << RailOrder::PorcDescending << u"Buck3 buck1 Buck2 mABuck2 Buck10 Buck3_sw1"_s;
}

void tst_data::order()
{
    QFETCH(RailOrder, order);
    const QList<RailRow> rows = {
        rail(1, u"Buck10"_s, u"GPU"_s, u"Sem Medição*"_s, u"0 %"_s),
        rail(2, u"Buck2"_s, u"CPU"_s, u"1.10 V"_s, u"0.1 %"_s),
        rail(3, u"mABuck2"_s, u"cpu"_s, u"96,6 mA"_s, u""_s),
        rail(4, u"buck1"_s, u"gpu"_s, u"1.00 V"_s, u"9.5 %"_s),
        rail(5, u"Buck3_sw1"_s, u"NAND"_s, u""_s, u"99 %"_s),
        rail(6, u"Buck3"_s, u"CPU"_s, u"1.20 V"_s, u"-30.5 %"_s),
    };
    QStringList outputs;
    for (const RailRow &row : sorted(rows, order))
        outputs += row.orig;
    QTEST(outputs.join(u' '), "expected");
}

void tst_data::folder()
{
    qputenv("PRELT_HOME", "/bench/store/");
    QCOMPARE(homeFolder(u"/given/../here"_s), u"/here"_s);
    QCOMPARE(homeFolder(), u"/bench/store"_s);
    QVERIFY(QDir::isAbsolutePath(homeFolder(u"relative"_s)));
    qputenv("PRELT_HOME", "");
    qputenv("XDG_DATA_HOME", "/data");
    QCOMPARE(configStore(homeFolder()), u"/data/tavimo-prelt/Config.pmx"_s);
}

QTEST_GUILESS_MAIN(tst_data)
#include "tst_data.moc"
