#include "catalogue.h"
#include "columns.h"
#include "home.h"
#include "ownfolders.h"
#include "portresolver.h"
#include "railrows.h"
#include "serialport.h"
#include "sessionbench.h"
#include "settings.h"

#include <QDir>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace std::chrono_literals;
using Kind = ModelReply::Kind;

static const QStringList kChooseByHand = {u"MSG_ERRO_NAND"_s, u"MSG_SELECIONE_MODELO"_s, u"choose"_s, u"settled"_s};

/// The session from the connect button to the known model.
class TestSession : public QObject
{
    Q_OBJECT

private slots:
#ifdef Q_OS_UNIX
    // Each is told, for they are closed one after the other within one moment.
    void openFoldersAreClosedAndLogged()
    {
        const QTemporaryDir user;
        qputenv("XDG_DATA_HOME", QFile::encodeName(user.filePath(u"data"_s)));
        qputenv("XDG_STATE_HOME", QFile::encodeName(user.filePath(u"state"_s)));
        qunsetenv("PRELT_HOME");
        for (const QString &folder : {stateFolder(), homeFolder()}) {
            QVERIFY(QDir().mkpath(folder));
            QVERIFY(QFile::setPermissions(folder, QFile::Permissions(0x7055)));
        }
        keepFoldersToOwner({});
        for (const QString &folder : {stateFolder(), homeFolder()})
            QVERIFY(!QFileInfo(folder).permission(QFile::ReadOther));
        const QStringList logs = QDir(stateFolder()).entryList({u"exchange-*.log"_s});
        QCOMPARE(logs.size(), 1);
        QFile log(stateFolder() + u'/' + logs.first());
        QVERIFY(log.open(QIODevice::ReadOnly));
        const QByteArray text = log.readAll();
        QVERIFY(text.contains(stateFolder().toUtf8() + '\n') && text.contains(homeFolder().toUtf8() + '\n'));
    }
#endif

    void recordIsCut_data()
    {
        columns<QByteArray, Kind, QString>({"bytes", "kind", "record"});
        const auto row = [](const char *name, const QByteArray &bytes, Kind kind, const QString &record) {
            QTest::newRow(name) << bytes << kind << record;
        };
        const auto body = [](const QByteArray &text) { return answered("syscfg print RMd#", text); };
        row("echo ends CR LF", body("A1660"), Kind::Identified, u"A1660"_s);
        row("CR LF everywhere", body("A1660\r"), Kind::Identified, u"A1660"_s);
        row("echo ends LF", body("A1660").replace("#\r\n", "#\n"), Kind::Identified, u"A1660"_s);
        row("no record", body("Not Found!"), Kind::NotANumber, u"Not Found!"_s);
        row("driver missing", body("SystemConfig Driver is missing!"), Kind::DriverMissing, {});
        row("unknown command", body("Command \"syscfg\" not found!"), Kind::NotANumber,
            u"Command \"syscfg\" not found!"_s);
        row("Command beside a number", body("A1660\nCommand"), Kind::NotANumber, u"A1660\r\nCommand"_s);
        row("other letter", body("MKQK2"), Kind::NotANumber, u"MKQK2"_s);
        row("unknown number", body("A9999"), Kind::UnknownNumber, u"A9999"_s);
        row("old prompt in front", kPromptBytes + body("A1660"), Kind::NotANumber, {});
        row("prompt never came", "syscfg print RMd#\r\nA1660\n", Kind::NoRecord, {});
        row("echo lost its end", "A1660\n[0A1B2C3D:00112233] :-) ", Kind::NoRecord, {});
        row("nothing", "", Kind::NoRecord, {});
    }

    void recordIsCut()
    {
        QFETCH(QByteArray, bytes);
        const ModelReply reply = modelReply(shown(bytes));
        QTEST(reply.kind, "kind");
        QTEST(reply.record, "record");
        QCOMPARE(reply.model, reply.kind == Kind::Identified ? u"IP 7"_s : QString());
    }

