#include "columns.h"
#include "visibletext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

using namespace Qt::StringLiterals;

class TestVisibleText : public QObject
{
    Q_OBJECT

private slots:
    void bytes_data()
    {
        columns<QByteArray, QString>({"bytes", "shown"});
        QTest::newRow("plain text, marks of HTML too") << QByteArray("<b>1 & \"2\"</b>\\") << u"<b>1 & \"2\"</b>\\"_s;
        QTest::newRow("NUL ends nothing") << QByteArray("a\0b", 3) << u"a\\x00b"_s;
        QTest::newRow("escape sequence") << QByteArray("\x1B[2J\x07") << u"\\x1B[2J\\x07"_s;
        QTest::newRow("backspace and delete") << QByteArray("1\b2\x7F") << u"1\\x082\\x7F"_s;
        QTest::newRow("C1 sequence starts") << QByteArray("\x80\x9B"
                                                          "31m")
                                            << u"\\x80\\x9B31m"_s;
        QTest::newRow("8-bit letters are Latin-1") << QByteArray("\xE9\xFF") << u"éÿ"_s;
        QTest::newRow("unseen Latin-1") << QByteArray("\xA0\xAD") << u"\\xA0\\xAD"_s;
        QTest::newRow("bytes of a byte order mark") << QByteArray("\xEF\xBB\xBF") << u"ï»¿"_s;
        QTest::newRow("line ends") << QByteArray("a\nb\r\nc\n\nd\t") << u"a\nb\nc\n\nd\t"_s;
        QTest::newRow("line end that was doubled") << QByteArray("a\r\r\nb") << u"a\nb"_s;
        QTest::newRow("return that would overwrite") << QByteArray("pass\rfail") << u"pass\\x0Dfail"_s;
        QTest::newRow("returns at the end") << QByteArray("a\r\r") << u"a\\x0D\\x0D"_s;
        QTest::newRow("nothing") << QByteArray() << QString();
    }

    void bytes()
    {
        QFETCH(QByteArray, bytes);
        const QString shown = visibleText(QByteArrayView(bytes));
        QTEST(shown, "shown");
        QCOMPARE(visibleText(QStringView(shown)), shown);
    }

    void texts_data()
    {
        columns<QString, QString>({"text", "shown"});
        QTest::newRow("the three languages") << u"Sem Medição, ¿qué?"_s << u"Sem Medição, ¿qué?"_s;
        QTest::newRow("direction turned") << u"a\u202Egnp.exe\u200F"_s << u"a\\u202Egnp.exe\\u200F"_s;
        QTest::newRow("isolates") << u"\u2066x\u2069"_s << u"\\u2066x\\u2069"_s;
        QTest::newRow("zero width and byte order mark") << u"a\u200Bb\uFEFF"_s << u"a\\u200Bb\\uFEFF"_s;
        QTest::newRow("line ends of another kind") << u"a\u2028b\u2029c\u0085"_s << u"a\\u2028b\\u2029c\\x85"_s;
        QTest::newRow("half a character") << QString(QChar(0xD83D)) + u"x"_s << u"\\uD83Dx"_s;
        QTest::newRow("beyond 16 bits") << u"😀"_s << u"😀"_s;
        QTest::newRow("hidden beyond 16 bits") << QString::fromUcs4(U"\U000E0041") << u"\\uE0041"_s;
    }

    void texts()
    {
        QFETCH(QString, text);
        QTEST(visibleText(QStringView(text)), "shown");
    }

    void jsonStaysTheSameToItsReader()
    {
        const QString sent = u"\x1B\x7F\x9B\xAD\u202E\u2028"_s + QString::fromUcs4(U"\U000E0041") + u" é\\\"\n😀"_s;
        const auto document = QJsonDocument(QJsonArray{sent});
        const QString shown = visibleJson(QString::fromUtf8(document.toJson(QJsonDocument::Compact)));
        QCOMPARE(shown, u"[\"\\u001b\\u007f\\u009b\\u00ad\\u202e\\u2028\\udb40\\udc41 é\\\\\\\"\\n😀\"]"_s);
        QCOMPARE(QJsonDocument::fromJson(shown.toUtf8()), document);
    }
};

QTEST_GUILESS_MAIN(TestVisibleText)
#include "tst_visibletext.moc"
