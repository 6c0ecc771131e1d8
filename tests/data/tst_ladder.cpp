#include "backups.h"
#include "busdevices.h"
#include "goodboards.h"
#include "journal.h"
#include "otherprogram.h"
#include "railrows.h"
#include "recordings.h"
#include "rfrows.h"
#include "schema.h"
#include "settings.h"
#include "specimen.h"
#include "store.h"
#include "storeexport.h"
#include "storeinspection.h"

#include <QCoreApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <array>
#include <cstdio>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Takes from a store what the data model does not name, and its marks.
void strip(const QString &path)
{
    OtherProgram other(path);
    for (const SchemaTable &table : schemaTables())
        if (table.origin == SchemaTable::Origin::Added)
            other.run(u"drop table if exists "_s + table.name);
    other.runAll({u"PRAGMA user_version = 0"_s, u"PRAGMA application_id = 0"_s, u"VACUUM"_s});
}

/// Every value of the given tables, and what they are made of.
QString givenTables(const QString &path)
{
    OtherProgram other(path);
    QString all;
    for (const SchemaTable &table : schemaTables())
        if (table.origin == SchemaTable::Origin::Given)
            all += other.text(u"Select sql from sqlite_master Where name = '%1'"_s.arg(table.name)) +
                   other.text(u"Select quote(%1) from %2 order by rowid"_s.arg(columnsOf(table).join(u") || quote("_s),
                                                                               table.name));
    return all;
}

QStringList backups(const QString &path)
{
    return QDir(backupFolder(path)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
}

QString keyOfOpening(const QString &path, Store::Access access)
{
    return keyOf(Store::open(path, access, 0ms));
}

} // namespace

