#include "otherprogram.h"
#include "queries.h"
#include "railrows.h"
#include "recordings.h"
#include "seeds.h"
#include "storeinspection.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// A reply of its own for every number, from one to some twenty pages long.
QString replyOf(int number)
{
    return u"reply %1 "_s.arg(number).repeated(1 + number % 7 * 1000);
}

/// Writes recordings and slots one after the other, and says the number of each as soon as it is kept.
int record(const QString &path, int number)
{
    const auto fail = [](const Trouble &trouble) {
        std::fputs(qPrintable(trouble.what.key + u' ' + trouble.what.arguments.join(u' ')), stderr);
        return 1;
    };
    for (;; ++number) {
        Result<Store> store = Store::open(path, Store::Access::Write, 5s);
        if (!store)
            return fail(store.trouble());
        const QString command = u"command %1"_s.arg(number % 50);
        if (const auto saved = saveRecording(*store, {u"IP 7"_s, command, replyOf(number)}); !saved)
            return fail(saved.trouble());
        if (const auto slot = writeSlot(*store, Slot::G2, {{1 + number % 708, QString::number(number)}}); !slot)
            return fail(slot.trouble());
        std::printf("%d\n", number);
        std::fflush(stdout);
    }
}

} // namespace

/// A power cut or a killed program must not cost a row that was reported as kept.
class tst_killed : public QObject
{
    Q_OBJECT

private slots:
    void keepsWhatWasAcknowledged();

private:
    static int killedAfter(const QString &path, int first, std::chrono::microseconds delay);
};

/// Lets a recorder work for a while after its first row and kills it. Gives the last number it acknowledged.
int tst_killed::killedAfter(const QString &path, int first, std::chrono::microseconds delay)
{
    QProcess recorder;
    recorder.start(QCoreApplication::applicationFilePath(), {u"--record"_s, path, QString::number(first)});
    if (!recorder.waitForReadyRead())
        return -1;
    QElapsedTimer timer; // the moment itself is what is tested, so it is counted off exactly
    timer.start();
    while (timer.nsecsElapsed() < std::chrono::nanoseconds(delay).count()) {
    }
    recorder.kill();
    recorder.waitForFinished();
    const QList<QByteArray> lines = recorder.readAllStandardOutput().split('\n');
    return recorder.exitStatus() == QProcess::CrashExit && lines.size() > 1 ? lines[lines.size() - 2].toInt() : -1;
}

void tst_killed::keepsWhatWasAcknowledged()
{
    constexpr int kKills = 200;
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Config.pmx"_s);
    QVERIFY(createStore(path));
    int unfinished = 0;
    int next = 0;
    for (int kill = 0; kill < kKills; ++kill) {
        const int last = killedAfter(path, next, std::chrono::microseconds(kill * 97 % 15000));
        QVERIFY2(last >= next, qPrintable(u"kill %1, %2 after %3"_s.arg(kill).arg(last).arg(next)));
        unfinished += QFile::exists(path + u"-journal"_s);

        const Result<Store> store = Store::open(path, Store::Access::Read, 0ms);
        QVERIFY(store);
        for (int number = std::max(next, last - 48); number <= last; ++number) {
            const auto kept = recordingFor(*store, u"IP 7"_s, u"command %1"_s.arg(number % 50));
            QVERIFY(kept && *kept);
            // What came after the last acknowledgement may be there or not, but whole.
            QVERIFY((*kept)->intact());
            QVERIFY2((*kept)->recording.dados == replyOf(number), qPrintable(QString::number(number)));
        }
        Result<QSqlQuery> slot =
            store->run({"Slot", "Select G2 from Master Where rowid = :id"}, {{u":id"_s, 1 + last % 708}});
        QVERIFY(slot && slot->next());
        QCOMPARE(slot->value(0).toString(), QString::number(last));
        next = last + 1;
    }
    const auto findings = storeFindings(path, StoreRole::Reference, Depth::Whole);
    QVERIFY(findings && findings->isEmpty());
    QVERIFY2(unfinished > 0, "no kill fell into a write: the moments are chosen badly");
}

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "--record"_L1)
        return record(arguments.value(2), arguments.value(3).toInt());
    tst_killed test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_killed.moc"
