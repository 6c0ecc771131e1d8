#include "columns.h"
#include "serialport.h"
#include "simulatedphone.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

PhoneProfile profile(const QString &text)
{
    Result<PhoneProfile> result = profileFor(text);
    return result ? *result : PhoneProfile{};
}

/// A phone without a pace and the port opened on it.
struct Bench
{
    explicit Bench(const QString &text) : phone(profile(text), 0), lost(&port, &Port::lost)
    {
        phone.setPromptDelay(20ms);
        QObject::connect(&port, &Port::received, &port, [this](const QByteArray &bytes) { chunks.append(bytes); });
        isOpen = bool(port.open(phone.device()));
    }

    bool receives(qsizetype bytes)
    {
        return QTest::qWaitFor([&] { return chunks.join().size() >= bytes; }, 3000);
    }

    SimulatedPhone phone;
    SerialPort port;
    QSignalSpy lost;
    QList<QByteArray> chunks;
    bool isOpen = false;
};

constexpr char kQuery[] = "syscfg print RMd#\r";

} // namespace

/// The serial code against the simulated phone, through a real pseudo-terminal.
class TestLine : public QObject
{
    Q_OBJECT

private slots:
    void replyComesUnchanged_data()
    {
        columns<QString, QByteArray>({"phone", "command"});
        QTest::newRow("short") << u"IP 7"_s << QByteArray("syscfg print RMd#");
        QTest::newRow("long") << u"IP X"_s << QByteArray("pmuadc --read all");
        QTest::newRow("CR LF is not folded") << u"IP 7,crlf"_s << QByteArray("pmuadc --read all");
        QTest::newRow("control bytes are no keys of a terminal")
            << u"IP 7"_s << QByteArray("a\x03\x04\x11\x13\x1a\xff");
    }

    void replyComesUnchanged()
    {
        QFETCH(QString, phone);
        QFETCH(QByteArray, command);
        Bench bench(phone);
        QVERIFY(bench.isOpen);
        const QByteArray expected = answer(profile(phone), command);
        bench.port.write(command + '\r');
        QVERIFY(bench.receives(expected.size()));
        QCOMPARE(bench.port.read(), expected);
        QVERIFY(bench.port.read().isEmpty());
    }

    void promptComesInOneChunkOrTwo()
    {
        Bench whole(u"IP 7"_s);
        whole.port.write(kQuery);
        QVERIFY(whole.receives(49));
        QCOMPARE(whole.chunks.last().size(), 24);

        Bench split(u"IP 7,prompt=split"_s);
        split.port.write(kQuery);
        QVERIFY(split.receives(49));
        QCOMPARE(split.chunks.last(), QByteArray(") "));
    }

    void promptKeepsBehindTheEcho()
    {
        Bench bench(u"IP 7"_s);
        bench.phone.setPromptDelay(150ms);
        QElapsedTimer clock;
        clock.start();
        bench.port.write(kQuery);
        QVERIFY(bench.receives(19));
        QVERIFY(!bench.chunks.join().contains(":-)"));
        QVERIFY(bench.receives(49));
        QVERIFY(clock.elapsed() >= 150);
    }

    void commandsAreAnsweredInTurn()
    {
        Bench bench(u"IP 7"_s);
        QSignalSpy heard(&bench.phone, &SimulatedPhone::commandReceived);
        bench.port.write("syscfg print RMd#\rfo");
        bench.port.write("o\r");
        const QByteArray expected = answer(profile(u"IP 7"_s), "syscfg print RMd#") + answer(profile(u"IP 7"_s), "foo");
        QVERIFY(bench.receives(expected.size()));
        QCOMPARE(bench.port.read(), expected);
        QCOMPARE(heard.value(1).value(0).toByteArray(), QByteArray("foo"));
    }

