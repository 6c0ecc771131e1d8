#include "columns.h"
#include "exchangelog.h"
#include "home.h"
#include "pseudoterminal.h"
#include "serialport.h"

#include <QDeadlineTimer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

using namespace Qt::StringLiterals;
using enum Exchange::Direction;

namespace {

constexpr qint64 kMoment = 1772373909250; // 2026-03-01 14:05:09.250 UTC

QByteArray everyByte()
{
    QByteArray bytes;
    for (int value = 0; value < 256; ++value)
        bytes.append(static_cast<char>(value));
    return bytes;
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QList<Exchange> chunksIn(const QByteArray &log)
{
    QList<Exchange> chunks;
    for (const QByteArray &line : log.split('\n')) {
        if (const std::optional<Exchange> chunk = exchangeOf(line))
            chunks.append(*chunk);
    }
    return chunks;
}

QByteArray bytesOf(const QList<Exchange> &chunks, Exchange::Direction direction)
{
    QByteArray bytes;
    for (const Exchange &chunk : chunks)
        bytes += chunk.direction == direction ? chunk.bytes : QByteArray();
    return bytes;
}

/// All files of a log's folder, in the order of their names.
QByteArray filesOf(const QString &folder)
{
    QByteArray all;
    const QDir files(folder);
    for (const QString &name : files.entryList(QDir::Files, QDir::Name))
        all += contents(files.filePath(name));
    return all;
}

/// A log in a folder of its own.
struct Bench
{
    explicit Bench(const ExchangeLimits &limits = {})
        : log(path, limits), notWritten(&log, &ExchangeLog::notWritten), dropped(&log, &ExchangeLog::dropped)
    {
    }

    /// A connection over which so many chunks come, each of a size.
    void connection(int chunks, char byte)
    {
        log.beginConnection();
        for (int i = 0; i < chunks; ++i) {
            log.add({++time, FromPhone, QByteArray(480, byte)});
            log.flush();
        }
    }
    qint64 size() const
    {
        qint64 total = 0;
        for (const QFileInfo &file : QDir(path).entryInfoList(QDir::Files))
            total += file.size();
        return total;
    }
    QByteArray saved()
    {
        const QString file = folder.filePath(u"saved.txt"_s);
        return log.saveTo(file) ? contents(file) : QByteArray("not saved");
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"state/deep"_s);
    ExchangeLog log;
    QSignalSpy notWritten;
    QSignalSpy dropped;
    qint64 time = 0;
};

} // namespace

class TestExchange : public QObject
{
    Q_OBJECT

private slots:
    void lines_data()
    {
        columns<Exchange, QByteArray>({"chunk", "line"});
        QTest::newRow("command") << Exchange{kMoment, ToPhone, "i2c -s 0\r"}
                                 << QByteArray("2026-03-01T14:05:09.250Z > i2c -s 0\\r\n");
        QTest::newRow("prompt with its last blank")
            << Exchange{0, FromPhone, "[0] :-) "} << QByteArray("1970-01-01T00:00:00.000Z < [0] :-)\\x20\n");
        QTest::newRow("what looks like an escape")
            << Exchange{0, FromPhone, "\\x41\n"} << QByteArray("1970-01-01T00:00:00.000Z < \\\\x41\\n\n");
        QTest::newRow("digit behind a byte") << Exchange{0, FromPhone, QByteArray::fromHex("0031ff4109")}
                                             << QByteArray("1970-01-01T00:00:00.000Z < \\x001\\xFFA\\t\n");
    }

    void lines()
    {
        QFETCH(Exchange, chunk);
        QFETCH(QByteArray, line);
        QCOMPARE(exchangeLine(chunk), line);
        QVERIFY(exchangeOf(line) == chunk);
    }

    void everyByteComesBack()
    {
        for (const char last : everyByte()) {
            const Exchange chunk{kMoment, FromPhone, everyByte() + last};
            const QByteArray line = exchangeLine(chunk);
            QCOMPARE(line.indexOf('\n'), line.size() - 1);
            QVERIFY(exchangeOf(line) == chunk);
        }
    }

    void damagedLines_data()
    {
        QTest::addColumn<QByteArray>("line");
        const QByteArray time = "2026-03-01T14:05:09.250Z";
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("comment") << QByteArray("# 2026-03-01T14:05:09.250Z < a");
        QTest::newRow("cut in the time") << time.first(20);
        QTest::newRow("cut before the bytes") << time + " <";
        QTest::newRow("no direction") << time + " ! a";
        QTest::newRow("no time") << QByteArray("2026-13-01T14:05:09.250Z < a");
        QTest::newRow("cut behind a backslash") << time + " < a\\";
        QTest::newRow("cut in a number") << time + " < a\\x4";
        QTest::newRow("no digit") << time + " < \\x4g";
        QTest::newRow("unknown letter") << time + " < \\q";
    }

    void damagedLines()
    {
        QFETCH(QByteArray, line);
        QVERIFY(!exchangeOf(line));
    }

