#include "captiontable.h"
#include "catalogue.h"
#include "columns.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

static constexpr Language kLanguages[] = {Language::Portuguese, Language::English, Language::Spanish};

static QStringList keysIn(const QString &source)
{
    static const QRegularExpression kCaption(u"caption\\(u\"([^\"]+)\""_s);
    static const QRegularExpression kCode(
        u"u\"((?:MSG|STORE|REMEDY|REFUSED|IGNORED|REPLY|LINK|SIM|DICA|SOBRE)_[A-Z0-9_]+)\""_s);
    QStringList keys;
    for (const QRegularExpression &pattern : {kCaption, kCode}) {
        for (const QRegularExpressionMatch &match : pattern.globalMatch(source))
            keys += match.captured(1);
    }
    return keys;
}

static QStringList gapsIn(const QString &text)
{
    static const QRegularExpression kGap(u"%[1-9]"_s);
    QStringList gaps;
    for (const QRegularExpressionMatch &match : kGap.globalMatch(text))
        gaps += match.captured();
    gaps.sort();
    return gaps;
}

class TestCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void captions_data()
    {
        columns<QString, QStringList>({"key", "texts"});
        QTest::newRow("Spanish keeps the English")
            << u"TensoesRF"_s << QStringList{u"Tensões RF"_s, u"RF Voltage"_s, u"RF Voltage"_s};
        QTest::newRow("Spanish keeps the Portuguese")
            << u"CICLOS DE CARGA"_s << QStringList{u"CICLOS DE CARGA"_s, u"LOAD CYCLES"_s, u"CICLOS DE CARGA"_s};
        QTest::newRow("accent unlike the key")
            << u"SAUDE DA BATERIA"_s
            << QStringList{u"SAÚDE DA BATERIA"_s, u"BATTERY HEALTH"_s, u"SALUD DE LA BATERIA"_s};
    }

    void captions()
    {
        QFETCH(QString, key);
        QStringList found;
        for (const Language language : kLanguages)
            found += caption(key, language);
        QTEST(found, "texts");
    }

    void unknownKeyOrLanguageIsEmpty()
    {
        QCOMPARE(caption(u"Nunca visto", Language::English), QString());
        QCOMPARE(caption(u"tensões", Language::English), QString());
        QCOMPARE(caption(u"Tensões", static_cast<Language>(0)), QString());
        QCOMPARE(caption(u"Tensões", static_cast<Language>(4)), QString());
    }

    void everyCaptionHasThreeTexts()
    {
        for (const QString &key : captionKeys()) {
            for (const Language language : kLanguages)
                QVERIFY2(!caption(key, language).trimmed().isEmpty(), qPrintable(key));
        }
    }

    void noKeyTwice()
    {
        // A second row of a key could never be seen: the first decides, across the tables too.
        QStringList keys = captionKeys();
        QCOMPARE(keys.removeDuplicates(), 0);
        keys = messageKeys();
        QCOMPARE(keys.removeDuplicates(), 0);
    }

    void everyKeyInTheSourcesIsKnown()
    {
        const QStringList known = captionKeys() + messageKeys();
        QStringList missing;
        QDirIterator files(QStringLiteral(PRELT_SOURCE_DIR "/src"), {u"*.cpp"_s, u"*.h"_s}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            QVERIFY(file.open(QIODevice::ReadOnly));
            for (const QString &key : keysIn(QString::fromUtf8(file.readAll()))) {
                if (!known.contains(key))
                    missing += files.fileName() + u": "_s + key;
            }
        }
        QVERIFY2(missing.isEmpty(), qPrintable(missing.join(u'\n')));
    }

    void everyMessageHasThreeTexts()
    {
        for (const QString &key : messageKeys()) {
            for (const Language language : kLanguages) {
                const auto shown = message({key, {u"x"_s, u"y"_s}}, language);
                QVERIFY2(shown && !shown->title.trimmed().isEmpty() && !shown->lines.isEmpty(), qPrintable(key));
                QVERIFY2(!shown->lines.first().trimmed().isEmpty(), qPrintable(key));
            }
        }
    }

    void gapsAreTheSameInEveryLanguage()
    {
        const QStringList gaps{u"%1"_s, u"%2"_s};
        for (const QString &key : messageKeys()) {
            const auto inLanguage = [&](Language language) {
                return gapsIn(message({key, gaps}, language)->lines.join(u'\n'));
            };
            QVERIFY2(inLanguage(Language::English) == inLanguage(Language::Portuguese), qPrintable(key));
            QVERIFY2(inLanguage(Language::Spanish) == inLanguage(Language::Portuguese), qPrintable(key));
        }
    }

    void unknownMessageShowsNothing()
    {
        QVERIFY(!message({u"MSG_NUNCA_VISTA"_s}, Language::English));
        QVERIFY(!message({u"MSG_PORTA"_s}, static_cast<Language>(0)));
        QVERIFY(!message({u"MSG_PORTA"_s}, static_cast<Language>(4)));
    }

    void gapsAreFilled()
    {
        QCOMPARE(message({u"MSG_PORTA_INVALIDA"_s, {u"7"_s}}, Language::English)->lines,
                 (QStringList{u"Port communication COM 7 invalid"_s, u"Change the Box's USB port and try again."_s}));
        QCOMPARE(message({u"UNKNOWN_INDEX"_s, {u"17"_s}}, Language::Portuguese)->lines, QStringList{u"17NOT "_s});
        const QString twice = message({u"REMEDY_GROUP"_s, {u"dialout"_s}}, Language::English)->lines.first();
        QCOMPARE(twice.count(u"dialout"_s), 2);
    }

    void emptyGapLinesAreDropped()
    {
        const QStringList told{u"Store error: /a/b"_s, u"disk gone"_s};
        QCOMPARE(message({u"STORE_FAILED"_s, {u"/a/b"_s, u"disk gone"_s}}, Language::English)->lines, told);
        QCOMPARE(message({u"STORE_FAILED"_s, {u"/a/b"_s, u""_s}}, Language::English)->lines, told.first(1));
        QCOMPARE(message({u"STORE_FAILED"_s, {u"/a/b"_s}}, Language::English)->lines, told.first(1));
    }

    void argumentIsNoPattern()
    {
        const auto shown = message({u"STORE_FAILED"_s, {u"/100%2/%1"_s, u"why"_s}}, Language::English);
        QCOMPARE(shown->lines, (QStringList{u"Store error: /100%2/%1"_s, u"why"_s}));
    }

    void questions()
    {
        QVERIFY(message({u"Porta 16"_s}, Language::English)->icon == MessageIcon::Question);
        QVERIFY(message({u"MSG_INTERNET_GERAL"_s}, Language::Spanish)->icon == MessageIcon::Critical);
        QCOMPARE(message({u"Deseja excluir o comando "_s, {u"i2c -s 0"_s}}, Language::Portuguese)->lines,
                 QStringList{u"Deseja excluir o comando i2c -s 0  ?"_s});
    }
};

QTEST_GUILESS_MAIN(TestCatalogue)
#include "tst_catalogue.moc"