    void buttonTestHearsOnlyItsEnd()
    {
        Bench bench(u"IP 7"_s);
        bench.phone.setPromptDelay(2ms);
        bench.port.write("buttoncnt --dqe\rsyscfg print RMd#\r/q\r");
        const QByteArray expected = answer(profile(u"IP 7"_s), "buttoncnt --dqe") + answer(profile(u"IP 7"_s), "/q");
        QVERIFY(bench.receives(expected.size()));
        QCOMPARE(bench.port.read(), expected);
        bench.chunks.clear();
        bench.port.write("testmemory --1MB\r");
        const QByteArray test = answer(profile(u"IP 7"_s), "testmemory --1MB");
        QVERIFY(bench.receives(test.size()));
        QVERIFY(bench.chunks.size() > 5); // its progress comes line by line
        bench.chunks.clear();
        bench.port.write("Shutdown\rsn\r");
        QVERIFY(bench.receives(10));
        QVERIFY(!QTest::qWaitFor([&] { return bench.chunks.join().size() > 10; }, 100));
    }

    void silentPhoneOnlyHears()
    {
        Bench bench(u"IP 7,silent"_s);
        QSignalSpy heard(&bench.phone, &SimulatedPhone::commandReceived);
        bench.port.write(kQuery);
        QVERIFY(heard.wait(3000));
        QVERIFY(!QTest::qWaitFor([&] { return !bench.chunks.isEmpty(); }, 100)); // nor does the line echo by itself
    }

    void hangUpKeepsWhatCame_data()
    {
        QTest::addColumn<int>("bytes");
        QTest::newRow("before the first byte") << 0;
        QTest::newRow("in the echo") << 7;
        QTest::newRow("in the body") << 1200;
        QTest::newRow("behind a number's point") << 130;
    }

    void hangUpKeepsWhatCame()
    {
        QFETCH(int, bytes);
        Bench bench(u"IP 6s,drop@%1"_s.arg(bytes));
        bench.port.write("pmuadc --read all\r");
        QVERIFY(bench.lost.wait(3000));
        QVERIFY(!bench.port.isOpen());
        QCOMPARE(bench.port.read(), answer(profile(u"IP 6s"_s), "pmuadc --read all").first(bytes));

        bench.port.write(kQuery);
        bench.port.discardInput();
        QVERIFY(bench.port.read().isEmpty());
        QVERIFY(!QTest::qWaitFor([&] { return bench.lost.size() > 1; }, 100));
        QCOMPARE(bench.lost.size(), 1);
    }

    void hangUpWhileIdleIsSeenAtOnce()
    {
        Bench bench(u"IP 7"_s);
        bench.phone.unplug();
        QVERIFY(bench.phone.device().isEmpty());
        QElapsedTimer clock;
        clock.start();
        QVERIFY(bench.lost.wait(3000));
        QVERIFY2(clock.elapsed() < 100, qPrintable(QString::number(clock.elapsed())));
    }

    void aNewPhoneOpensAfterALoss()
    {
        Bench bench(u"IP 7,drop@5"_s);
        bench.port.write(kQuery);
        QVERIFY(bench.lost.wait(3000));
        SimulatedPhone next(profile(u"IP 8"_s), 0);
        next.setPromptDelay(20ms);
        QVERIFY(bench.port.open(next.device()));
        QVERIFY(bench.port.read().isEmpty()); // nothing of the phone before
        bench.chunks.clear();
        bench.port.write(kQuery);
        QVERIFY(bench.receives(49));
        QVERIFY(bench.port.read().contains("A1863"));
        QCOMPARE(bench.lost.size(), 1);
    }

    void closedByUsIsNoLoss()
    {
        Bench bench(u"IP 7"_s);
        bench.port.close();
        bench.phone.unplug();
        QVERIFY(!QTest::qWaitFor([&] { return !bench.lost.isEmpty(); }, 100));
    }
};

QTEST_GUILESS_MAIN(TestLine)

#include "tst_line.moc"
