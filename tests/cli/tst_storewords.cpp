#include "columns.h"
#include "queries.h"
#include "seeds.h"
#include "settings.h"
#include "store.h"
#include "storecommands.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// What `prelt store WORD` does and ends with; scripts rely on the codes.
class tst_storewords : public QObject
{
    Q_OBJECT

private slots:
    void codes_data()
    {
        // "%" is the home; "hostile" is the code on a store with a trigger.
        columns<QString, QString, QString, int, int>({"word", "first", "second", "sound", "hostile"});
        const auto row = [](const char *name, const QString &word, const QString &first, const QString &second,
                            int sound,
                            int hostile) { QTest::newRow(name) << word << first << second << sound << hostile; };
        row("init never touches a store", u"init"_s, u""_s, u""_s, 4, 4);
        row("check", u"check"_s, u""_s, u""_s, 0, 4);
        row("backup by date", u"backup"_s, u""_s, u""_s, 0, 4);
        row("backup by name", u"backup"_s, u"%/new"_s, u""_s, 0, 4);
        row("import of no store", u"import"_s, u"%/text"_s, u""_s, 4, 4);
        row("export", u"export"_s, u"%/tables"_s, u""_s, 0, 4);
        row("get", u"get"_s, u""_s, u""_s, 0, 4);
        row("get of what is not known", u"get"_s, u"nome"_s, u""_s, 2, 4);
        row("set", u"set"_s, u"speed"_s, u"G2"_s, 0, 4);
        row("set of what is not known", u"set"_s, u"nome"_s, u"x"_s, 2, 4);
        row("set to what is not accepted", u"set"_s, u"speed"_s, u"9600"_s, 2, 4);
    }

    void codes()
    {
        QFETCH(QString, word);
        QFETCH(QString, first);
        QFETCH(QString, second);
        const QTemporaryDir home;
        const QString path = home.filePath(u"Config.pmx"_s);
        first.replace(u'%', home.path());
        QVERIFY(createStore(path));
        QFile text(home.filePath(u"text"_s));
        QVERIFY(text.open(QIODevice::WriteOnly) && text.write("Modelo\n") == 7);
        text.close();
        QTEST(run(home, word, first, second), "sound");

        QVERIFY(QFile::remove(path) && createStore(path));
        {
            const Result<Store> store = Store::connected(path, FileMode::Writable, 0ms);
            QVERIFY(store->run({"Trap", "create trigger trap after update on Combos begin delete from Dados; end"}));
        }
        QTEST(run(home, word, first.isEmpty() ? first : first + u'2', second), "hostile");
    }

    void refusedValueLeavesTheOld()
    {
        const QTemporaryDir home;
        QCOMPARE(run(home, u"get"_s, u"speed"_s), 4);
        QCOMPARE(run(home, u"init"_s), 0);
        QCOMPARE(run(home, u"set"_s, u"help-video"_s, u"https://example.org/video"_s), 0);
        QCOMPARE(run(home, u"set"_s, u"help-video"_s, u"javascript:alert(1)"_s), 2);
        const Result<Store> store = Store::open(home.filePath(u"Config.pmx"_s), Store::Access::Read, 0ms);
        QVERIFY(store);
        QCOMPARE(*setting(*store, u"help-video"_s), u"https://example.org/video"_s);
    }

    void importBacksUpFirst()
    {
        const QTemporaryDir home;
        const QTemporaryDir old;
        QCOMPARE(run(old, u"init"_s) + run(home, u"init"_s), 0);
        QCOMPARE(run(old, u"set"_s, u"speed"_s, u"G2"_s), 0);
        QCOMPARE(run(home, u"import"_s, old.filePath(u"Config.pmx"_s)), 0);
        QCOMPARE(QDir(home.filePath(u"backups"_s)).entryList({u"Config.pmx.bak-*"_s}).size(), 1);
    }

private:
    static int run(const QTemporaryDir &home, const QString &word, const QString &first = {},
                   const QString &second = {})
    {
        const auto is = [&](const StoreCommand &command) { return word == QLatin1StringView(command.name); };
        const auto found = std::ranges::find_if(storeCommands(), is);
        CommonOptions options;
        options.home = home.path();
        return found == storeCommands().end() ? -1 : static_cast<int>(found->run(options, first, second));
    }
};

QTEST_GUILESS_MAIN(tst_storewords)
#include "tst_storewords.moc"
