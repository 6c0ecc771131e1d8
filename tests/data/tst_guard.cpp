#include "backupkeeping.h"
#include "backups.h"
#include "columns.h"
#include "csv.h"
#include "journal.h"
#include "oddrows.h"
#include "otherprogram.h"
#include "ownfiles.h"
#include "queries.h"
#include "recordings.h"
#include "seeds.h"
#include "settingkeys.h"
#include "settings.h"
#include "storeexport.h"
#include "storeinspection.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// What keeps stores, recordings and backups trustworthy.
class tst_guard : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(createStore(m_master.filePath(u"Config.pmx"_s))); }

    void init()
    {
        m_folder.emplace();
        QVERIFY(QFile::copy(m_master.filePath(u"Config.pmx"_s), path()));
    }

    void cleanup() { QCOMPARE(QSqlDatabase::connectionNames(), QStringList()); }

    void refused_data()
    {
        columns<QStringList, QString, QString>({"made", "quick", "whole"});
        const auto row = [](const char *name, const QStringList &made, const QString &quick, const QString &whole) {
            QTest::newRow(name) << made << quick << whole;
        };
        const QString fine = u"done"_s;
        const QString foreign = u"STORE_FOREIGN"_s;
        row("as it ships", {}, fine, fine);
        row("a trigger that wipes", {u"create trigger t after insert on Dados begin delete from Master; end"_s},
            foreign, foreign);
        row("Master is a view",
            {u"alter table Master rename to X"_s, u"create view Master as select rowid, * from X"_s}, foreign, foreign);
        row("a virtual table", {u"create virtual table v using rtree(a, b, c)"_s}, foreign, foreign);
        row("of another program", {u"PRAGMA application_id = 252006673"_s}, foreign, foreign);
        row("no mark at all", {u"PRAGMA application_id = 0"_s, u"PRAGMA user_version = 0"_s}, fine, fine);
        row("of a later version", {u"PRAGMA user_version = 99"_s}, u"STORE_NEWER"_s, u"STORE_NEWER"_s);
        row("a column is gone", {u"alter table Master drop column G3"_s}, foreign, foreign);
        row("a table is gone", {u"drop table Comandos"_s}, foreign, foreign);
        row("texts turned to numbers",
            {u"alter table Comandos drop column Info2"_s, u"alter table Comandos add column Info2 integer"_s}, foreign,
            foreign);
        row("a column that computes",
            {u"alter table Comandos drop column Info3"_s,
             u"alter table Comandos add column Info3 text as (hex(zeroblob(900))) virtual"_s},
            foreign, foreign);
        row("a huge text", {u"Update Master set G1 = hex(zeroblob(40000)) Where rowid = 3"_s}, fine, foreign);
        row("bytes for a text", {u"Insert into Dados (Aparelho, Comando, Dados) values ('IP 7', 'x', x'00ff')"_s}, fine,
            foreign);
        row("a text for a number", {u"Update Master set TIPO = 'two' Where rowid = 3"_s}, fine, foreign);
        row("rows without end",
            {u"Insert into Comandos (Comando) with recursive n(i) as (select 1 union all select i + 1 from n where i < "
             "20001) select i from n"_s},
            fine, foreign);
        row("write-ahead log", {u"PRAGMA journal_mode = WAL"_s}, fine, fine);
    }

    void refused()
    {
        QFETCH(QStringList, made);
        QFETCH(QString, whole);
        OtherProgram(path()).runAll(made);
        const auto before = contentsOf(m_folder->path());
        QTEST(keyOf(inspectStore(path(), StoreRole::Reference, Depth::Quick)), "quick");
        const Result<Done> outcome = inspectStore(path(), StoreRole::Reference, Depth::Whole);
        QCOMPARE(keyOf(outcome), whole);
        QCOMPARE(contentsOf(m_folder->path()), before);
        if (outcome)
            return;
        QCOMPARE(outcome.trouble().what.arguments.value(0), QDir::toNativeSeparators(path()));
        QVERIFY(!outcome.trouble().what.arguments.value(1).isEmpty());
    }

    // Nobody looks closely at each opening; what would keep the program busy is refused all the same.
    void limitsHoldAtEachOpening_data()
    {
        columns<QString, QString>({"made", "key"});
        const QString many = u"with recursive n(i) as (select 1 union all select i + 1 from n where i < 300000) "_s;
        QTest::newRow("rails without end")
            << u"Insert into Master (Modelo, TIPO, Orig) "_s + many + u"select 'IP 7', 1, i from n"_s
            << u"STORE_FOREIGN"_s;
        QTest::newRow("recordings without end")
            << u"Insert into Dados (Aparelho, Comando) "_s + many + u"select 'IP 7', i from n"_s << u"STORE_FOREIGN"_s;
        QTest::newRow("a name beyond every page")
            << u"Update Comandos set Info = hex(zeroblob(40000)) Where rowid = 3"_s << u"STORE_FOREIGN"_s;
        QTest::newRow("bytes without end for a number")
            << u"Update Master set TIPO = zeroblob(70000) Where rowid = 3"_s << u"STORE_FOREIGN"_s;
        QTest::newRow("a long text of the longest kind")
            << u"Update Master set G1 = printf('%.*c', 65536, 'x') Where rowid = 3"_s << u"done"_s;
        QTest::newRow("many boards") << u"Insert into Surveys (Id) "_s + many + u"select i from n where i < 30000"_s
                                     << u"done"_s;
    }

    void limitsHoldAtEachOpening()
    {
        QFETCH(QString, made);
        QVERIFY(Store::open(path(), Store::Access::Read, 0ms)); // that it was good once is no excuse
        OtherProgram(path()).run(made);
        QTEST(keyOf(Store::open(path(), Store::Access::Read, 0ms)), "key");
        QTEST(keyOf(Store::open(path(), Store::Access::Write, 0ms)), "key");
    }

    void tooLongARecordingIsNotRead()
    {
        OtherProgram(path()).runAll(
            {u"Insert into Dados (Aparelho, Comando, Dados) values ('IP 7', 'x', printf('%.*c', 17000000, 'x'))"_s,
             u"Insert into Surveys (Id) values ('1')"_s,
             u"Insert into SurveyReplies (Survey, Reply) values ('1', printf('%.*c', 17000000, 'x'))"_s});
        const Store reader = std::move(*Store::open(path(), Store::Access::Read, 0ms));
        QCOMPARE(keyOf(recordingFor(reader, u"IP 7"_s, u"x"_s)), u"STORE_FOREIGN"_s);
        QCOMPARE(keyOf(allRecordings(reader)), u"STORE_FOREIGN"_s);
        QCOMPARE(keyOf(journalEntry(reader, u"1"_s)), u"STORE_FOREIGN"_s);
    }

    // Else a phone could lock the technician out with one line.
    void nothingIsKeptThatCouldNotBeRead()
    {
        Store writer = store();
        const auto write = [&](const QString &text) {
            return keyOf(writer.run(kWriteReading, {{u":reading"_s, text}, {u":deviation"_s, u""_s}, {u":id"_s, 1}}));
        };
        QCOMPARE(write(QString(70000, u'9')), u"STORE_FAILED"_s);
        QCOMPARE(write(QString(60000, u'9')), u"done"_s);
        QCOMPARE(keyOf(saveRecording(writer, {u"IP 7"_s, u"x"_s, QString(70000, u'9')})), u"done"_s);
        QCOMPARE(keyOf(Store::open(path(), Store::Access::Read, 0ms)), u"done"_s);
    }

    void oddRowsAreToldAndRemoved()
    {
        OtherProgram other(path());
        const QString before = other.text(u"Select (select count(*) from Master), (select count(*) from i)"_s);
        other.runAll(
            {u"Update Master set RefV = '1.8 volts' Where rowid = 1"_s,
             u"Update Master set RefV = '1,8' Where rowid = 2"_s,
             u"Insert into Master (Modelo, Orig) values ('IP 9', 'Buck0')"_s,
             u"Insert into i (Aparelho, i) values ('IP 7', '9x75-far'), ('IP 7', 'x'), ('IP 6', '7x10-hidden')"_s,
             u"Insert into Rf (Modelo, Malha, Tipo) values ('IP 7', 'VREG', 'Z')"_s,
             u"Insert into TakenReferences (Modelo, TIPO, Orig, RefV) values ('IP 7', 1, 'a', 'inf')"_s,
             u"Insert into GoodBoards (Modelo, TIPO, Orig, Board, Volts) values ('IP 7', 1, 'a', 'b', '')"_s,
             u"Insert into Settings (Name, Value) values ('probe-address', 'file:///etc/passwd'), "
             "('logo', '/away/logo.png'), ('nobody', 'knows')"_s});
        QCOMPARE(keyOf(inspectStore(path(), StoreRole::Reference, Depth::Whole)), u"done"_s);
        const auto findings = storeFindings(path(), StoreRole::Reference, Depth::Whole);
        QStringList what;
        for (const StoreFinding &finding : *findings)
            what += finding.what.chopped(12);
        QCOMPARE(what, (QStringList{u"the rail Buck0 is of no known model: IP 9"_s,
                                    u"the reference of IP 6 2 Buck0 is no number: 1.8 volts"_s,
                                    u"IP 7 VREG is of no known kind: Z"_s, u"IP 7 has no such bus: 9x75-far"_s,
                                    u"IP 7 has no such bus: x"_s, u"IP 6 has no such bus: 7x10-hidden"_s,
                                    u"the reference of IP 7 1 a is no number: inf"_s,
                                    u"the reading of IP 7 1 a b is no number: "_s,
                                    u"probe-address cannot be: file:///etc/passwd"_s}));
        Store writer = store();
        QCOMPARE(*removeOddRows(writer), 9);
        QCOMPARE(other.text(u"Select (select count(*) from Master), (select count(*) from i)"_s), before);
        QCOMPARE(other.text(u"Select RefV from Master Where rowid < 3"_s), u"|1,8"_s);
        QCOMPARE(other.text(u"Select Name from Settings order by Name"_s), u"logo|nobody"_s);
    }

    void brokenFiles_data()
    {
        columns<int, QByteArray, int, QString>({"from", "bytes", "size", "key"});
        QTest::newRow("another kind of file")
            << 0 << QByteArray("\x00\x01\x00\x00Standard Jet DB", 19) << -1 << u"STORE_FOREIGN"_s;
        QTest::newRow("nothing in it") << 0 << QByteArray() << 0 << u"STORE_DAMAGED"_s;
        QTest::newRow("cut in the head") << 0 << QByteArray() << 50 << u"STORE_DAMAGED"_s;
        QTest::newRow("cut in the middle") << 0 << QByteArray() << 20480 << u"STORE_DAMAGED"_s;
        QTest::newRow("the schema overwritten") << 100 << QByteArray(3000, '\xa5') << -1 << u"STORE_DAMAGED"_s;
        QTest::newRow("a page overwritten") << 16384 << QByteArray(4096, '\x5a') << -1 << u"STORE_DAMAGED"_s;
    }

    void brokenFiles()
    {
        QFETCH(int, from);
        QFETCH(QByteArray, bytes);
        QFETCH(int, size);
        QFile file(path());
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.seek(from) && file.write(bytes) == bytes.size());
        QVERIFY(size < 0 || file.resize(size));
        file.close();
        const auto before = contentsOf(m_folder->path());
        QTEST(keyOf(inspectStore(path(), StoreRole::Reference, Depth::Whole)), "key");
        QCOMPARE(contentsOf(m_folder->path()), before);
    }

    void unfinishedWriteIsLeftAlone()
    {
        QTemporaryDir killed;
        const QString copy = killed.filePath(u"Config.pmx"_s);
        OtherProgram other(path());
        other.leaveUnfinished(copy);
        const auto before = contentsOf(killed.path());
        QCOMPARE(before.size(), 2);
        QCOMPARE(keyOf(inspectStore(copy, StoreRole::Reference, Depth::Whole)), u"done"_s);
        QCOMPARE(contentsOf(killed.path()), before);

        other.run(u"BEGIN EXCLUSIVE"_s);
        QCOMPARE(keyOf(inspectStore(path(), StoreRole::Reference, Depth::Quick)), u"STORE_LOCKED"_s);
    }

    void findingsAreFitToBeShown()
    {
        OtherProgram(path()).runAll({u"Insert into Tools default values"_s, u"Delete from Combos"_s,
                                     u"Insert into Dados (Aparelho, Comando) values ('IP 7', char(27) || '[2J'), "
                                     "('ip 7', char(27) || '[2j')"_s});
        const auto findings = storeFindings(path(), StoreRole::Reference, Depth::Whole);
        QVERIFY(findings);
        QStringList lines;
        for (const StoreFinding &finding : *findings)
            lines += finding.where + u": "_s + finding.what;
        QCOMPARE(lines, (QStringList{u"Tools: 2 rows instead of one"_s, u"Combos: 0 rows instead of one"_s,
                                     u"Dados: 2 recordings of IP 7: \\x1B[2J"_s}));
    }

    void olderStoreGetsItsTables()
    {
        OtherProgram other(path());
        other.runAll({u"drop table RecordingHash"_s, u"drop table Settings"_s,
                      u"Insert into Dados (Aparelho, Comando, Dados) values ('IP 7', 'old', 'reply')"_s});
        {
            const Store reader = std::move(*Store::open(path(), Store::Access::Read, 0ms));
            QCOMPARE((*recordingFor(reader, u"IP 7"_s, u"old"_s))->integrity, Integrity::Unverified);
        }
        Store writer = store();
        QVERIFY(setSetting(writer, u"a"_s, u"b"_s));
        QVERIFY(saveRecording(writer, {u"IP 7"_s, u"old"_s, u"again"_s}));
        QVERIFY((*recordingFor(writer, u"IP 7"_s, u"OLD"_s))->intact());
    }

    void recordingComesBack_data()
    {
        QTest::addColumn<QString>("reply");
        QTest::newRow("line ends of every kind") << u"a\r\nb\nc\r"_s;
        QTest::newRow("a NUL in the middle") << u"a\0b"_s;
        QTest::newRow("every byte") << [] {
            QString all;
            for (char16_t byte = 0; byte < 256; ++byte)
                all += QChar(byte);
            return all;
        }();
        QTest::newRow("looks like a number") << u"007.10"_s;
        QTest::newRow("long") << QString(300000, u'ÿ');
        QTest::newRow("notes alone") << u""_s;
    }

    void recordingComesBack()
    {
        QFETCH(QString, reply);
        const Recording recording{u"IP 7"_s, u"pmuadc --read all"_s, reply, u"nota"_s, u"note"_s, u"ño"_s};
        Store writer = store();
        QVERIFY(saveRecording(writer, recording));
        const auto kept = recordingFor(writer, recording.aparelho, recording.comando);
        QVERIFY(kept && *kept);
        QCOMPARE((*kept)->recording, recording);
        QVERIFY((*kept)->intact());
    }

    void noPairTwice()
    {
        OtherProgram other(path());
        other.run(u"Insert into Dados (Aparelho, Comando, Dados, Info) values ('IP 7', 'a', '', 'kept')"_s);
        Store writer = store();
        QVERIFY(saveRecording(writer, {u"IP 7"_s, u"a"_s, u"filled"_s}));
        QVERIFY(saveRecording(writer, {u"ip 7"_s, u"A"_s, u"other letters"_s}));
        QVERIFY(saveRecording(writer, {u"IP 7 "_s, u"a"_s, u"another model"_s}));
        QCOMPARE(other.text(u"Select Comando || Dados from Dados order by rowid"_s),
                 u"aother letters|aanother model"_s);
        QCOMPARE(other.text(u"Select count(*) from RecordingHash"_s), u"2"_s);
        QVERIFY(deleteRecording(writer, {u"IP 7"_s, u"a"_s}));
        QVERIFY(!*recordingFor(writer, u"IP 7"_s, u"a"_s));
        QCOMPARE(other.text(u"Select Aparelho from Dados"_s), u"IP 7 "_s);
        QCOMPARE(other.text(u"Select Aparelho from RecordingHash"_s), u"IP 7 "_s);
    }

    void whoWroteTheRecording()
    {
        {
            Store writer = store();
            QVERIFY(saveRecording(writer, {u"IP 7"_s, u"ours"_s, u"reply"_s}));
            QVERIFY(saveRecording(writer, {u"IP 7"_s, u"changed"_s, u"reply"_s}));
        }
        OtherProgram(path()).runAll(
            {u"Insert into Dados (Aparelho, Comando, Dados) values ('IP 7', 'theirs', 'reply')"_s,
             u"Update Dados set Dados = 'Reply' Where Comando = 'changed'"_s});
        QCOMPARE(integrity(u"ours"_s), Integrity::Intact);
        QCOMPARE(integrity(u"theirs"_s), Integrity::Unverified);
        QCOMPARE(integrity(u"changed"_s), Integrity::Changed);
        const auto findings = storeFindings(path(), StoreRole::Reference, Depth::Whole);
        QCOMPARE(findings->size(), 1);
        QCOMPARE(findings->first().what, u"the recording IP 7: changed changed since it was saved"_s);
    }

    // The engine's own check knows pages and trees; a flipped bit inside a text is as good to it as any other text.
    void everyFlippedBitShows()
    {
        const QString reply = u"BIST buck3: 1200.0000 mV é "_s.repeated(20);
        {
            Store writer = store();
            QVERIFY(saveRecording(writer, {u"IP 7"_s, u"flip"_s, reply}));
        }
        const QByteArray whole = contentsOf(m_folder->path()).value(u"Config.pmx"_s);
        const QByteArray stored = reply.toUtf8();
        const qsizetype begin = whole.indexOf(stored);
        QVERIFY(begin > 0);
        for (qsizetype place = 0; place < stored.size(); place += 3) {
            QByteArray flipped = whole;
            flipped[begin + place] = static_cast<char>(flipped[begin + place] ^ (1 << (place % 8)));
            QFile file(path());
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(flipped) == flipped.size());
            file.close();
            QVERIFY2(integrity(u"flip"_s) == Integrity::Changed, qPrintable(QString::number(place)));
        }
    }

    void fullDiskKeepsTheRecording()
    {
        Store writer = store();
        const Recording good{u"IP 7"_s, u"a"_s, u"good"_s};
        QVERIFY(saveRecording(writer, good));
        QVERIFY(writer.run({"Limit", "PRAGMA max_page_count = 1"})); // the engine lowers it to what there is
        QCOMPARE(keyOf(saveRecording(writer, {u"IP 7"_s, u"a"_s, QString(200000, u'x')})), u"STORE_FULL"_s);
        QCOMPARE(keyOf(saveRecording(writer, {u"IP 7"_s, u"b"_s, QString(200000, u'x')})), u"STORE_FULL"_s);
        QCOMPARE((*recordingFor(writer, u"IP 7"_s, u"a"_s))->recording, good);
        QVERIFY((*recordingFor(writer, u"IP 7"_s, u"a"_s))->intact());
        QVERIFY(!*recordingFor(writer, u"IP 7"_s, u"b"_s));
    }

    void spareBackups_data()
    {
        // Hours before noon of a Thursday, and the places that may go.
        columns<QList<int>, QList<qsizetype>>({"hours", "spare"});
        constexpr int kDay = 24;
        const auto row = [](const char *name, const QList<int> &hours, const QList<qsizetype> &spare) {
            QTest::newRow(name) << hours << spare;
        };
        row("none", {}, {});
        row("five of one hour", {0, 0, 0, 0, 0}, {});
        row("more starts than five a day", {0, 1, 2, 3, 4, 5, 6, 7}, {5, 6, 7});
        row("yesterday's last stays", {0, 1, 2, 3, 4, 5, kDay, kDay + 1}, {5, 7});
        row("a week by day", {0, 24, 48, 72, 96, 120, 144, 145}, {7});
        // The day of the week before last: Thursday to Monday are of one week, Sunday is of the one before.
        row("then by week", {0, 0, 0, 0, 0, 7 * kDay, 8 * kDay, 9 * kDay, 10 * kDay, 11 * kDay}, {6, 7, 8});
        row("a quarter, no more", {0, 0, 0, 0, 0, 90 * kDay, 91 * kDay}, {6});
        row("old ones stay while they are the last", {400 * kDay, 500 * kDay}, {});
        row("a clock that was ahead", {-3000 * kDay, 0, 1, 2, 3, 4, 5}, {5, 6});
    }

    void spareBackups()
    {
        QFETCH(QList<int>, hours);
        const QDateTime noon(QDate(2026, 3, 12), QTime(12, 0), Qt::UTC);
        QList<QDateTime> made;
        for (const int before : hours)
            made += noon.addSecs(-3600LL * before);
        QTEST(::spareBackups(made, noon.date()), "spare");
    }

    void backupsRoll()
    {
        const QDateTime noon(QDate(2026, 3, 12), QTime(12, 0), Qt::UTC);
        const auto names = [this] { return contentsOf(backupFolder(path())).keys(); };
        const auto choose = [this](const QString &model) {
            Store writer = store();
            return bool(rememberModel(writer, model));
        };
        QCOMPARE(*rollBackups(path(), 0ms, noon), true);
        QCOMPARE(*rollBackups(path(), 0ms, noon), false);
        QVERIFY(choose(u"IP 6"_s));
        QCOMPARE(*rollBackups(path(), 0ms, noon), true);
        QVERIFY(choose(u"IP 6"_s)); // written again, the same
        QCOMPARE(*rollBackups(path(), 0ms, noon), false);
        QCOMPARE(names(),
                 (QStringList{u"Config.pmx.bak-20260312-120000000"_s, u"Config.pmx.bak-20260312-120000001"_s}));
        const Result<Store> kept =
            Store::open(backupFolder(path()) + u"/Config.pmx.bak-20260312-120000001"_s, Store::Access::Read, 0ms);
        QCOMPARE(*lastModel(*kept), u"IP 6"_s);

        OtherProgram(path()).run(u"PRAGMA application_id = 252006673"_s);
        QCOMPARE(keyOf(rollBackups(path(), 0ms, noon)), u"BACKUP_FAILED"_s);
        QCOMPARE(names().size(), 2);
    }

    // A bench that is started again and again in the morning has yesterday's store all the same.
    void startsDoNotPushOut()
    {
        const QString folder = backupFolder(path());
        const QDateTime now = QDateTime::currentDateTimeUtc();
        QVERIFY(rollBackups(path(), 0ms, now.addDays(-1)));
        QFile yesterday(folder + u'/' + contentsOf(folder).firstKey());
        QVERIFY(yesterday.open(QIODevice::ReadWrite) &&
                yesterday.setFileTime(now.addDays(-1), QFileDevice::FileModificationTime));
        yesterday.close();
        QFile other(folder + u"/Config.pmx.bak1"_s); // of an earlier version, and too old
        QVERIFY(other.open(QIODevice::WriteOnly) &&
                other.setFileTime(now.addDays(-200), QFileDevice::FileModificationTime));
        other.close();
        QVERIFY(QFile::copy(path(), folder + u"/Config-mine.pmx"_s));
        for (int start = 0; start < 9; ++start) {
            {
                Store writer = store();
                QVERIFY(setSetting(writer, u"n"_s, QString::number(start)));
            }
            QCOMPARE(*rollBackups(path(), 0ms, now), true);
        }
        QCOMPARE(contentsOf(folder).size(), 5 + 1 + 1);
        QVERIFY(yesterday.exists() && !other.exists() && QFile::exists(folder + u"/Config-mine.pmx"_s));
    }

    void lockedStoreIsTold()
    {
        OtherProgram other(path());
        other.run(u"BEGIN EXCLUSIVE"_s);
        QCOMPARE(keyOf(rollBackups(path())), u"STORE_LOCKED"_s);
        QCOMPARE(keyOf(backupStore(path(), freeBackupName(path()))), u"STORE_LOCKED"_s);
    }

    void twoBackupsWithinASecond()
    {
        for (int i = 0; i < 3; ++i)
            QCOMPARE(keyOf(backupStore(path(), freeBackupName(path()))), u"done"_s);
        QCOMPARE(contentsOf(backupFolder(path())).size(), 3);
    }

    void danglingLinkIsNamed()
    {
        const QString link = m_folder->filePath(u"Link.pmx"_s);
        QVERIFY(QFile::link(m_folder->filePath(u"gone"_s), link));
        for (const Result<Done> &outcome :
             {createStore(link), inspectStore(link, StoreRole::Reference, Depth::Quick)}) {
            QCOMPARE(keyOf(outcome), u"STORE_FAILED"_s);
            QVERIFY(outcome.trouble().what.arguments.value(1).contains(u"gone"_s));
        }
    }