    void handshakeWantsFortyOneCharacters_data()
    {
        columns<QByteArray, bool>({"bytes", "accepted"});
        QTest::newRow("silence") << QByteArray() << false;
        QTest::newRow("40 with the console's own line end") << QByteArray(38, 'x') << false;
        QTest::newRow("41") << QByteArray(39, 'x') << true;
        QTest::newRow("a line feed counts as two") << QByteArray(37, 'x') + '\n' << true;
    }

    void handshakeWantsFortyOneCharacters()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, accepted);
        SessionBench bench;
        bench.connectWith(bytes);
        QCOMPARE(bench.session.lamp(), Lamp::Amarelo);
        for (int tick = 1; tick <= 10 && !bench.session.isReady(); ++tick)
            bench.session.TimerValidaPorta_Timer();
        QCOMPARE(bench.session.isReady(), accepted);
        QCOMPARE(bench.log,
                 accepted ? QStringList({u"PHONE_WITHOUT_ECHO"_s, u"choose"_s, u"settled"_s}) : QStringList());
        if (accepted)
            return;
        bench.session.TimerValidaPorta_Timer();
        QCOMPARE(bench.log, QStringList({u"MSG_PORTA_NAO_RESPONDE"_s, u"MSG_PORTA"_s, u"portsWanted"_s, u"failed"_s}));
        QCOMPARE(bench.session.Status(), u"0"_s);
        QCOMPARE(bench.session.lamp(), Lamp::Branco);
        QCOMPARE(bench.session.connectCaption(), u"Conectar"_s);
        QVERIFY(!bench.port.isOpen());
    }

    void handshakeCountsFromZeroAtEachConnect()
    {
        SessionBench bench;
        for (int connecting = 0; connecting < 3; ++connecting) {
            bench.session.connectOrDisconnect(u"3"_s);
            for (int tick = 0; tick < 20; ++tick)
                bench.session.TimerValidaPorta_Timer();
            QCOMPARE(bench.session.Status(), u"2"_s); // only delivered replies are counted
            bench.deliver();
            for (int tick = 0; tick < 10; ++tick)
                bench.session.TimerValidaPorta_Timer();
            QCOMPARE(bench.session.Status(), u"1"_s);
            if (connecting == 0)
                bench.session.connectOrDisconnect(u"3"_s);
            else
                bench.session.TimerValidaPorta_Timer();
            QCOMPARE(bench.session.Status(), u"0"_s);
        }
    }

    void buttonByStatus()
    {
        SessionBench bench;
        bench.session.connectOrDisconnect(u"3"_s);
        bench.session.connectOrDisconnect(u"3"_s);
        QCOMPARE(bench.session.Status(), u"2"_s);
        QCOMPARE(bench.session.St1(), u"Conectando"_s);
        bench.deliver();
        bench.session.connectOrDisconnect(u"3"_s); // delivered, not accepted yet: the button ends it
        QCOMPARE(bench.session.Status(), u"0"_s);

        bench.accept("A1660");
        QVERIFY(bench.session.request(u"15"_s, u"pmuadc --read all"_s));
        bench.session.connectOrDisconnect(u"3"_s);
        QCOMPARE(bench.session.Status(), u"3"_s);
        QVERIFY(bench.port.isOpen());
        bench.deliver();
        bench.session.connectOrDisconnect(u"3"_s);
        QCOMPARE(bench.session.Status(), u"0"_s);
        QCOMPARE(bench.session.lbModelo(), QString());
        QVERIFY(!bench.port.isOpen());
        QCOMPARE(bench.log, QStringList({u"REFUSED_BUSY"_s, u"settled"_s, u"REFUSED_BUSY"_s}));
    }

    void portThatDoesNotOpen()
    {
        SessionBench bench;
        SerialPort port;
        PortResolver resolver;
        const DeviceResolver find = [&](const PortAddress &address) { return resolver.deviceFor(address); };
        Session session({port, bench.store, bench.boxes, find});
        const QSignalSpy failed(&session, &Session::connectFailed);
        for (const QString &text : {u"abc"_s, u"0"_s, u"/dev/no-such-line"_s, u"sim:IP 3"_s})
            session.connectOrDisconnect(text);
        QCOMPARE(bench.log, QStringList({u"SEM_PORTA"_s, u"SEM_PORTA"_s, u"MSG_PORTA_INVALIDA"_s, u"SIM_UNKNOWN"_s}));
        QCOMPARE(session.Status(), u"0"_s);
        QCOMPARE(failed.size(), 4);
    }

    void helpVideoForPortsAboveSixteen()
    {
        SessionBench bench;
        const auto openedAfter = [&](Answer answer, const QString &video) {
            bench.session.keep([&](Store &store) { return setSetting(store, u"help-video"_s, video); });
            bench.boxes.answer = answer;
            bench.opened.clear();
            bench.session.connectOrDisconnect(u"17"_s);
            return bench.opened.join(u' ');
        };
        const QString video = u"https://help.example/port"_s;
        QCOMPARE(openedAfter(Answer::Yes, {}), QString());
        QCOMPARE(openedAfter(Answer::No, video), QString());
        QCOMPARE(openedAfter(Answer::Cancel, video), QString());
        QCOMPARE(bench.log.mid(4), QStringList({u"ask Porta Serial COM"_s, u"failed"_s}));
        QCOMPARE(openedAfter(Answer::Yes, video), video);
        QVERIFY(!bench.port.isOpen());
        bench.session.connectOrDisconnect(u"16"_s);
        QVERIFY(bench.port.isOpen());
    }

    void modelAfterConnecting_data()
    {
        // The bodies answer one query each, the last one all that follow.
        columns<QList<QByteArray>, int, int, QStringList, QString>({"bodies", "queries", "ticks", "log", "label"});
        using Bodies = QList<QByteArray>;
        const QStringList settled = {u"settled"_s};
        const QStringList silently = {u"choose"_s, u"settled"_s};
        const QByteArray noCommand = "Command \"syscfg\" not found!";
        const QByteArray noDriver = "SystemConfig Driver is missing!";
        QTest::newRow("known") << Bodies{"A1660"} << 1 << 0 << settled << u"IP 7"_s;
        QTest::newRow("unknown number") << Bodies{"A9999"} << 1 << 0 << kChooseByHand << u"*A9999*"_s;
        QTest::newRow("driver missing") << Bodies{noDriver} << 1 << 0 << kChooseByHand << QString();
        QTest::newRow("known on the repeat") << Bodies{"MKQK2", "A1660"} << 2 << 1 << settled << u"IP 7"_s;
        QTest::newRow("Not Found on the repeat") << Bodies{"Not Found!"} << 2 << 1 << kChooseByHand << QString();
        const QStringList hinted = {u"choose"_s, u"MODEL_QUERY_UNKNOWN"_s, u"settled"_s};
        QTest::newRow("no such command") << Bodies{noCommand} << 2 << 15 << hinted << QString();
        QTest::newRow("another letter for good") << Bodies{"MKQK2"} << 3 << 15 << silently << QString();
    }

    void modelAfterConnecting()
    {
        QFETCH(QList<QByteArray>, bodies);
        QFETCH(int, queries);
        SessionBench bench;
        for (int i = 1; i < 5; ++i)
            bench.port.answers.append({answered("syscfg print RMd#", bodies.value(i, bodies.last()))});
        bench.port.answers.prepend({answered("syscfg print RMd#", bodies.first())});
        bench.session.connectOrDisconnect(u"3"_s);
        bench.deliver();
        bench.session.TimerValidaPorta_Timer();
        int ticks = 0;
        while (bench.log.isEmpty() && ticks < 99) {
            if (bench.session.Status() == u'3') {
                bench.session.TimerVerificaVersao_Timer(); // in flight: neither counted nor read
                bench.deliver();
            }
            bench.session.TimerVerificaVersao_Timer();
            ++ticks;
        }
        QTEST(ticks, "ticks");
        QTEST(bench.log, "log");
        QTEST(bench.session.lbModelo(), "label");
        QCOMPARE(bench.port.journal.count("syscfg print RMd#\r"), queries);
        QCOMPARE(bench.session.isModelKnown(), bench.session.lbModelo() == u"IP 7");
        QCOMPARE(bench.session.txtConsole().count(u"repita o processo"), bench.log.size() == 3 && queries == 2 ? 1 : 0);
        QVERIFY(bench.session.isReady());
    }

    void screenWaitsForTheModel_data()
    {
        // "picked" says when somebody chooses by hand.
        columns<QByteArray, QString, int, QString, QStringList>({"body", "picked", "ticks", "event", "log"});
        const QByteArray other = "MKQK2";
        const QStringList settled = {u"settled"_s};
        QTest::newRow("told") << QByteArray("A1660") << QString() << 1 << u"resumed"_s << settled;
        QTest::newRow("unknown") << QByteArray("A9999") << QString() << 1 << u"no model"_s << kChooseByHand;
        QTest::newRow("Not Found") << QByteArray("Not Found!") << QString() << 1 << u"no model"_s << kChooseByHand;
        QTest::newRow("given up") << other << QString() << 15 << u"no model"_s << kChooseByHand;
        QTest::newRow("picked while the query runs") << other << u"running"_s << 1 << u"resumed"_s << QStringList();
        QTest::newRow("picked while waiting") << other << u"waiting"_s << 0 << u"resumed"_s << QStringList();
    }

    void screenWaitsForTheModel()
    {
        QFETCH(QByteArray, body);
        QFETCH(QString, picked);
        SessionBench bench;
        bench.accept("SystemConfig Driver is missing!");
        bench.log.clear();
        bench.port.answers = {{answered("syscfg print RMd#", body)}};
        QVERIFY(bench.session.requestModel(u"15"_s));
        QCOMPARE(bench.session.St1(), u"..."_s);
        if (picked == u"running")
            bench.session.chooseModel(u"IP 7"_s);
        bench.deliver();
        if (picked == u"waiting")
            bench.session.chooseModel(u"IP 7"_s);
        int ticks = 0;
        for (; bench.screen.events.isEmpty() && ticks < 99; ++ticks)
            bench.session.TimerVersao_Timer();
        QTEST(ticks, "ticks");
        QTEST(bench.screen.events.join(u' '), "event");
        QTEST(bench.log, "log");
        QCOMPARE(bench.session.isModelKnown(), bench.screen.events.first() == u"resumed");
        bench.session.TimerVersao_Timer();
        QCOMPARE(bench.screen.events.size(), 1);
    }

    void oneScreenWaitsAtATime()
    {
        SessionBench bench;
        Listener other;
        bench.session.attach(u"16"_s, &other);
        bench.accept("SystemConfig Driver is missing!");
        bench.log.clear();
        bench.port.answers = {{answered("syscfg print RMd#", "MKQK2")}};
        QVERIFY(bench.session.requestModel(u"15"_s));
        bench.deliver();
        QVERIFY(!bench.session.requestModel(u"16"_s));           // the first one would wait for ever
        QVERIFY(!bench.session.request(u"16"_s, u"i2c -s 0"_s)); // its reply would be read for a model
        QCOMPARE(bench.log, QStringList({u"REFUSED_BUSY"_s, u"REFUSED_BUSY"_s}));
        bench.session.chooseModel(u"IP 7"_s);
        QCOMPARE(bench.screen.events, QStringList{u"resumed"_s});
        QVERIFY(bench.session.request(u"16"_s, u"i2c -s 0"_s));
        bench.deliver();
        bench.session.connectOrDisconnect(u"3"_s);

        bench.accept("SystemConfig Driver is missing!");
        QVERIFY(bench.session.requestModel(u"16"_s));
        bench.deliver();
        bench.session.connectOrDisconnect(u"3"_s);
        QCOMPARE(other.events, QStringList({u"taken"_s, u"disconnected"_s}));
        QVERIFY(other.last.cut && other.last.reply.isEmpty());
    }

    void lastModelOnlyPreselects()
    {
        SessionBench bench;
        const auto last = [&] { return *lastModel(*Store::open(bench.path, Store::Access::Read, 0s)); };
        bench.session.keep([](Store &store) { return rememberModel(store, u"IP 6s"_s); });
        bench.session.load();
        QCOMPARE(bench.session.model(), u"IP 6s"_s);
        QVERIFY(!bench.session.isModelKnown());
        bench.session.chooseModel(u"IP 6s"_s); // picking what was pre-selected makes it known
        QVERIFY(bench.session.isModelKnown());
        bench.accept("SystemConfig Driver is missing!");
        QCOMPARE(bench.session.model(), u"IP 6s"_s);
        QVERIFY(!bench.session.isModelKnown());
        bench.session.chooseModel(u"IP 8"_s);
        QCOMPARE(last(), u"IP 8"_s);
        bench.session.connectOrDisconnect(u"3"_s);
        bench.accept("A1660");
        QCOMPARE(last(), u"IP 7"_s);
    }

    void modelChangeClearsReadings()
    {
        SessionBench bench;
        const auto rows = [&] {
            return *railRows(*Store::open(bench.path, Store::Access::Read, 0s), {u"IP 7"_s, 2, RailOrder::Orig, false});
        };
        bench.session.chooseModel(u"IP 7"_s);
        RailRow read = rows().first();
        read.leitura = u"1.20 V"_s;
        const auto write = [read](Store &store) { return writeReadings(store, {read}); };
        bench.session.keep(write);
        const QSignalSpy cleared(&bench.session, &Session::readingsCleared);
        bench.accept("A1660"); // the same model, but perhaps another phone
        QCOMPARE(rows().first().leitura, QString());
        QCOMPARE(cleared.size(), 1);
        bench.session.keep(write);
        bench.session.chooseModel(u"IP 8"_s);
        QCOMPARE(rows().first().leitura, QString());
        QCOMPARE(cleared.size(), 2);
        bench.session.keep(write);
        bench.session.load(); // a new start
        QCOMPARE(rows().first().leitura, QString());
    }

    void simulatedPhoneEndToEnd()
    {
        const PhoneProfile profile = *profileFor(u"IP X,crlf"_s);
        SimulatedPhone phone(profile, 0);
        SessionBench bench;
        SerialPort port;
        Session session({port,
                         bench.store,
                         bench.boxes,
                         [&](const PortAddress &) { return phone.device(); },
                         {},
                         {.validaPorta = 10ms, .fecha = 10ms, .poll = 200ms}});
        session.attach(u"15"_s, &bench.screen);
        session.connectOrDisconnect(u"3"_s);
        QTRY_COMPARE(session.lbModelo(), u"IP X"_s);
        QVERIFY(session.request(u"15"_s, u"pmuadc --read all"_s));
        QTRY_COMPARE(bench.screen.events, QStringList{u"taken"_s});
        QCOMPARE(bench.screen.last.reply, shown(answer(profile, "pmuadc --read all")));
        QVERIFY(!bench.screen.last.cut);
        phone.unplug();
        QTRY_COMPARE(session.Status(), u"0"_s);
        QTRY_VERIFY(!port.isOpen());
        QCOMPARE(bench.log, QStringList()); // no box stands in the way of connecting again
    }
};

QTEST_GUILESS_MAIN(TestSession)
#include "tst_session.moc"
