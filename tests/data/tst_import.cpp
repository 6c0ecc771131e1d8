#include "columns.h"
#include "otherprogram.h"
#include "queries.h"
#include "recordings.h"
#include "seeds.h"
#include "store.h"
#include "userimport.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// What becomes of the user store of an earlier version.
class tst_import : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(createStore(m_master.filePath(u"Config.pmx"_s)));
        QVERIFY(QFile::copy(m_master.filePath(u"Config.pmx"_s), m_master.filePath(u"User.pmx"_s)));
        OtherProgram(m_master.filePath(u"User.pmx"_s)).run(u"Delete from Comandos"_s);
    }

    void init()
    {
        m_folder.emplace();
        for (const QString &name : {u"Config.pmx"_s, u"User.pmx"_s})
            QVERIFY(QFile::copy(m_master.filePath(name), m_folder->filePath(name)));
    }

    void steps_data()
    {
        columns<QString, bool, Occasion, ImportStep, QString, QString>(
            {"before", "hasUserStore", "occasion", "step", "noted", "refused"});
        const auto row = [](const char *name, const QString &before, bool has, Occasion occasion, ImportStep step,
                            const QString &noted, const QString &refused) {
            QTest::newRow(name) << before << has << occasion << step << noted << refused;
        };
        row("first start", u"0"_s, true, Occasion::Start, ImportStep::Ask, u"0"_s, u"1"_s);
        row("second start", u"1"_s, true, Occasion::Start, ImportStep::Ask, u"1"_s, u"2"_s);
        row("third start", u"2"_s, true, Occasion::Start, ImportStep::AnsweredBefore, u"2"_s, u"2"_s);
        row("never written", u""_s, true, Occasion::Start, ImportStep::AnsweredBefore, u""_s, u""_s);
        row("asked for", u"2"_s, true, Occasion::AboutBox, ImportStep::Ask, u"2"_s, u"2"_s);
        row("asked for before the start asked", u"0"_s, true, Occasion::AboutBox, ImportStep::Ask, u"0"_s, u"1"_s);
        row("nothing there", u"0"_s, false, Occasion::Start, ImportStep::NoUserStore, u"2"_s, u"2"_s);
        row("asked for nothing", u"1"_s, false, Occasion::AboutBox, ImportStep::NoUserStore, u"2"_s, u"2"_s);
    }

    void steps()
    {
        QFETCH(QString, before);
        QFETCH(bool, hasUserStore);
        QFETCH(Occasion, occasion);
        OtherProgram other(path());
        other.run(u"Update Tools set syncbd = '%1'"_s.arg(before));
        QVERIFY(hasUserStore || QFile::remove(user()));
        Store writer = store();
        const Result<ImportStep> step = importStep(writer, user(), occasion);
        QVERIFY(step);
        QTEST(*step, "step");
        QTEST(other.text(u"Select syncbd from Tools"_s), "noted");
        QVERIFY(declineImport(writer));
        QTEST(other.text(u"Select syncbd from Tools"_s), "refused");
        QCOMPARE(other.text(u"Select count(*) from Dados"_s), u"0"_s);
    }

    void everyTableByItsRule()
    {
        OtherProgram(user()).runAll(
            {// The same net once as a core rail and once as a buck, then a net whose output has another number here.
             u"Delete from Master"_s,
             u"Insert into Master (Modelo, TIPO, Orig, Malha, G1, G2, G3) values ('M', 2, 'Buck1', 'NET', 'buck', '', "
             u"'x'), "
             "('M', 0, 'Buck1', 'net', 'core', '', ''), ('M', 1, 'Ldo9', 'OTHER', 'first', '', ''), "
             "('M', 1, 'Ldo1', 'GONE', 'lost', '', '')"_s,
             u"Insert into Dados (Aparelho, Comando, Dados, Info, Info2, Info3) values ('M', 'new', 'reply', 'a', 'b', "
             u"'c'), "
             "('M', 'OLD', 'theirs', '', '', 'c')"_s,
             u"Insert into Comandos (Comando, Info) values ('OURS', 'theirs'), ('mine', 'my note'), ('it''s', '')"_s,
             u"Update Combos set Combo1 = '2', Combo7 = 'G2', Combo10 = 'last'"_s});
        OtherProgram other(path());
        other.runAll(
            {u"Insert into Master (Modelo, TIPO, Orig, Malha, G1, G2) values ('M', 0, 'Buck1', 'NET', '', ''), "
             "('M', 2, 'Buck1', 'NET', 'old', 'old'), ('M', 1, 'Ldo3', 'OTHER', '', ''), ('M', 1, 'Ldo4', 'OTHER', '', '')"_s,
             u"Insert into Dados (Aparelho, Comando, Dados, Info) values ('M', 'old', 'ours', 'ours')"_s,
             u"Insert into Comandos (Comando, Info) values ('ours', 'ours')"_s});
        const auto before = contentsOf(m_folder->path()).value(u"User.pmx"_s);
        Store writer = store();
        const Result<ImportSummary> took = importUserStore(writer, user());
        QVERIFY2(took, qPrintable(took ? QString() : took.trouble().what.arguments.value(1)));
        QCOMPARE(contentsOf(m_folder->path()).value(u"User.pmx"_s), before);

        QCOMPARE(
            other.text(u"Select Orig || TIPO || ':' || G1 || G2 || G3 from Master Where Modelo = 'M' order by rowid"_s),
            u"Buck10:core|Buck12:buckx|Ldo31:first|Ldo41:"_s);
        QCOMPARE(other.text(u"Select Comando || ':' || Dados || Info || Info2 || Info3 from Dados order by rowid"_s),
                 u"old:theirsc|new:replyabc"_s);
        QCOMPARE(other.text(u"Select Info from Comandos Where Comando in ('ours', 'mine') order by Info"_s),
                 u"my note|ours"_s);
        QCOMPARE(other.text(u"Select Combo1 || Combo2 || Combo7 || Combo10 from Combos"_s), u"21G2last"_s);
        QCOMPARE(other.text(u"Select syncbd from Tools"_s), u"2"_s);
        QCOMPARE(took->rails, 3);
        QCOMPARE(took->recordings, 2);
        QCOMPARE(took->commands, 1);
        QCOMPARE(took->leftOut, 2); // the net that is gone, the command with an apostrophe
        QVERIFY((*recordingFor(writer, u"M"_s, u"old"_s))->intact());
    }

    void emptyRowsWipeNothing()
    {
        OtherProgram(user()).run(
            u"Insert into Dados (Aparelho, Comando, Info) values ('IP 7', 'a', 'a note'), ('IP 7', 'b', 'a note')"_s);
        OtherProgram other(path());
        other.runAll({u"Update Master set G1 = 'kept'"_s,
                      u"Insert into Dados (Aparelho, Comando, Dados) values ('IP 7', 'a', 'kept')"_s});
        Store writer = store();
        QCOMPARE(importUserStore(writer, user())->rails, 0);
        QCOMPARE(other.text(u"Select count(*) from Master Where G1 = 'kept'"_s), u"708"_s);
        QCOMPARE(other.text(u"Select Dados || Info from Dados order by Comando"_s), u"kept|a note"_s);
    }

    void damagedRecordingsStayOut()
    {
        {
            Store theirs = std::move(*Store::open(user(), Store::Access::Write, 0ms));
            QVERIFY(saveRecording(theirs, {u"IP 7"_s, u"a"_s, u"reply"_s}));
            QVERIFY(saveRecording(theirs, {u"IP 7"_s, u"b"_s, u"reply"_s}));
        }
        OtherProgram(user()).run(u"Update Dados set Dados = 'rezly' Where Comando = 'a'"_s);
        Store writer = store();
        const Result<ImportSummary> took = importUserStore(writer, user());
        QCOMPARE(took->recordings, 1);
        QCOMPARE(took->leftOut, 1);
        QVERIFY(!*recordingFor(writer, u"IP 7"_s, u"a"_s));
    }

    void refusedStoreChangesNothing_data()
    {
        columns<QString, QString>({"made", "key"});
        QTest::newRow("a trigger") << u"create trigger t after update on Master begin delete from Dados; end"_s
                                   << u"STORE_FOREIGN"_s;
        QTest::newRow("recordings are a view") << u"create view V as select * from Dados"_s << u"STORE_FOREIGN"_s;
        QTest::newRow("a text of 4 MB") << u"Update Combos set Combo1 = hex(zeroblob(2000000))"_s << u"STORE_FOREIGN"_s;
        QTest::newRow("newer") << u"PRAGMA user_version = 99"_s << u"STORE_NEWER"_s;
        QTest::newRow("tables that an import does not need") << u"drop table Rf"_s << u"done"_s;
    }

    void refusedStoreChangesNothing()
    {
        QFETCH(QString, made);
        QFETCH(QString, key);
        OtherProgram(user()).run(made);
        Store writer = store();
        const auto before = contentsOf(m_folder->path());
        const Result<ImportSummary> took = importUserStore(writer, user());
        QCOMPARE(keyOf(took), key);
        if (took)
            return;
        QCOMPARE(contentsOf(m_folder->path()), before);
        QCOMPARE(took.trouble().what.arguments.value(0), QDir::toNativeSeparators(user()));
    }

    void fullDiskTakesNothing()
    {
        OtherProgram(user()).runAll(
            {u"Update Master set G1 = 'theirs'"_s,
             u"Insert into Dados (Aparelho, Comando, Dados) values ('IP 7', 'a', hex(zeroblob(300000)))"_s});
        Store writer = store();
        QVERIFY(writer.run({"Limit", "PRAGMA max_page_count = 1"})); // the engine lowers it to what there is
        QCOMPARE(keyOf(importUserStore(writer, user())), u"STORE_FULL"_s);
        OtherProgram other(path());
        QCOMPARE(other.text(u"Select count(*) from Master Where G1 <> ''"_s), u"0"_s);
        QCOMPARE(other.text(u"Select count(*) from Dados"_s), u"0"_s);
        QCOMPARE(other.text(u"Select syncbd from Tools"_s), u"0"_s);
    }

private:
    QString path() const { return m_folder->filePath(u"Config.pmx"_s); }
    QString user() const { return m_folder->filePath(u"User.pmx"_s); }
    Store store() const { return std::move(*Store::open(path(), Store::Access::Write, 0ms)); }

    QTemporaryDir m_master;
    std::optional<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(tst_import)
#include "tst_import.moc"