#ifdef Q_OS_UNIX
    void ownerAlone()
    {
        const auto others = [](const QString &file) {
            return QFileInfo(file).permissions() & (QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                                    QFile::ReadOther | QFile::WriteOther | QFile::ExeOther);
        };
        const QString made = m_folder->filePath(u"new/Config.pmx"_s);
        QVERIFY(createStore(made) && rollBackups(made) && backupStore(made, m_folder->filePath(u"new/b"_s)));
        const QString rolled = backupFolder(made) + u'/' + contentsOf(backupFolder(made)).firstKey();
        for (const QString &file :
             {m_folder->filePath(u"new"_s), made, backupFolder(made), rolled, m_folder->filePath(u"new/b"_s)})
            QVERIFY2(!others(file), qPrintable(file));
        OtherProgram writer(made);
        writer.runAll({u"BEGIN"_s, u"Update Master set G1 = 'x'"_s});
        QVERIFY(!others(made + u"-journal"_s));
    }

    // A folder that a group shares stays usable for the group.
    void sharedFolder()
    {
        const QString shared = m_folder->filePath(u"shared"_s);
        QVERIFY(QDir().mkdir(shared));
        QVERIFY(QFile::setPermissions(shared, QFile::Permissions(0x7070)));
        QVERIFY(createStore(shared + u"/Config.pmx"_s) && rollBackups(shared + u"/Config.pmx"_s));
        QVERIFY(QFileInfo(shared + u"/Config.pmx"_s).permission(QFile::ReadGroup | QFile::WriteGroup));
        QVERIFY(!QFileInfo(shared + u"/Config.pmx"_s).permission(QFile::ReadOther));
        QVERIFY(QFileInfo(shared + u"/backups"_s).permission(QFile::WriteGroup | QFile::ExeGroup));
    }

    void openFoldersAreClosedOnce()
    {
        QVERIFY(QFile::setPermissions(path(), QFile::Permissions(0x6044)));
        QCOMPARE(closeToOthers(m_folder->path()), 1);
        QVERIFY(!QFileInfo(path()).permission(QFile::ReadOther));
        QVERIFY(QFile::setPermissions(path(), QFile::Permissions(0x6044)));
        QCOMPARE(closeToOthers(m_folder->path()), 0); // opened again on purpose
        QVERIFY(QFileInfo(path()).permission(QFile::ReadOther));
    }
