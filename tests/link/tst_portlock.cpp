#include "columns.h"
#include "openerror.h"
#include "portholder.h"
#include "portlock.h"
#include "serialport.h"
#include "simulatedphone.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kHold = "--hold"_L1;

/// A phone whose device has a second name.
struct Bench
{
    Bench() { isReady = QFile::link(phone.device(), otherName); }

    SimulatedPhone phone{*profileFor(u"IP 7"_s), 0};
    QTemporaryDir folder;
    QString otherName = folder.filePath(u"box"_s);
    bool isReady = false;
};

/// A second run of this very program that opens the device and says what came of it.
struct OtherRun
{
    explicit OtherRun(const QString &device)
    {
        process.start(QCoreApplication::applicationFilePath(), {kHold, device});
    }
    ~OtherRun() { end(); }

    QByteArray outcome()
    {
        const bool told = QTest::qWaitFor([this] { return process.canReadLine(); }, 20000);
        return told ? process.readLine().trimmed() : QByteArray("nothing");
    }
    bool end()
    {
        process.kill();
        return QTest::qWaitFor([this] { return process.state() == QProcess::NotRunning; }, 20000);
    }

    QProcess process;
};

Notice held(const QString &device, qint64 pid)
{
    return {u"REMEDY_HELD_BY"_s, {device, u"tst_portlock"_s, QString::number(pid)}};
}

} // namespace

static QStringList told(const Trouble &trouble)
{
    QStringList lines;
    for (const Notice &remedy : trouble.remedies)
        lines.append((QStringList{remedy.key} + remedy.arguments).join(u' '));
    return lines;
}

class TestPortLock : public QObject
{
    Q_OBJECT

private slots:
    void onlyOneOfTwoPorts()
    {
        Bench bench;
        QVERIFY(bench.isReady);
        SerialPort first;
        QVERIFY(first.open(bench.otherName));
        for (const QString &device : {bench.phone.device(), bench.otherName}) {
            SerialPort second;
            const Result<Done> opened = second.open(device);
            QVERIFY(!opened && !second.isOpen());
            QCOMPARE(opened.trouble(),
                     (Trouble{{u"MSG_PORTA_EM_USO"_s, {device}}, {held(device, QCoreApplication::applicationPid())}}));
        }
        QVERIFY(first.open(bench.phone.device())); // the loser has not taken the lock with it
        first.close();
        SerialPort second;
        QVERIFY(second.open(bench.otherName));
    }

    void onlyOneOfTwoPrograms()
    {
        Bench bench;
        OtherRun other(bench.phone.device());
        QCOMPARE(other.outcome(), "open");
        SerialPort port;
        const Result<Done> opened = port.open(bench.otherName);
        QVERIFY(!opened);
        QCOMPARE(opened.trouble().remedies, QList{held(bench.otherName, other.process.processId())});
    }

    void killedOwnerLeavesNothing()
    {
        Bench bench;
        for (const QString &device : {bench.phone.device(), bench.otherName}) {
            OtherRun other(bench.otherName);
            QCOMPARE(other.outcome(), "open");
            QVERIFY(other.end());
            QCOMPARE(holderOf(bench.phone.device()), std::nullopt);
            SerialPort port;
            QVERIFY(port.open(device));
        }
    }

    void crowdHasOneWinner()
    {
        Bench bench;
        std::vector<std::unique_ptr<OtherRun>> crowd;
        crowd.reserve(6);
        for (int i = 0; i < 6; ++i)
            crowd.push_back(std::make_unique<OtherRun>(i % 2 ? bench.otherName : bench.phone.device()));
        QList<QByteArray> outcomes;
        for (const auto &run : crowd)
            outcomes.append(run->outcome());
        QCOMPARE(outcomes.count("open"), 1);
        QCOMPARE(outcomes.count("MSG_PORTA_EM_USO"), 5);
    }