    void fileHoldsWhatPassed()
    {
        Bench bench;
        QVERIFY(!QFileInfo::exists(bench.path)); // a start without an exchange leaves no file
        bench.log.add({kMoment, ToPhone, "i2c -s 0\r"});
        bench.log.add({kMoment, FromPhone, {}});
        bench.log.add({kMoment, FromPhone, everyByte()});
        bench.log.flush();
        bench.log.add({kMoment + 1, FromPhone, ":-) "});
        bench.log.flush();
        bench.log.flush();
        const QList<Exchange> expected{
            {kMoment, ToPhone, "i2c -s 0\r"}, {kMoment, FromPhone, everyByte()}, {kMoment + 1, FromPhone, ":-) "}};
        QVERIFY(chunksIn(filesOf(bench.path)) == expected);
        QVERIFY(chunksIn(bench.saved()) == expected);
        QCOMPARE(bench.log.end(), 3);
        QVERIFY(bench.log.at(2) == expected.at(2));
    }

    void filesRotate()
    {
        Bench bench({.file = 2000, .folder = 8000});
        const QDir folder(bench.path);
        QVERIFY(folder.mkpath(u"."_s));
        QFile foreign(folder.filePath(u"notes.log"_s));
        QVERIFY(foreign.open(QIODevice::WriteOnly));
        for (int i = 0; i < 60; ++i) {
            bench.log.add({i, FromPhone, QByteArray(480, 'x')});
            bench.log.flush();
        }
        for (const QFileInfo &file : folder.entryInfoList(QDir::Files))
            QVERIFY(file.size() <= 2000);
        QVERIFY(bench.size() <= 8000);
        QVERIFY(bench.size() > 4000);
        QVERIFY(foreign.exists());
        const QList<Exchange> left = chunksIn(filesOf(bench.path));
        QCOMPARE(left.last().milliseconds, 59);
        QCOMPARE(left.size(), left.last().milliseconds - left.first().milliseconds + 1); // no hole
    }

    void floodLeavesOtherBoardsAlone()
    {
        Bench bench({.file = 2000, .folder = 8000});
        bench.connection(1, 'a');
        bench.connection(1, 'b');
        bench.connection(60, 'x');
        bench.connection(1, 'c');
        bench.connection(60, 'y'); // two floods share what the boards leave
        const QByteArray left = filesOf(bench.path);
        for (const char *board : {"aaaa", "bbbb", "cccc", "xxxx", "yyyy"})
            QVERIFY2(left.contains(board), board);
        QVERIFY(bench.size() <= 8000);
        QCOMPARE(chunksIn(left).last().bytes.front(), 'y');
        QVERIFY(left.contains("# dropped to make room: exchange-"));
        QCOMPARE(bench.dropped.size(), 1);
        QVERIFY(bench.dropped.first().first().value<Trouble>().what.arguments.value(0).startsWith(bench.path));
    }

    void oldestConnectionsGoWhenNoneIsAFlood()
    {
        Bench bench({.file = 1000, .folder = 4000});
        for (char board = 'a'; board <= 'j'; ++board)
            bench.connection(1, board);
        const QByteArray left = filesOf(bench.path);
        QVERIFY(!left.contains("aaaa") && left.contains("jjjj") && left.contains("iiii"));
        QVERIFY(left.contains("# dropped to make room: "));
        QVERIFY(bench.dropped.isEmpty()); // as it is meant to be
        QCOMPARE(bench.saved().count("# missing: "), 10 - QDir(bench.path).entryList(QDir::Files).size());
    }

    void manyShortConnectionsAreBounded()
    {
        Bench bench({.files = 3});
        for (char board = 'a'; board <= 'f'; ++board)
            bench.connection(1, board);
        QCOMPARE(QDir(bench.path).entryList(QDir::Files).size(), 3);
        QVERIFY(filesOf(bench.path).contains("ffff"));
        for (int tries = 0; tries < 3; ++tries) { // a phone that is looked for and does not answer
            bench.log.beginConnection();
            bench.log.add({++bench.time, ToPhone, "syscfg\r"});
            bench.log.flush();
        }
        QCOMPARE(chunksIn(filesOf(bench.path)).size(), 2 + 3); // in one file, so that the boards keep theirs
    }

    void unwritableFolderIsToldOnce()
    {
        Bench bench;
        QFile inTheWay(bench.folder.filePath(u"state"_s));
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        for (int i = 0; i < 3; ++i) {
            bench.log.add({i, FromPhone, "a"});
            bench.log.flush();
        }
        QCOMPARE(bench.notWritten.size(), 1);
        const auto trouble = bench.notWritten.first().first().value<Trouble>();
        QCOMPARE(trouble.what.key, u"LOG_NOT_WRITTEN"_s);
        QVERIFY(trouble.what.arguments.value(0).startsWith(bench.path));
        QVERIFY(!trouble.what.arguments.value(1).isEmpty());
        QCOMPARE(bytesOf(chunksIn(bench.saved()), FromPhone), "aaa");

        QVERIFY(inTheWay.remove());
        bench.log.add({3, FromPhone, "b"});
        bench.log.flush();
        QCOMPARE(bytesOf(chunksIn(filesOf(bench.path)), FromPhone), "aaab");
        QVERIFY(!bench.log.saveTo(bench.folder.filePath(u"no/such/place"_s)));
    }

