#include "busdevices.h"
#include "goodboards.h"
#include "journal.h"
#include "otherprogram.h"
#include "railrows.h"
#include "recordings.h"
#include "settings.h"
#include "specimen.h"
#include "store.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

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

private:
    QString path() const { return m_folder->filePath(u"Config.pmx"_s); }

    std::optional<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(tst_ladder)
#include "tst_ladder.moc"