    void lockEndsWithALoss()
    {
        Bench bench;
        SerialPort port;
        QVERIFY(port.open(bench.phone.device()));
        const QString lockFile = lockFileOf(bench.phone.device());
        const int file = ::open(QFile::encodeName(lockFile).constData(), O_RDWR | O_CLOEXEC);
        QVERIFY(file >= 0);
        QVERIFY(::flock(file, LOCK_EX | LOCK_NB) != 0);
        bench.phone.unplug();
        QTRY_VERIFY(!port.isOpen());
        QCOMPARE(::flock(file, LOCK_EX | LOCK_NB), 0);
        ::close(file);
    }

    /// Terminals that keep no lock file claim the device itself.
    void otherProgramsClaim()
    {
        Bench bench;
        const int line = ::open(QFile::encodeName(bench.phone.device()).constData(), O_RDWR | O_NOCTTY | O_CLOEXEC);
        QCOMPARE(::flock(line, LOCK_EX | LOCK_NB), 0);
        SerialPort port;
        const Result<Done> opened = port.open(bench.phone.device());
        QVERIFY(!opened && !port.isOpen());
        QCOMPARE(opened.trouble().remedies, QList<Notice>({{u"REMEDY_IN_USE"_s, {bench.phone.device()}}}));
        ::close(line);
        QVERIFY(port.open(bench.phone.device()));
    }

    void programThatLocksNothingIsSeen()
    {
        Bench bench;
        QProcess reader;
        reader.start(u"sh"_s, {u"-c"_s, u"exec 3<\"$1\"; echo ready; read line"_s, u"sh"_s, bench.otherName});
        QVERIFY(QTest::qWaitFor([&] { return reader.canReadLine(); }, 20000));
        QCOMPARE(holderOf(bench.phone.device()), std::optional(PortHolder{reader.processId(), u"sh"_s}));
        reader.write("\n");
        QVERIFY(QTest::qWaitFor([&] { return reader.state() == QProcess::NotRunning; }, 20000));
        QCOMPARE(holderOf(bench.phone.device()), std::nullopt);
    }

    void lockNotes_data()
    {
        columns<QByteArray, qint64, QString>({"note", "pid", "program"});
        QTest::newRow("number, program, machine")
            << QByteArray("4711\nour term\nbench\n") << qint64(4711) << u"our term"_s;
        QTest::newRow("padded number alone") << QByteArray("       812\n") << qint64(812) << QString();
        QTest::newRow("all on one line") << QByteArray("       812 minicom root\n") << qint64(812) << u"minicom"_s;
        QTest::newRow("emptied") << QByteArray() << qint64(0) << QString();
        QTest::newRow("words") << QByteArray("minicom 812\n") << qint64(0) << QString();
        QTest::newRow("every process of the group") << QByteArray("0\n") << qint64(0) << QString();
        QTest::newRow("every process there is") << QByteArray("-1\n") << qint64(0) << QString();
        QTest::newRow("too large for a process") << QByteArray("4294967297\n") << qint64(0) << QString();
    }

    void lockNotes()
    {
        QFETCH(QByteArray, note);
        const PortHolder holder = notedHolder(note).value_or(PortHolder{});
        QTEST(holder.pid, "pid");
        QTEST(holder.program, "program");
    }