    /// A disk that takes nothing more is as a folder that cannot be made; what no longer fits in memory is told as
    /// missing.
    void fullDiskLosesNothingInMemory()
    {
        Bench bench({.memory = 3000});
        QFile inTheWay(bench.folder.filePath(u"state"_s));
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        for (int i = 0; i < 5; ++i) {
            bench.log.add({i, FromPhone, QByteArray(904, 'x')});
            bench.log.flush();
        }
        QVERIFY(inTheWay.remove());
        bench.log.flush();
        const QByteArray written = filesOf(bench.path);
        QVERIFY(written.contains("# missing: 2 chunks"));
        QCOMPARE(chunksIn(written).size(), 3);
    }

    void removedFileIsBegunAnew()
    {
        Bench bench;
        bench.log.add({1, FromPhone, "a"});
        bench.log.flush();
        QVERIFY(QDir(bench.path).removeRecursively());
        bench.log.add({2, FromPhone, "b"});
        bench.log.flush();
        QCOMPARE(bytesOf(chunksIn(filesOf(bench.path)), FromPhone), "b");
        QVERIFY(bench.notWritten.isEmpty());
        QVERIFY(bench.saved().contains("# missing: "));
    }

    void savedLogSaysWhatIsMissing()
    {
        Bench bench({.file = 1000, .folder = 2000});
        for (int i = 0; i < 4; ++i) {
            bench.log.add({i, FromPhone, QByteArray(700, 'x')});
            bench.log.flush();
        }
        const QByteArray saved = bench.saved();
        QCOMPARE(saved.count("# missing: "), 2);
        QCOMPARE(chunksIn(saved).size(), 2);
    }

    void discardedBytesAreLogged()
    {
        const std::unique_ptr<PseudoTerminal> phone = PseudoTerminal::make();
        QVERIFY(phone);
        // The event loop does not turn meanwhile, so the bytes stay with the system.
        const auto says = [&](const QByteArray &bytes) {
            const QDeadlineTimer deadline(5000);
            phone->write(bytes);
            while (phone->unread() < bytes.size() && !deadline.hasExpired())
                QThread::yieldCurrentThread();
        };
        Bench bench;
        SerialPort port;
        bench.log.watch(port);
        says("old");
        QVERIFY(port.open(phone->path()));
        QVERIFY(port.read().isEmpty());
        says("late");
        port.discardInput();
        QVERIFY(port.read().isEmpty());
        port.write("i2c -s 0\r");
        says("last");
        port.close();
        const QList<Exchange> chunks = chunksIn(bench.saved());
        QCOMPARE(bytesOf(chunks, FromPhone), "oldlatelast");
        QCOMPARE(bytesOf(chunks, ToPhone), "i2c -s 0\r");
        QVERIFY(port.open(phone->path()));
        port.write("sn\r");
        bench.log.flush();
        QCOMPARE(QDir(bench.path).entryList(QDir::Files).size(), 2); // each connection has files of its own
    }

    /// A flood of every byte, in chunks of odd sizes: whole on disk, bounded in memory.
    void floodIsWhole()
    {
        Bench bench;
        constexpr qsizetype kFlood = 20 << 20;
        QByteArray flood = everyByte().repeated(kFlood / 256);
        for (qsizetype at = 0, size = 1; at < kFlood; at += size) {
            size = 1 + (size * 7) % 4093;
            bench.log.add({kMoment, FromPhone, flood.mid(at, size)});
        }
        bench.log.flush();
        QVERIFY(bytesOf(chunksIn(filesOf(bench.path)), FromPhone) == flood);
        qint64 kept = 0;
        for (qint64 number = bench.log.first(); number < bench.log.end(); ++number)
            kept += bench.log.at(number).bytes.capacity();
        QVERIFY2(kept < (5 << 20) && kept > (2 << 20), qPrintable(QString::number(kept)));
        QCOMPARE(bench.log.droppedBytes() + kept, kFlood);
    }

    void placeOfTheState()
    {
        const QByteArray before = qgetenv("XDG_STATE_HOME");
        qputenv("XDG_STATE_HOME", "/var/state/../own");
        QCOMPARE(stateFolder(), u"/var/own/tavimo-prelt"_s);
        qputenv("XDG_STATE_HOME", "relative");
        QCOMPARE(stateFolder(), QDir::homePath() + u"/.local/state/tavimo-prelt"_s);
        qputenv("XDG_STATE_HOME", before);
    }
};

QTEST_GUILESS_MAIN(TestExchange)
#include "tst_exchange.moc"
