#include "columns.h"
#include "csv.h"
#include "home.h"
#include "models.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// The parts of the data layer that need no store.
class tst_data : public QObject
{
    Q_OBJECT

private slots:
    void modelOfNumber_data()
    {
        columns<QString, QString>({"number", "model"});
        QTest::newRow("last of its model") << u"A1699"_s << u"IP 6s Plus"_s;
        QTest::newRow("last of all") << u"A1902"_s << u"IP X"_s;
        QTest::newRow("nothing read") << QString() << QString();
        QTest::newRow("lower case") << u"a1549"_s << QString();
        QTest::newRow("blank behind") << u"A1549 "_s << QString();
        QTest::newRow("blank before") << u" A1549"_s << QString();
        QTest::newRow("longer number") << u"A15490"_s << QString();
        QTest::newRow("cut number") << u"A154"_s << QString();
    }

    void modelOfNumber()
    {
        QFETCH(QString, number);
        QTEST(modelForNumber(number), "model");
    }

    void csv_data()
    {
        columns<QString, bool, QList<QStringList>>({"text", "valid", "records"});
        using Records = QList<QStringList>;
        QTest::newRow("empty file") << u""_s << true << Records{};
        QTest::newRow("last line without end") << u"a,b\nc,d"_s << true << Records{{u"a"_s, u"b"_s}, {u"c"_s, u"d"_s}};
        QTest::newRow("CR LF") << u"a,b\r\nc,d\r\n"_s << true << Records{{u"a"_s, u"b"_s}, {u"c"_s, u"d"_s}};
        QTest::newRow("byte order mark") << u"\ufeffa\n"_s << true << Records{{u"a"_s}};
        QTest::newRow("empty cells at both ends") << u",x,\n"_s << true << Records{{u""_s, u"x"_s, u""_s}};
        QTest::newRow("comma and line end in quotes")
            << u"\"a,\r\nb\",c\n"_s << true << Records{{u"a,\r\nb"_s, u"c"_s}};
        QTest::newRow("doubled quotes") << u"\"a\"\"b\"\"\"\n"_s << true << Records{{u"a\"b\""_s}};
        QTest::newRow("quote inside a plain cell") << u"5\" cable,x\n"_s << true << Records{{u"5\" cable"_s, u"x"_s}};
        QTest::newRow("lone CR in a cell") << u"a\rb,c\n"_s << true << Records{{u"a\rb"_s, u"c"_s}};
        QTest::newRow("quote never closed") << u"\"a,b\nc\n"_s << false << Records{};
        QTest::newRow("text behind a closed quote") << u"\"a\"b,c\n"_s << false << Records{};
    }

    void csv()
    {
        QFETCH(QString, text);
        QFETCH(bool, valid);
        const std::optional<QList<QStringList>> records = csvRecords(text);
        QCOMPARE(records.has_value(), valid);
        QTEST(records.value_or(QList<QStringList>()), "records");
    }

    void folder()
    {
        qputenv("PRELT_HOME", "/bench/store/");
        QCOMPARE(homeFolder(u"/given/../here"_s), u"/here"_s);
        QCOMPARE(homeFolder(), u"/bench/store"_s);
        QVERIFY(QDir::isAbsolutePath(homeFolder(u"relative"_s)));
        qputenv("PRELT_HOME", "");
        qputenv("XDG_DATA_HOME", "/data");
        QCOMPARE(configStore(homeFolder()), u"/data/tavimo-prelt/Config.pmx"_s);
    }
};

QTEST_GUILESS_MAIN(tst_data)
#include "tst_data.moc"