    void remedies_data()
    {
        columns<OpenFacts, QStringList>({"facts", "remedies"});
        const QString usb = u"/dev/ttyUSB0"_s;
        const QString byId = u"/dev/serial/by-id/usb-Box-if00"_s;
        const PortHolder term{812, u"minicom"_s};
        const PortHolder modemManager{600, u"ModemManager"_s};
        const QStringList both{u"init"_s, u"brltty"_s, u"ModemManager"_s};
        const auto row = [](const char *name, const OpenFacts &facts, const QStringList &keys) {
            QTest::newRow(name) << facts << keys;
        };

        row("not in the group", {.device = usb, .group = DeviceGroup{u"dialout"_s}}, {u"REMEDY_GROUP dialout"_s});
        row("old login", {.device = usb, .group = DeviceGroup{u"dialout"_s, true}}, {u"REMEDY_NEW_LOGIN dialout"_s});
        row("a group that may not either", {.device = usb, .group = DeviceGroup{u"root"_s, true, false}},
            {u"REMEDY_DEVICE_RIGHTS "_s + usb});
        row("the group comes first",
            {.device = usb, .group = DeviceGroup{u"dialout"_s}, .holder = term, .running = both},
            {u"REMEDY_GROUP dialout"_s});
        row("held by somebody", {.device = usb}, {u"REMEDY_IN_USE "_s + usb});
        row("held by a known program", {.device = usb, .holder = term, .orphanedLock = u"/tmp/LCK..x"_s},
            {u"REMEDY_HELD_BY /dev/ttyUSB0 minicom 812"_s});
        row("its name is hidden", {.device = usb, .holder = PortHolder{812, {}}}, {u"REMEDY_IN_USE "_s + usb});
        row("lock of a program that is gone", {.device = usb, .orphanedLock = u"/run/lock/LCK..ttyUSB0"_s},
            {u"REMEDY_ORPHANED_LOCK /run/lock/LCK..ttyUSB0"_s});
        row("the thief has it", {.device = usb, .holder = modemManager, .running = {u"ModemManager"_s}},
            {u"REMEDY_MODEMMANAGER"_s});
        row("the thief has a port that is no adapter", {.device = u"/dev/ttyS0"_s, .holder = modemManager},
            {u"REMEDY_MODEMMANAGER"_s});
        row("thieves run beside", {.device = usb, .holder = term, .running = both},
            {u"REMEDY_HELD_BY /dev/ttyUSB0 minicom 812"_s, u"REMEDY_MODEMMANAGER"_s, u"REMEDY_BRLTTY"_s});
        row("no adapter, no thief", {.device = u"/dev/ttyS0"_s, .running = both}, {u"REMEDY_IN_USE /dev/ttyS0"_s});
        row("adapter under another name", {.device = u"/tmp/box"_s, .canonicalDevice = usb, .running = {u"brltty"_s}},
            {u"REMEDY_IN_USE /tmp/box"_s, u"REMEDY_BRLTTY"_s});
        row("adapter by its maker's name", {.device = byId, .running = {u"brltty"_s}},
            {u"REMEDY_IN_USE "_s + byId, u"REMEDY_BRLTTY"_s});
    }

    void remedies()
    {
        QFETCH(OpenFacts, facts);
        const Trouble trouble = refusedTrouble(facts);
        const QString cause = facts.group ? u"PORT_NOT_ALLOWED"_s : u"MSG_PORTA_EM_USO"_s;
        QCOMPARE(trouble.what, (Notice{cause, {facts.device}}));
        QTEST(told(trouble), "remedies");
    }

    void missingDevice()
    {
        const auto remedies = [](const QString &port, const QStringList &running) {
            return told(missingTrouble({.device = port, .running = running}));
        };
        const QStringList both{u"brltty"_s, u"ModemManager"_s};
        const QStringList plain{u"REMEDY_NO_PORT"_s};
        QCOMPARE(remedies(u"/dev/ttyUSB0"_s, both), plain + QStringList{u"REMEDY_BRLTTY"_s}); // the other does not
        QCOMPARE(remedies(u"3"_s, both), plain + QStringList{u"REMEDY_BRLTTY"_s});
        QCOMPARE(remedies(u"3"_s, {u"bash"_s}), plain);
        QCOMPARE(remedies(u"/dev/ttyS7"_s, both), plain);
    }
};

static int hold(QCoreApplication &application, const QString &device)
{
    SerialPort port;
    const Result<Done> opened = port.open(device);
    std::puts(opened ? "open" : qPrintable(opened.trouble().what.key));
    std::fflush(stdout);
    return application.exec(); // until killed
}

int main(int count, char **arguments)
{
    QCoreApplication application(count, arguments);
    if (application.arguments().value(1) == kHold)
        return hold(application, application.arguments().value(2));
    TestPortLock test;
    return QTest::qExec(&test, count, arguments);
}
#include "tst_portlock.moc"