/// Stores of earlier layouts, or without some of the tables, in the hands of this version.
class tst_ladder : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.emplace();
        QVERIFY(writeSpecimen(1, path()));
    }

    void cleanup() { QCOMPARE(QSqlDatabase::connectionNames(), QStringList()); }

    void specimenIsRead_data()
    {
        QTest::addColumn<Store::Access>("access");
        QTest::newRow("only read") << Store::Access::Read;
        QTest::newRow("opened for writing") << Store::Access::Write;
    }

    void specimenIsRead()
    {
        QFETCH(Store::Access, access);
        const Result<Store> store = Store::open(path(), access, 0ms);
        QVERIFY2(store, qPrintable(keyOf(store)));
        QCOMPARE(*technicianName(*store), u"Oficina São João"_s);
        QCOMPARE(*setting(*store, u"battery-worn"_s), u"75"_s);
        QCOMPARE(goodReadings(*store, u"IP 7"_s)->size(), 4);
        QCOMPARE(busDevices(*store, u"IP 6s"_s)->last(),
                 (BusDevice{2, u"x10"_s, u"0x10"_s, u"recorded here, 2026-11-21"_s}));

        const QList<RailRow> rails = *railRows(*store, {u"IP 7"_s, 1});
        const auto ldo4 = std::ranges::find(rails, u"Ldo4"_s, &RailRow::orig);
        QVERIFY(ldo4->isTaken);
        QCOMPARE(ldo4->source, u"recorded here, n = 2, Δ 0.1 %, 2026-11-21"_s);

        const QList<JournalSurvey> surveys = *journal(*store);
        QCOMPARE(surveys.size(), 2);
        QCOMPARE(surveys.last().note, u"water; U1801 changed"_s);
        QCOMPARE(surveys.last().serial, u"SIM01C28A382"_s);
        QCOMPARE((*journalEntry(*store, surveys.last().id))->findings.size(), 28);

        const auto kept = *recordingFor(*store, u"IP 6s"_s, u"pmuadc --read all"_s);
        QCOMPARE(kept->recording.dados, u"ldo1: 1800 mV\r\ncafé \0 end"_s);
        QCOMPARE(kept->integrity, Integrity::Intact);
        QCOMPARE((*recordingFor(*store, u"IP 7"_s, u"i2c -s 1"_s))->integrity, Integrity::Changed);
        QCOMPARE((*recordingFor(*store, u"IP 7"_s, u"tristar -p"_s))->integrity, Integrity::Unverified);
    }

    void climbs_data()
    {
        QTest::addColumn<QStringList>("made");
        QTest::addColumn<QString>("backup");
        QTest::newRow("an earlier layout") << QStringList() << u"layout1"_s;
        QTest::newRow("between two steps")
            << QStringList{u"alter table GoodBoards add column Uuid text not null default ''"_s,
                           u"PRAGMA user_version = 2"_s}
            << u"layout2"_s;
        QTest::newRow("says it is the newest, but lacks tables")
            << QStringList{u"PRAGMA user_version = 3"_s, u"drop table DeviceSources"_s} << u"layout3"_s;
        QTest::newRow("no marks") << QStringList{u"PRAGMA user_version = 0"_s, u"PRAGMA application_id = 0"_s}
                                  << u"layout0"_s;
        QTest::newRow("odd rows of another program")
            << QStringList{u"drop table SurveyFindings"_s,
                           u"drop table GoodBoards"_s,
                           u"drop table Surveys"_s,
                           u"create table Surveys (Id text, Started text, Ended text, Outcome text, Model text, "
                           "Serial text, Port text, Name text, Note text)"_s,
                           u"create table SurveyFindings (Survey text, Output text, What text, Screens text, Reading "
                           u"text, "
                           "Reference text, Source text, Deviation text, Lowest text, Highest text, Verdict text, "
                           "Line text)"_s,
                           u"create table GoodBoards (Modelo text, TIPO integer, Orig text, Board text, Volts text)"_s,
                           u"Insert into Surveys (Id) values ('a'), ('a'), (null)"_s,
                           u"Insert into SurveyFindings (Survey) values ('a'), ('a'), ('gone'), (null)"_s,
                           u"Insert into GoodBoards (Modelo) values (null), (null)"_s,
                           u"Insert into Dados (Aparelho, Comando) values ('ip 7', 'TRISTAR -p')"_s}
            << u"layout1"_s;
    }

    // Each store goes the whole way at the first opening for writing, keeps every row, and is written no more after.
    void climbs()
    {
        QFETCH(QStringList, made);
        QFETCH(QString, backup);
        OtherProgram(path()).runAll(made);
        const QString given = givenTables(path());
        QCOMPARE(keyOfOpening(path(), Store::Access::Write), u"done"_s);
        QCOMPARE(OtherProgram(path()).text(u"PRAGMA user_version"_s), u"3"_s);
        QCOMPARE(OtherProgram(path()).text(u"PRAGMA application_id"_s), u"1347246129"_s);
        QCOMPARE(givenTables(path()), given);
        QCOMPARE(backups(path()).size(), 1);
        QVERIFY2(backups(path()).first().contains(backup), qPrintable(backups(path()).first()));
        QCOMPARE(keyOf(inspectStore(path(), StoreRole::Reference, Depth::Whole)), u"done"_s);
        const auto after = contentsOf(m_folder->path());
        QCOMPARE(keyOfOpening(path(), Store::Access::Write), u"done"_s);
        QCOMPARE(contentsOf(m_folder->path()), after);
        QCOMPARE(backups(path()).size(), 1);
    }

    void sharedRowsAreTold()
    {
        QCOMPARE(keyOfOpening(path(), Store::Access::Write), u"done"_s);
        OtherProgram other(path());
        QStringList ids;
        for (const auto &[table, rows] :
             {std::pair{u"SurveyFindings"_s, 28}, {u"GoodBoards"_s, 4}, {u"RecordingIds"_s, 4}}) {
            const QStringList here = other.text(u"Select Uuid from "_s + table).split(u'|');
            QCOMPARE(here.size(), rows);
            ids += here;
        }
        ids += other.text(u"Select NoteUuid from Surveys Where Note <> ''"_s);
        static const QRegularExpression kRandomUuid(
            u"^[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}$"_s);
        for (const QString &id : ids)
            QVERIFY2(kRandomUuid.match(id).hasMatch(), qPrintable(id));
        QCOMPARE(ids.removeDuplicates(), 0);
        QCOMPARE(other.text(u"Select group_concat(NoteUuid, '') from Surveys Where Note = ''"_s), QString());
        QCOMPARE(other.text(u"Select distinct Model || Serial from SurveyFindings"_s), u"IP 7SIM01C28A382"_s);
        QCOMPARE(other.text(u"Select Serial from GoodBoards Where Orig = 'Ldo1' order by rowid"_s), u"C39XK1ABCDEF|"_s);
    }

    void rowsOfTheSeedsTellTheirSource()
    {
        OtherProgram(path()).runAll({u"Update Rf set Valor = '1.800' Where Malha = 'SIM_VCC'"_s,
                                     u"Insert into DeviceSources values ('IP 7', '1x74-PMU', 'measured')"_s});
        const Store store = std::move(*Store::open(path(), Store::Access::Write, 0ms));
        const QList<BusDevice> devices = *busDevices(store, u"IP 7"_s);
        QCOMPARE(devices.at(0).source + u'|' + devices.at(0).confidence,
                 u"same family, address not confirmed|medium"_s);
        QCOMPARE(devices.at(1).source + devices.at(1).confidence, u"measured"_s);
        QCOMPARE(busDevices(store, u"IP 6s"_s)->last().confidence, QString());
        const QList<RfRow> voltages = *rfRows(store, u"IP 7"_s, u"I"_s);
        QCOMPARE(voltages.size(), 2);
        QCOMPARE(voltages[0].source + u'|' + voltages[0].confidence, u"battery supply range|medium"_s);
        QCOMPARE(voltages[1].source + voltages[1].confidence, QString()); // somebody knows better than the seeds
    }

    void bareStoreIsRead()
    {
        strip(path());
        const auto before = contentsOf(m_folder->path());
        const Store store = std::move(*Store::open(path(), Store::Access::Read, 0ms));
        QCOMPARE(railRows(store, {u"IP 7"_s, 1})->size(), 33);
        QCOMPARE(goodReadings(store, u"IP 7"_s)->size(), 0);
        QCOMPARE(journal(store)->size(), 0);
        QVERIFY(!*journalEntry(store, u"none"_s));
        QCOMPARE(*setting(store, u"battery-worn"_s), QString());
        QCOMPARE(busDevices(store, u"IP 7"_s)->size(), 4);
        QCOMPARE(bool(rfRows(store, u"IP 7"_s, u"I"_s)), true);
        QCOMPARE((*recordingFor(store, u"IP 7"_s, u"tristar -p"_s))->integrity, Integrity::Unverified);
        QVERIFY(exportStore(store, m_folder->filePath(u"tables"_s)));
        QCOMPARE(keyOf(inspectStore(path(), StoreRole::Reference, Depth::Whole)), u"done"_s);
        QCOMPARE(contentsOf(m_folder->path()), before);
    }

    void bareStoreIsCompleted()
    {
        strip(path());
        const QString given = givenTables(path());
        {
            Store store = std::move(*Store::open(path(), Store::Access::Write, 0ms));
            QVERIFY(setSetting(store, u"a"_s, u"b"_s));
            QVERIFY(keepInJournal(store, {{u"id"_s, u"2026-11-22T02:38:30Z"_s}}));
            QCOMPARE(railRows(store, {u"IP 7"_s, 2})->first().source.isEmpty(), false);
        }
        QCOMPARE(givenTables(path()), given);
        QCOMPARE(OtherProgram(path()).text(u"Select count(*) from RecordingIds"_s), u"4"_s);
        const QString kept = QDir(backupFolder(path())).filePath(backups(path()).value(0));
        QCOMPARE(OtherProgram(kept).text(u"Select count(*) from sqlite_master Where type = 'table'"_s), u"9"_s);
    }

    // An earlier layout that is only read tells what it has, in the letters of the search that the store ignores.
    void earlierLayoutIsSearched()
    {
        const auto before = contentsOf(m_folder->path());
        const Store store = std::move(*Store::open(path(), Store::Access::Read, 0ms));
        QCOMPARE(journal(store, u"WATER"_s)->size(), 1);
        QVERIFY(exportStore(store, m_folder->filePath(u"tables"_s)));
        QCOMPARE(contentsOf(m_folder->path()), before);
    }

    void refusedStaysAsItWas_data()
    {
        QTest::addColumn<QString>("made");
        QTest::addColumn<QString>("writing");
        QTest::addColumn<QString>("reading");
        const QString done = u"done"_s;
        QTest::newRow("newer") << u"PRAGMA user_version = 99"_s << u"STORE_NEWER"_s << done;
        QTest::newRow("an added name for something else")
            << u"alter table Settings rename column Name to Word"_s << u"STORE_FOREIGN"_s << done;
    }

    void refusedStaysAsItWas()
    {
        QFETCH(QString, made);
        OtherProgram(path()).run(made);
        const auto before = contentsOf(m_folder->path());
        QTEST(keyOfOpening(path(), Store::Access::Write), "writing");
        QTEST(keyOfOpening(path(), Store::Access::Read), "reading");
        QTEST(keyOf(backupStore(path(), m_folder->filePath(u"copy"_s))), "reading");
        QVERIFY(QFile::remove(m_folder->filePath(u"copy"_s)));
        QCOMPARE(contentsOf(m_folder->path()), before);
    }

    void noStepWithoutABackup()
    {
        const auto before = contentsOf(m_folder->path());
        QFile blocking(m_folder->filePath(u"backups"_s));
        QVERIFY(blocking.open(QIODevice::WriteOnly));
        QCOMPARE(keyOfOpening(path(), Store::Access::Write), u"BACKUP_FAILED"_s);
        QVERIFY(blocking.remove());
        if (kCanLimitFiles) {
            QCOMPARE(onTightDisk([this] { return keyOfOpening(path(), Store::Access::Write); }), u"BACKUP_FAILED"_s);
            QCOMPARE(backups(path()), QStringList());
        }
        QCOMPARE(contentsOf(m_folder->path()), before);
    }

    // A step that fails every time leaves the store and one backup, not one for each attempt.
    void failedStepIsUndone()
    {
        OtherProgram(path()).runAll({u"drop table RecordingHash"_s, u"drop table Dados"_s});
        QCOMPARE(keyOfOpening(path(), Store::Access::Write), u"STORE_FAILED"_s);
        const auto after = contentsOf(m_folder->path());
        QCOMPARE(OtherProgram(path()).text(u"PRAGMA user_version"_s), u"1"_s);
        QCOMPARE(OtherProgram(path()).text(u"Select group_concat(Uuid, '') from SurveyFindings"_s), QString());
        const QStringList kept = backups(path());
        for (int attempt = 0; attempt < 3; ++attempt)
            QCOMPARE(keyOfOpening(path(), Store::Access::Write), u"STORE_FAILED"_s);
        QCOMPARE(contentsOf(m_folder->path()), after);
        QVERIFY(backups(path()).size() <= kept.size() + 1);
    }

    // The engine undoes what a killed program began; the next opening starts from there.
    void killedInAStep()
    {
        const QString copy = m_folder->filePath(u"copy.pmx"_s);
        {
            OtherProgram other(path());
            other.runAll({u"PRAGMA cache_size = 2"_s, u"BEGIN IMMEDIATE"_s,
                          u"alter table SurveyFindings add column Uuid text not null default ''"_s,
                          u"Update SurveyFindings set Uuid = 'half', Line = hex(zeroblob(300))"_s,
                          u"PRAGMA user_version = 2"_s});
            for (const QString &end : {QString(), u"-journal"_s})
                QVERIFY(QFile::copy(path() + end, copy + end));
            other.run(u"ROLLBACK"_s);
        }
        QVERIFY(QFileInfo(copy + u"-journal"_s).size() > 0);
        QCOMPARE(keyOfOpening(copy, Store::Access::Write), u"done"_s);
        OtherProgram other(copy);
        QCOMPARE(other.text(u"Select count(*) from SurveyFindings Where Uuid = 'half' or length(Line) > 500"_s),
                 u"0"_s);
        QCOMPARE(other.text(u"Select count(distinct Uuid) from SurveyFindings"_s), u"28"_s);
    }

    void lockedStoreWaits()
    {
        OtherProgram other(path());
        other.run(u"BEGIN IMMEDIATE"_s);
        QCOMPARE(keyOfOpening(path(), Store::Access::Write), u"STORE_LOCKED"_s);
        QCOMPARE(backups(path()), QStringList());
        other.run(u"ROLLBACK"_s);
        QCOMPARE(keyOfOpening(path(), Store::Access::Write), u"done"_s);
    }

    void manyAtOnce()
    {
        std::array<QProcess, 6> programs;
        for (QProcess &program : programs)
            program.start(QCoreApplication::applicationFilePath(), {u"--open"_s, path()});
        for (QProcess &program : programs) {
            QVERIFY(program.waitForFinished());
            QCOMPARE(program.readAllStandardError(), "done");
        }
        QCOMPARE(backups(path()).size(), 1);
        OtherProgram other(path());
        QCOMPARE(other.text(u"Select count(distinct Uuid) from SurveyFindings"_s), u"28"_s);
    }

    void newRowsHaveTheirIdentity()
    {
        Store store = std::move(*Store::open(path(), Store::Access::Write, 0ms));
        OtherProgram other(path());
        JournalEntry entry{{.id = u"s"_s, .started = u"2026-11-22T03:00:00Z"_s, .model = u"IP 6s"_s}};
        JournalFinding finding;
        finding.output = u"a"_s;
        entry.findings = {finding};
        QVERIFY(keepInJournal(store, entry));
        const QString id = other.text(u"Select Uuid from SurveyFindings Where Survey = 's'"_s);
        entry.survey.serial = u"F17"_s;
        finding.reading = u"again"_s;
        entry.findings += finding;
        QVERIFY(keepInJournal(store, entry));
        QCOMPARE(other.text(u"Select Uuid from SurveyFindings Where Survey = 's' and Output = 'a'"_s), id);
        QCOMPARE(other.text(u"Select Model || Serial from SurveyFindings Where Survey = 's'"_s), u"IP 6sF17"_s);

        const auto note = [&](const QString &text) {
            return setJournalNote(store, u"s"_s, text) ? other.text(u"Select NoteUuid from Surveys Where Id = 's'"_s)
                                                       : QString();
        };
        const QString first = note(u"one"_s);
        QVERIFY(!first.isEmpty());
        QCOMPARE(note(u"two"_s), first);
        QCOMPARE(note(QString()), QString());
        QVERIFY(note(u"three"_s) != first);

        const auto recorded = [&](const Recording &recording) {
            return saveRecording(store, recording) ? other.text(u"Select Uuid from RecordingIds Where Comando = 'a'"_s)
                                                   : QString();
        };
        const QString reply = recorded({u"IP 7"_s, u"a"_s, u"reply"_s});
        QVERIFY(!reply.isEmpty());
        QCOMPARE(recorded({u"IP 7"_s, u"A"_s, u"reply"_s, u"nota"_s}), reply);
        QVERIFY(recorded({u"IP 7"_s, u"a"_s, u"Reply"_s}) != reply);
        QVERIFY(deleteRecording(store, {u"IP 7"_s, u"a"_s}));
        QCOMPARE(other.text(u"Select count(*) from RecordingIds Where Comando = 'a'"_s), u"0"_s);

        const QString board = u"2026-11-22 03:00:00.000 C39"_s;
        QVERIFY(changeGoodBoards(store, u"IP 7"_s, {.added = {{1, u"Ldo2"_s, board, 1.8}}}));
        QCOMPARE(other.text(u"Select Serial || length(Uuid) from GoodBoards Where Orig = 'Ldo2'"_s), u"C3936"_s);
    }

private:
    QString path() const { return m_folder->filePath(u"Config.pmx"_s); }

    std::optional<QTemporaryDir> m_folder;
};

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "--open"_L1) {
        std::fputs(qPrintable(keyOf(Store::open(arguments.value(2), Store::Access::Write, 10s))), stderr);
        return 0;
    }
    tst_ladder test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_ladder.moc"