#endif

    void failingBackupLeavesNothing()
    {
        QFile blocking(m_folder->filePath(u"backups"_s));
        QVERIFY(blocking.open(QIODevice::WriteOnly));
        QCOMPARE(keyOf(rollBackups(path())), u"BACKUP_FAILED"_s);
        QVERIFY(blocking.remove());
        if (!kCanLimitFiles)
            QSKIP("no limit on file sizes here");
        const auto backUp = [this] {
            return keyOf(rollBackups(path())) + u' ' + keyOf(backupStore(path(), m_folder->filePath(u"copy.pmx"_s)));
        };
        const QString keys = onTightDisk(backUp);
        QVERIFY2(keys.startsWith(u"BACKUP_FAILED STORE_F"_s), qPrintable(keys));
        QCOMPARE(contentsOf(m_folder->path()).keys(), QStringList(u"Config.pmx"_s));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList(u"backups"_s));
        QCOMPARE(QDir(backupFolder(path())).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
                 QStringList());
    }

    void backupNeverOverwrites()
    {
        const QString target = m_folder->filePath(u"deep/folder/copy.pmx"_s);
        QCOMPARE(keyOf(backupStore(path(), target)), u"done"_s);
        const auto before = contentsOf(m_folder->filePath(u"deep/folder"_s));
        QCOMPARE(before.keys(), QStringList(u"copy.pmx"_s));
        QCOMPARE(keyOf(backupStore(path(), target)), u"STORE_EXISTS"_s);
        QCOMPARE(keyOf(backupStore(m_folder->filePath(u"none"_s), m_folder->filePath(u"b"_s))), u"STORE_MISSING"_s);
        QCOMPARE(contentsOf(m_folder->filePath(u"deep/folder"_s)), before);
        QCOMPARE(keyOf(inspectStore(target, StoreRole::Reference, Depth::Whole)), u"done"_s);
    }

    void csvCells_data()
    {
        columns<QString, QString>({"value", "cell"});
        QTest::newRow("plain") << u"1.80 V"_s << u"1.80 V"_s;
        QTest::newRow("formula") << u"=1+cmd|' /C calc'!A0"_s << u"'=1+cmd|' /C calc'!A0"_s;
        QTest::newRow("minus") << u"-0.2 %"_s << u"'-0.2 %"_s;
        QTest::newRow("wide equals sign") << u"\uff1dA1"_s << u"'\uff1dA1"_s;
        QTest::newRow("tab in front") << u"\t=A1"_s << u"\"'\t=A1\""_s;
        QTest::newRow("line end in front") << u"\r=A1"_s << u"\"'\r=A1\""_s;
        QTest::newRow("an apostrophe is no guard") << u"'=A1"_s << u"''=A1"_s;
        QTest::newRow("quotes and commas") << u"a \"b\", c"_s << u"\"a \"\"b\"\", c\""_s;
        QTest::newRow("lines") << u"a\nb\r\n"_s << u"\"a\nb\r\n\""_s;
        QTest::newRow("empty") << u""_s << u""_s;
        QTest::newRow("unseen bytes") << u"a\0\x9b"_s << u"a\0\x9b"_s;
    }

    void csvCells()
    {
        QFETCH(QString, value);
        QFETCH(QString, cell);
        const QString text = csvText({{u"head"_s, u"x"_s}, {value, value}});
        QCOMPARE(text, u"head,x\r\n"_s + cell + u',' + cell + u"\r\n"_s);
        const auto records = csvRecords(text);
        QVERIFY(records);
        QCOMPARE(records->size(), 2);
        QCOMPARE(unguarded(records->at(1).at(0)), value);
        QCOMPARE(unguarded(records->at(1).at(1)), value);
    }

    void exportRefusesToOverwrite()
    {
        const Store reader = store();
        const QString folder = m_folder->filePath(u"tables"_s);
        QVERIFY(exportStore(reader, folder));
        const auto before = contentsOf(folder);
        QVERIFY(before.value(u"Ultimo.csv"_s) == "Modelo\r\n");
        QVERIFY(before.value(u"Tools.csv"_s) == "Idioma,Nome,syncbd\r\n1,,0\r\n");
        QCOMPARE(csvRecords(QString::fromUtf8(before.value(u"Master.csv"_s)))->size(), 709);
        QCOMPARE(keyOf(exportStore(reader, folder)), u"STORE_EXISTS"_s);
        QVERIFY(QFile::remove(folder + u"/Master.csv"_s)); // the first one can be written, the next cannot
        QCOMPARE(keyOf(exportStore(reader, folder)), u"STORE_EXISTS"_s);
        QCOMPARE(contentsOf(folder).size(), before.size() - 1);
        QCOMPARE(keyOf(exportStore(reader, path())), u"STORE_FAILED"_s);
    }

    void namedSettings_data()
    {
        columns<QString, QString, QString>({"name", "value", "key"});
        QTest::newRow("language") << u"language"_s << u"es"_s << u"done"_s;
        QTest::newRow("language by number") << u"language"_s << u"2"_s << u"SETTING_INVALID"_s;
        QTest::newRow("two words of the choice") << u"auto-reconnect"_s << u"on off"_s << u"SETTING_INVALID"_s;
        QTest::newRow("a name with accents") << u"name"_s << u"Oficina São João"_s << u"done"_s;
        QTest::newRow("a name of two lines") << u"name"_s << u"a\nb"_s << u"SETTING_INVALID"_s;
        QTest::newRow("no such model") << u"model"_s << u"IP 9"_s << u"SETTING_INVALID"_s;
        QTest::newRow("no decimals of volts") << u"pmu-volts"_s << u"0"_s << u"SETTING_INVALID"_s;
        QTest::newRow("an address") << u"help-video"_s << u"https://example.org/a?b=1"_s << u"done"_s;
        QTest::newRow("a file is no address") << u"help-video"_s << u"file:///etc/passwd"_s << u"SETTING_INVALID"_s;
        QTest::newRow("an address without a host") << u"report-host"_s << u"https://"_s << u"SETTING_INVALID"_s;
        QTest::newRow("a logo that is not there") << u"logo"_s << u"/nowhere/logo.png"_s << u"SETTING_NO_FILE"_s;
        QTest::newRow("not known") << u"nome"_s << u"x"_s << u"SETTING_UNKNOWN"_s;
    }

    void namedSettings()
    {
        QFETCH(QString, name);
        QFETCH(QString, value);
        QFETCH(QString, key);
        Store writer = store();
        const QString before = namedSetting(writer, name) ? *namedSetting(writer, name) : QString();
        QCOMPARE(keyOf(setNamedSetting(writer, name, value)), key);
        if (key != u"SETTING_UNKNOWN"_s)
            QCOMPARE(*namedSetting(writer, name), key == u"done"_s ? value : before);
    }

private:
    QString path() const
    {
        return m_folder->filePath(u"Config.pmx"_s);
    }
    Store store() const
    {
        return std::move(*Store::open(path(), Store::Access::Write, 0ms));
    }
    Integrity integrity(const QString &command) const
    {
        const Store reader = std::move(*Store::open(path(), Store::Access::Read, 0ms));
        return (*recordingFor(reader, u"IP 7"_s, command))->integrity;
    }

    QTemporaryDir m_master;
    std::optional<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(tst_guard)
#include "tst_guard.moc"
