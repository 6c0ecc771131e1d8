#include "reconnector.h"
#include "sessionbench.h"
#include "settings.h"

#include <QSignalSpy>
#include <QTest>

namespace {

const QByteArray kRecord = answered("syscfg print RMd#", "A1688");

/// A connected session whose device can be taken away and put back.
struct Bench : SessionBench
{
    explicit Bench(const QString &wanted, const QString &address = u"3"_s)
    {
        session.keep([&](Store &kept) { return setSetting(kept, u"auto-reconnect"_s, wanted); });
        session.connectOrDisconnect(address);
        answer(kRecord);
    }

    void answer(const QByteArray &bytes)
    {
        port.coming = {bytes};
        deliver();
        for (int tick = 0; tick < 11 && session.Status() == u'1' && !session.isReady(); ++tick)
            session.TimerValidaPorta_Timer();
        log.clear();
    }
    void look(int times)
    {
        for (int i = 0; i < times; ++i)
            reconnector.watch().tick();
    }

    QList<PortEntry> ports{{.device = u"/dev/box"_s}};
    Reconnector reconnector{session, [this](const QString &) { return ports; }};
};

} // namespace

class TestReconnector : public QObject
{
    Q_OBJECT

private slots:
    void goesOnUntilThePhoneAnswers()
    {
        Bench bench(u"on"_s);
        QVERIFY(bench.session.isReady());
        bench.port.die();
        bench.ports.clear();
        bench.look(1000); // far more than a minute
        QVERIFY(!bench.port.isOpen());
        bench.ports = {{.device = u"/dev/box"_s}};
        bench.look(2);
        QVERIFY(bench.port.isOpen());
        bench.log.clear();
        bench.answer({}); // the Box is there, the phone still starts
        QCOMPARE(bench.session.Status(), u"0"_s);
        bench.look(2);
        QVERIFY(bench.port.isOpen());
        bench.answer(kRecord);
        QVERIFY(bench.session.isReady());
        QVERIFY(!bench.reconnector.watch().isWatching());
    }

    void failsInTheLineAndTriesAgain()
    {
        Bench bench(u"on"_s);
        bench.port.die();
        bench.log.clear();
        bench.port.opens = false;
        bench.look(3);
        const QStringList told{u"MSG_PORTA_EM_USO"_s, u"failed"_s};
        QCOMPARE(bench.log, told + told);
        bench.port.opens = true;
        bench.look(1);
        QVERIFY(bench.port.isOpen());
        bench.port.coming.clear();
        bench.deliver();
        bench.log.clear();
        for (int tick = 0; tick < 11; ++tick)
            bench.session.TimerValidaPorta_Timer();
        QVERIFY(!bench.log.contains(u"MSG_PORTA"_s)); // the box that follows only where a person asked
    }

    void offerStays()
    {
        Bench bench(u"off"_s);
        QSignalSpy offered(&bench.reconnector, &Reconnector::offered);
        QSignalSpy withdrawn(&bench.reconnector, &Reconnector::withdrawn);
        bench.port.die();
        bench.look(9);
        QCOMPARE(offered.size(), 1);
        bench.ports.clear();
        bench.look(1000);
        bench.port.opens = false;
        bench.reconnector.reconnect();
        bench.session.connectOrDisconnect(u"4"_s);
        QCOMPARE(withdrawn.size(), 0);
        QVERIFY(!bench.port.isOpen());
        bench.port.opens = true;
        bench.reconnector.reconnect();
        QVERIFY(bench.port.isOpen());
        QCOMPARE(withdrawn.size(), 1);
    }

    void simulatedPhoneDoesNotReturn()
    {
        Bench bench(u"on"_s, u"sim:IP 7"_s);
        bench.port.die();
        QVERIFY(!bench.reconnector.watch().isWatching());
    }
};

QTEST_GUILESS_MAIN(TestReconnector)
#include "tst_reconnector.moc"
