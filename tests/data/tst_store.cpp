#include "columns.h"
#include "models.h"
#include "otherprogram.h"
#include "queries.h"
#include "railorder.h"
#include "seeds.h"
#include "settings.h"
#include "store.h"

#include <QRegularExpression>
#include <QTemporaryDir>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

QString keyOfOpening(const QString &path, Store::Access access)
{
    return keyOf(Store::open(path, access, 0ms));
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

} // namespace

class tst_store : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(createStore(m_master.filePath(u"Config.pmx"_s))); }

    void init()
    {
        QTest::failOnWarning(QRegularExpression(u"."_s));
        m_folder.emplace();
        QVERIFY(QFile::copy(m_master.filePath(u"Config.pmx"_s), path()));
    }

    void cleanup()
    {
        QCOMPARE(QSqlDatabase::connectionNames(), QStringList());
        m_folder.reset();
    }

    void seedsComeBack()
    {
        const Store store = this->store(Store::Access::Read);
        const SeedTable seeds = seedTable(u"master"_s);
        QCOMPARE(seeds.rows.size(), 708);
        qsizetype found = 0;
        for (const QString &model : modelNames()) {
            for (const int kind : {0, 1, 2}) {
                for (const RailRow &row : rails(store, {model, kind})) {
                    const QString tipo = QString::number(row.tipo);
                    found += seeds.rows.contains(QStringList{row.modelo, tipo, row.orig, row.malha, row.ci, row.refT,
                                                             row.refV, row.ref, row.confidence, row.source});
                }
            }
        }
        QCOMPARE(found, 708);
        QCOMPARE(*language(store), Language::Portuguese);
        QCOMPARE(*combo(store, Combo::BuckLdoVolts) + *combo(store, Combo::BuckLdoMilli), u"31"_s);
        QCOMPARE(*combo(store, Combo::LinkSpeed), u"G1"_s);
        QCOMPARE(*lastModel(store), QString());
    }

    void doubtfulDevicesStayOut()
    {
        OtherProgram other(path());
        QCOMPARE(other.text(u"Select count(*) from i"_s), u"23"_s);
        QCOMPARE(
            other.text(u"Select i from i where Aparelho = 'IP 7' and i like '1x7%' and i <> '1x75-Tigris (charger)'"_s),
            u"1x74-PMU"_s);
        QCOMPARE(other.text(u"Select count(*) from i where Aparelho = 'IP 7' and i like '1x40%'"_s), u"0"_s);
        QCOMPARE(other.text(u"Select count(*) from Rf"_s), u"40"_s);
        QCOMPARE(other.text(u"Select count(*) from Comandos"_s), u"98"_s);
        QCOMPARE(other.text(u"Select group_concat(syncbd) from Tools"_s), u"0"_s);
    }

    void everyQueryFitsTheTables()
    {
        const Store store = this->store();
        QStringList names;
        for (const Query *query : queryCatalogue()) {
            QVERIFY2(!store.prepared(*query).lastError().isValid(), query->name.data());
            names += QString::fromLatin1(query->name.data());
        }
        QCOMPARE(names.removeDuplicates(), 0);
        for (const Query *empty : {&kNoRecording, &kNoRecordingOfCommand})
            QVERIFY(!store.run(*empty)->next());
    }

    void creatingRefusesWhatIsThere()
    {
        const QString file = m_folder->filePath(u"taken"_s);
        write(file, "somebody's");
        QCOMPARE(keyOf(createStore(file)), u"STORE_EXISTS"_s);
        QCOMPARE(QFileInfo(file).size(), 10);
        QCOMPARE(keyOf(createStore(m_folder->path())), u"STORE_EXISTS"_s);
        QCOMPARE(keyOf(createStore(path())), u"STORE_EXISTS"_s);

        const QString link = m_folder->filePath(u"link"_s);
        QVERIFY(QFile::link(m_folder->filePath(u"nowhere"_s), link));
        QCOMPARE(keyOf(createStore(link)), u"STORE_FAILED"_s); // told as a link to nowhere
        QCOMPARE(keyOf(createStore(file + u"/below/a/file"_s)), u"STORE_FAILED"_s);
        QCOMPARE(keyOf(createStore(m_folder->filePath(u"new/folder/Config.pmx"_s))), u"done"_s);
        QCOMPARE(QDir(m_folder->filePath(u"new/folder"_s)).entryList(QDir::Files | QDir::Hidden), {u"Config.pmx"_s});
    }

    // The disk takes a part of the store and then no more.
    void creatingLeavesNoHalf()
    {
        if (!kCanLimitFiles)
            QSKIP("no limit on file sizes here");
        const QString key = onTightDisk([this] { return keyOf(createStore(m_folder->filePath(u"new/Config.pmx"_s))); });
        QVERIFY2(key.startsWith(u"STORE_F"_s), qPrintable(key));
        QCOMPARE(contentsOf(m_folder->filePath(u"new"_s)).keys(), QStringList());
    }

    void letterCaseIsIgnored()
    {
        const Store store = this->store(Store::Access::Read);
        QCOMPARE(rails(store, {u"ip 6S"_s, 2}), rails(store, {u"IP 6s"_s, 2}));
        QVERIFY(!rails(store, {u"ip 6S"_s, 2}).isEmpty());
        QVERIFY(rails(store, {u"IP 6s "_s, 2}).isEmpty());
        QVERIFY(rails(store, {u"IP 6s' or '1' = '1"_s, 2}).isEmpty());
    }

    void chipsMatchLiterally()
    {
        OtherProgram(path()).run(
            u"Insert into Master (Modelo, TIPO, Malha, Ci) values ('M', 0, 'a', 'CPU/Nand'), "
            "('M', 0, 'b', 'x_y'), ('M', 0, 'c', 'xzy'), ('M', 0, 'd', '5%'), ('M', 0, 'e', '5V')"_s);
        const Store store = this->store(Store::Access::Read);
        const auto nets = [&store](const QString &chip) {
            QString found;
            Result<QSqlQuery> rows =
                store.run(kRailsOfChip, {{u":model"_s, u"m"_s}, {u":kind"_s, 0}, {u":chip"_s, likePattern(chip)}});
            while (rows->next())
                found += rows->value(u"Malha"_s).toString();
            return found;
        };
        QCOMPARE(nets(u"*NAND*"_s), u"a"_s);
        QCOMPARE(nets(u"*x_y*"_s), u"b"_s);
        QCOMPARE(nets(u"*5%*"_s), u"d"_s);
        QCOMPARE(nets(u"5*"_s), u"de"_s);
        QCOMPARE(nets(u"**"_s), u"abcde"_s);
    }

    // The screen sorts the rows it holds; whoever asks the store must see the same list.
    void ordersAgreeWithTheStore()
    {
        OtherProgram(path()).run(
            u"Update Master set Leitura = case rowid % 4 when 0 then '' when 1 then 'Sem Medição*' else '1.00 V' end, "
            "PORC = case rowid % 5 when 0 then '' when 1 then '0 %' else (rowid * 37 % 90 - 45) || '.5 %' end, "
            "Orig = case rowid % 3 when 0 then upper(Orig) else Orig end, Ci = case rowid % 7 when 0 then 'ção_' else Ci end"_s);
        const Store store = this->store(Store::Access::Read);
        for (const RailOrder order :
             {RailOrder::Orig, RailOrder::ModeloOrig, RailOrder::CiOrig, RailOrder::PorcDescending, RailOrder::Malha,
              RailOrder::ModeloMalha, RailOrder::CiMalha}) {
            for (const QString &model : modelNames()) {
                const QList<RailRow> listed = rails(store, {model, 2, order});
                QList<RailRow> shuffled = listed;
                std::ranges::reverse(shuffled);
                QCOMPARE(sorted(shuffled, order), listed);
            }
        }
    }

    void unreadableRowsAreListedOnly()
    {
        OtherProgram(path()).run(
            u"Update Master set RefT = '' where Modelo = 'IP 8' and TIPO = 2 and Orig = 'Buck10'"_s);
        const Store store = this->store(Store::Access::Read);
        const QList<RailRow> all = rails(store, {u"IP 8"_s, 2});
        const QList<RailRow> readable = rails(store, {u"IP 8"_s, 2, RailOrder::ModeloOrig, true});
        QCOMPARE(readable.size(), all.size() - 1);
        QCOMPARE(all[2].orig, u"Buck10"_s);
        QCOMPARE(readable[2].orig, u"Buck11"_s);
        QVERIFY(rails(store, {u"IP 9"_s, 2}).isEmpty());
    }

    void clearingReachesEveryRow()
    {
        OtherProgram other(path());
        other.run(u"Update Master set Leitura = '1', PORC = '2 %', G1 = 'kept'"_s);
        {
            Store store = this->store();
            QVERIFY(clearReadings(store));
        }
        QCOMPARE(other.text(u"Select count(*) from Master where Leitura <> '' or PORC <> ''"_s), u"0"_s);
        QCOMPARE(other.text(u"Select count(*) from Master where G1 = 'kept'"_s), u"708"_s);
    }

    void failedWritingKeepsTheOldRows()
    {
        Store store = this->store();
        QList<RailRow> rows = rails(store, {u"IP 7"_s, 1});
        rows[0].leitura = u"1.80 V"_s;
        rows[0].porc = u"0 %"_s;
        QVERIFY(writeReadings(store, rows));
        QCOMPARE(rails(store, {u"IP 7"_s, 1}), rows);

        QList<RailRow> wrong = rows;
        wrong[0].leitura = u"9.99 V"_s;
        wrong[1].id = 4711;
        QCOMPARE(keyOf(writeReadings(store, wrong)), u"STORE_FAILED"_s);
        QCOMPARE(rails(store, {u"IP 7"_s, 1}), rows);
        QCOMPARE(keyOf(writeSlot(store, Slot::G1, {{rows[0].id, u"new"_s}, {4711, u"new"_s}})), u"STORE_FAILED"_s);
        QCOMPARE(rails(store, {u"IP 7"_s, 1}), rows);
        QVERIFY(writeSlot(store, Slot::G1, {{rows[0].id, u"new"_s}}));

        Store reader = this->store(Store::Access::Read);
        QCOMPARE(keyOf(clearReadings(reader)), u"STORE_READ_ONLY"_s);
    }

    void settingsSurviveEmptyTables()
    {
        OtherProgram other(path());
        other.run(u"Delete from Combos"_s);
        other.run(u"Delete from Tools"_s);
        Store store = this->store();
        QCOMPARE(*combo(store, Combo::PmuVolts), QString());
        QCOMPARE(keyOf(language(store)), u"STORE_DAMAGED"_s);
        QVERIFY(setCombo(store, Combo::PmuVolts, u"2"_s));
        QVERIFY(setCombo(store, Combo::LinkSpeed, u"G2"_s));
        QVERIFY(setLanguage(store, Language::Spanish));
        QVERIFY(rememberModel(store, u"IP 7"_s));
        QVERIFY(rememberModel(store, u"IP X"_s));
        QVERIFY(setSetting(store, u"probe"_s, u"a"_s));
        QVERIFY(setSetting(store, u"Probe"_s, u"b"_s));
        QCOMPARE(*setting(store, u"probe"_s), u"b"_s);
        QCOMPARE(*lastModel(store), u"IP X"_s);
        QCOMPARE(*language(store), Language::Spanish);
        QCOMPARE(other.text(u"Select Combo5 || Combo6 || Combo7 from Combos"_s), u"2G2"_s);
        QCOMPARE(other.text(u"Select (Select count(*) from Combos) || (Select count(*) from Ultimo)"_s), u"11"_s);
    }

    void languageNumbers()
    {
        const std::pair<QString, int> cases[] = {{u"2"_s, 2}, {u"7"_s, 7}, {u"257"_s, 0}, {u"pt"_s, 0}};
        for (const auto &[stored, number] : cases) {
            OtherProgram(path()).run(u"Update Tools set Idioma = '%1'"_s.arg(stored));
            QCOMPARE(static_cast<int>(*language(store(Store::Access::Read))), number); // 257 is no 1 in a byte
        }
    }

    void notAStore_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("a text") << QByteArray("Modelo,TIPO\nIP 6,2\n").repeated(200);
        QTest::newRow("an empty file") << QByteArray();
        QTest::newRow("cut in the first page") << QByteArray("SQLite format 3\0", 16);
    }

    void notAStore()
    {
        QFETCH(QByteArray, bytes);
        write(path(), bytes);
        for (const Store::Access access : {Store::Access::Read, Store::Access::Write}) {
            const Result<Store> opened = Store::open(path(), access, 0ms);
            QCOMPARE(keyOf(opened), u"STORE_DAMAGED"_s);
            QCOMPARE(opened.trouble().what.arguments.value(0), QDir::toNativeSeparators(path()));
            QVERIFY(!opened.trouble().what.arguments.value(1).isEmpty());
        }
        QCOMPARE(QFileInfo(path()).size(), bytes.size());
    }

    void missingIsNotMade()
    {
        const QString missing = m_folder->filePath(u"none.pmx"_s);
        QCOMPARE(keyOfOpening(missing, Store::Access::Write), u"STORE_MISSING"_s);
        QCOMPARE(keyOfOpening(m_folder->path(), Store::Access::Read), u"STORE_FAILED"_s);
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), {u"Config.pmx"_s});
    }

    void oddPath()
    {
        const QString odd = m_folder->filePath(u"a b%20c?mode=ro#é'/Config.pmx"_s);
        QVERIFY(createStore(odd));
        QCOMPARE(keyOfOpening(odd, Store::Access::Write), u"done"_s);
    }

    void locked()
    {
        OtherProgram other(path());
        other.run(u"BEGIN IMMEDIATE"_s);
        QCOMPARE(keyOfOpening(path(), Store::Access::Write), u"STORE_LOCKED"_s);
        QCOMPARE(keyOfOpening(path(), Store::Access::Read), u"done"_s);
        other.run(u"COMMIT"_s);
        Store store = this->store();
        other.run(u"BEGIN EXCLUSIVE"_s);
        QCOMPARE(keyOfOpening(path(), Store::Access::Read), u"STORE_LOCKED"_s);
        QCOMPARE(keyOf(rememberModel(store, u"IP 7"_s)), u"STORE_LOCKED"_s);
        QCOMPARE(keyOf(lastModel(store)), u"STORE_LOCKED"_s);
        other.run(u"ROLLBACK"_s);
        QCOMPARE(keyOf(rememberModel(store, u"IP 7"_s)), u"done"_s);
    }

    void writeProtected_data()
    {
        columns<int, int>({"folder", "file"});
        QTest::newRow("the file") << 0x7755 << 0x4444;
        QTest::newRow("the folder, which has to take the journal") << 0x5555 << 0x6666;
    }

    // As the superuser nothing is protected, so the test becomes nobody for a while.
    void writeProtected()
    {
#ifdef Q_OS_LINUX
        QFETCH(int, folder);
        QFETCH(int, file);
        QVERIFY(QFile::setPermissions(path(), QFile::Permissions(file)));
        QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(folder)));
        const uid_t user = getuid();
        const uid_t nobody = user == 0 ? 65534 : user;
        QCOMPARE(setresuid(nobody, nobody, user), 0);
        const QString reading = keyOfOpening(path(), Store::Access::Read);
        Result<Store> store = Store::open(path(), Store::Access::Write, 0ms);
        const QString writing = store ? keyOf(rememberModel(*store, u"IP 7"_s)) : keyOf(store);
        QCOMPARE(setresuid(user, user, user), 0);
        QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7755)));
        QCOMPARE(reading, u"done"_s);
        QCOMPARE(writing, u"STORE_READ_ONLY"_s);
#else
        QSKIP("needs another user");
#endif
    }

    // A writer that was killed leaves its journal; the next reader must see the rows as they were before.
    void interruptedWriterIsRolledBack()
    {
        const QString copy = m_folder->filePath(u"copy.pmx"_s);
        OtherProgram(path()).leaveUnfinished(copy);
        const Store store = std::move(*Store::open(copy, Store::Access::Read, 0ms));
        QCOMPARE(rails(store, {u"IP 6"_s, 2})[0].g[0], QString());
        QVERIFY(!QFile::exists(copy + u"-journal"_s));
    }

private:
    QString path() const
    {
        return m_folder->filePath(u"Config.pmx"_s);
    }
    Store store(Store::Access access = Store::Access::Write) const
    {
        return std::move(*Store::open(path(), access, 0ms));
    }
    static QList<RailRow> rails(const Store &store, const RailFilter &filter)
    {
        return *railRows(store, filter);
    }

    QTemporaryDir m_master;
    std::optional<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(tst_store)
#include "tst_store.moc"
