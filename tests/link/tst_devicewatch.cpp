#include "columns.h"
#include "devicewatch.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

PortEntry at(const QString &device, const QString &serialNumber = {})
{
    return {.device = device, .serialNumber = serialNumber};
}

} // namespace

class TestDeviceWatch : public QObject
{
    Q_OBJECT

private slots:
    void whoHasReturned_data()
    {
        columns<QString, QList<PortEntry>, QString>({"serial", "now", "device"});
        using Ports = QList<PortEntry>;
        const auto usb0 = u"/dev/ttyUSB0"_s;
        const auto usb1 = u"/dev/ttyUSB1"_s;
        const auto usb2 = u"/dev/ttyUSB2"_s;
        QTest::newRow("nothing there") << u"A1"_s << Ports{} << QString();
        QTest::newRow("same name, same number") << u"A1"_s << Ports{at(usb1), at(usb0, u"A1"_s)} << usb0;
        QTest::newRow("another adapter under its name") << u"A1"_s << Ports{at(usb0, u"B2"_s)} << QString();
        QTest::newRow("an adapter without a number under its name") << u"A1"_s << Ports{at(usb0)} << QString();
        QTest::newRow("new name") << u"A1"_s << Ports{at(usb0, u"B2"_s), at(usb1, u"A1"_s)} << usb1;
        QTest::newRow("new name and old name") << u"A1"_s << Ports{at(usb1, u"A1"_s), at(usb0, u"A1"_s)} << usb0;
        QTest::newRow("two new names") << u"A1"_s << Ports{at(usb1, u"A1"_s), at(usb2, u"A1"_s)} << QString();
        QTest::newRow("was there all the time") << u"A1"_s << Ports{at(u"/dev/ttyUSB9"_s, u"A1"_s)} << QString();
        QTest::newRow("no number: the name decides") << QString() << Ports{at(usb1), at(usb0)} << usb0;
        QTest::newRow("no number: a new name is nobody") << QString() << Ports{at(usb1)} << QString();
    }

    void whoHasReturned()
    {
        QFETCH(QString, serial);
        QFETCH(QList<PortEntry>, now);
        QTEST(whereReturned(at(u"/dev/ttyUSB0"_s, serial), {u"/dev/ttyUSB9"_s}, now).value_or(QString()), "device");
    }

    void returnsWhenItStays()
    {
        const auto box = at(u"/dev/ttyUSB0"_s, u"A1"_s);
        const auto moved = at(u"/dev/ttyUSB1"_s, u"A1"_s);
        QList<PortEntry> ports{box};
        DeviceWatch watch([&](const QString &) { return ports; });
        QSignalSpy returned(&watch, &DeviceWatch::returned);
        watch.start(); // nothing was remembered
        QVERIFY(!watch.isWatching());

        watch.remember(box.device);
        watch.start();
        watch.tick(); // its name has not gone yet
        ports = {};
        watch.tick();
        ports = {moved};
        watch.tick();
        ports = {box};
        watch.tick();
        ports = {};
        watch.tick();
        ports = {box};
        watch.tick(); // there, away and there again is not there twice
        QVERIFY(returned.isEmpty());
        watch.tick();
        QCOMPARE(returned.value(0), QVariantList{box.device});
        watch.tick();
        QCOMPARE(returned.size(), 1);
        watch.tellAgain();
        watch.tick();
        QCOMPARE(returned.size(), 2);
        ports = {moved};
        watch.tick();
        watch.tick();
        QCOMPARE(returned.value(2), QVariantList{moved.device});
    }

    void anotherAdapterOfTheSameKindStays()
    {
        const auto box = at(u"/dev/ttyUSB0"_s, u"0001"_s);
        const auto twin = at(u"/dev/ttyUSB1"_s, u"0001"_s);
        QList<PortEntry> ports{box, twin};
        DeviceWatch watch([&](const QString &) { return ports; });
        QSignalSpy returned(&watch, &DeviceWatch::returned);
        watch.remember(box.device);
        ports = {twin};
        watch.start();
        for (int i = 0; i < 5; ++i)
            watch.tick();
        QVERIFY(returned.isEmpty());
    }

    void stoppedWatchIsSilent()
    {
        const auto box = at(u"/dev/ttyUSB0"_s);
        DeviceWatch watch([&](const QString &) { return QList{box}; });
        QSignalSpy returned(&watch, &DeviceWatch::returned);
        watch.remember(box.device);
        watch.start();
        watch.tick();
        watch.remember(box.device); // connected anew by hand
        QVERIFY(!watch.isWatching());
        watch.start();
        watch.tick();
        QVERIFY(returned.isEmpty()); // the look before the stop does not count
    }

    /// A device that is in no list of ports is there as long as its name leads somewhere.
    void linkKeepsItsName()
    {
        const QTemporaryDir folder;
        const QString name = folder.filePath(u"box"_s);
        const auto isThere = [&] {
            const QList<PortEntry> ports = portsNow(name);
            return std::ranges::find(ports, name, &PortEntry::device) != ports.end();
        };
        QVERIFY(!isThere());
        QVERIFY(QFile::link(folder.filePath(u"line"_s), name));
        QVERIFY(!isThere());
        QFile line(folder.filePath(u"line"_s));
        QVERIFY(line.open(QIODevice::WriteOnly));
        QVERIFY(isThere());
    }
};

QTEST_GUILESS_MAIN(TestDeviceWatch)
#include "tst_devicewatch.moc"
