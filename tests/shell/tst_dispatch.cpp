#include "columns.h"
#include "data/otherprogram.h"
#include "replycodes.h"
#include "sessionbench.h"

#include <QTest>

#include <map>

using namespace std::chrono_literals;

namespace {

/// A phone that prints something else in the place of the echo is judged without one.
constexpr auto kNoEcho = "regulatory model number #";

/// A connected session that knows its phone, its log still empty.
struct ReadyBench : SessionBench
{
    explicit ReadyBench(const QByteArray &echo = "syscfg print RMd#")
    {
        connectWith(answered(echo, "A1660"));
        session.TimerValidaPorta_Timer();
        log.clear();
        port.journal.clear();
    }
};

} // namespace

/// Commands on their way out, replies on their way to the screens, and work on its way to the store.
class TestDispatch : public QObject
{
    Q_OBJECT

private slots:
    void sendingIsRefused()
    {
        SessionBench bench;
        const auto refusal = [&](const QString &command = u"i2c -s 0"_s) {
            bench.log.clear();
            bench.port.journal.clear();
            const bool sent = bench.session.request(u"15"_s, command) || bench.session.requestModel(u"15"_s);
            return sent || !bench.port.journal.isEmpty() ? u"sent"_s : bench.log.value(0);
        };
        QCOMPARE(refusal(), u"REFUSED_NOT_CONNECTED"_s);
        bench.connectWith(answered("syscfg print RMd#", "A1660"));
        QCOMPARE(refusal(), u"REFUSED_NOT_CONNECTED"_s); // delivered, but the handshake has not accepted
        bench.session.TimerValidaPorta_Timer();
        QVERIFY(bench.session.request(u"15"_s, u"i2c -s 0"_s));
        QCOMPARE(refusal(), u"REFUSED_BUSY"_s);
        bench.session.EnviaComando();
        QCOMPARE(bench.log.last(), u"REFUSED_BUSY"_s);
        QVERIFY(bench.port.journal.isEmpty());
        bench.deliver();
        QVERIFY(!bench.session.request(u"15"_s, QString())); // whoever believed it sent would wait for ever
        QCOMPARE(bench.session.Status(), u"1"_s);
    }

    void bytesAreWritten()
    {
        ReadyBench bench;
        bench.port.coming = {"a late line\n", kPromptBytes};
        bench.port.answers = {{"bl \xE9\xFF\r\n\x80\xA0\xFF\n[0:0] :-) "}};
        QVERIFY(bench.session.request(u"15"_s, u"bl \u00E9\u00FF"_s));
        QCOMPARE(bench.port.journal, QList<QByteArray>({"discard", "bl \xE9\xFF\r"}));
        QCOMPARE(bench.title, u"Comunicando..."_s);
        bench.deliver();
        QCOMPARE(bench.screen.last.reply, u"\r\nbl \u00E9\u00FF\r\r\n\u0080\u00A0\u00FF\r\n[0:0] :-) "_s);
        QCOMPARE(bench.title, u"Tavimo Prelt"_s);
    }

    void lineDiesOnWriting()
    {
        ReadyBench bench;
        bench.port.diesOnWrite = true;
        QVERIFY(!bench.session.request(u"15"_s, u"i2c -s 0"_s));
        QCOMPARE(bench.screen.events, QStringList{u"lost"_s});
        bench.session.connectOrDisconnect(u"3"_s);
        QCOMPARE(bench.session.Status(), u"0"_s);
        bench.port.diesOnWrite = false;
        bench.accept("SystemConfig Driver is missing!");
        bench.port.diesOnWrite = true;
        QVERIFY(!bench.session.requestModel(u"15"_s));
        QCOMPARE(bench.screen.events, QStringList({u"lost"_s, u"lost"_s}));
    }

    void gathering_data()
    {
        using Chunks = QList<QByteArray>;
        columns<QString, QString, QString, Chunks, int, QString, bool>(
            {"code", "speed", "command", "chunks", "polls", "reply", "cut"});
        const auto row = [](const char *name, const QString &code, const QString &speed, const Chunks &chunks,
                            int polls, const QString &reply, bool cut, const QString &command = u"cmd"_s) {
            QTest::newRow(name) << code << speed << command << chunks << polls << reply << cut;
        };
        const QString one = u"1"_s, two = u"2"_s, battery = u"19"_s;
        const Chunks whole = {"ok\n:-) "};
        const QString shownWhole = u"\r\nok\r\n:-) "_s;
        row("prompt at once", one, one, whole, 1, shownWhole, false);
        row("prompt at once, slow setting", one, two, whole, 2, shownWhole, false);
        row("prompt at once, model query", one, one, whole, 2, shownWhole, false, u"syscfg print RMd#"_s);
        row("prompt at once, battery", battery, one, whole, 7, shownWhole, false);
        row("nothing", one, one, {}, 1, {}, true);
        row("no end", one, one, Chunks(400, "x"), 201, "\r\n"_L1 + QString(201, u'x'), true);
    }

    void gathering()
    {
        QFETCH(QString, code);
        QFETCH(QString, speed);
        QFETCH(QString, command);
        QFETCH(QList<QByteArray>, chunks);
        ReadyBench bench(kNoEcho);
        bench.session.attach(code, &bench.screen);
        bench.session.chooseSpeed(speed);
        bench.port.answers = {chunks};
        QVERIFY(bench.session.request(code, command));
        QTEST(bench.deliver(), "polls");
        QCOMPARE(bench.screen.events, QStringList{u"taken"_s});
        QCOMPARE(bench.screen.last.command, command);
        QTEST(bench.screen.last.reply, "reply");
        QTEST(bench.screen.last.cut, "cut");
        QCOMPARE(bench.session.activeCode(), u"0"_s);
        QVERIFY(bench.session.isReady());
    }

    void echoIsStrippedForItsCodes()
    {
        const QStringList stripped = {u"4"_s, u"6"_s, u"8"_s, u"9"_s, u"14"_s, u"17"_s};
        const QStringList kept = {u"1"_s,  u"2"_s,  u"3"_s,  u"5"_s,  u"7"_s,  u"10"_s,
                                  u"12"_s, u"13"_s, u"15"_s, u"16"_s, u"18"_s, u"19"_s};
        ReadyBench bench;
        std::map<QString, Listener> screens;
        for (const QString &code : stripped + kept)
            bench.session.attach(code, &screens[code]);
        for (const QString &code : stripped + kept) {
            bench.port.answers = {{"nand -a\r\n", "nand -a of nand\n:-) "}};
            QVERIFY(bench.session.request(code, u"nand -a"_s));
            bench.deliver();
            const QString whole = u"\r\nnand -a\r\r\nnand -a of nand\r\n:-) "_s;
            const QString bare = u"\r\n\r\r\n of nand\r\n:-) "_s;
            QCOMPARE(screens[code].last.reply, stripped.contains(code) ? bare : whole);
        }
        for (const auto &[code, screen] : screens)
            QCOMPARE(screen.events.size(), 1); // each its own reply and no other's
    }

    void answerBeginsAtItsEcho_data()
    {
        columns<QByteArray, QString, bool>({"came", "taken", "cut"});
        const QByteArray tail = "Key: 1\n[0:0] :-) ";
        QTest::newRow("a tail alone") << tail << QString() << true;
        QTest::newRow("before the answer") << tail + "cmd\r\nok\n:-) " << u"\r\ncmd\r\r\nok\r\n:-) "_s << false;
        QTest::newRow("whose end is late")
            << tail + "cmd\r\nok" << u"\r\ncmd\r\r\nok"_s << true; // the prompt is not its own
        QTest::newRow("another command's") << QByteArray("cmds\r\nok\n:-) ") << QString() << true;
    }

    void answerBeginsAtItsEcho()
    {
        QFETCH(const QByteArray, came);
        QFETCH(const QString, taken);
        ReadyBench bench;
        bench.port.answers = {{came}};
        QVERIFY(bench.session.request(u"15"_s, u"cmd"_s));
        bench.deliver();
        QCOMPARE(bench.screen.events, QStringList{taken.isEmpty() ? u"no answer"_s : u"taken"_s});
        QCOMPARE(bench.screen.last.reply, taken);
        QCOMPARE(bench.screen.last.stray.isEmpty(), !taken.isEmpty());
        QTEST(bench.screen.last.cut, "cut");
    }

    /// At the next phone the echo is owed again.
    void phoneWithoutEchoIsToldOnce()
    {
        SessionBench bench;
        bench.connectWith(answered(kNoEcho, "A1660"));
        bench.session.TimerValidaPorta_Timer();
        const auto asked = [&bench] {
            bench.port.answers = {{"ok\n:-) "}};
            bench.session.request(u"15"_s, u"cmd"_s);
            bench.deliver();
            return bench.screen.events.takeLast();
        };
        QCOMPARE(asked(), u"taken"_s);
        QCOMPARE(asked(), u"taken"_s);
        QCOMPARE(bench.log.count(u"PHONE_WITHOUT_ECHO"_s), 1);
        bench.session.connectOrDisconnect(u"3"_s);
        bench.accept("A1660");
        QCOMPARE(asked(), u"no answer"_s);
    }

    void recordingComesWithItsCodes()
    {
        ReadyBench bench(kNoEcho);
        {
            Result<Store> store = Store::open(bench.path, Store::Access::Write, 1s);
            QVERIFY(bool(saveRecording(*store, {u"IP 7"_s, u"HELP"_s, u"kept"_s})));
            QVERIFY(bool(saveRecording(*store, {u"IP 8"_s, u"Help"_s, u"another phone's"_s})));
        }
        std::map<QString, Listener> screens;
        const QStringList bound = {u"1"_s, u"2"_s, u"8"_s, u"9"_s, u"13"_s, u"17"_s};
        for (const QString &code : bound + QStringList{u"5"_s, u"14"_s, u"15"_s, u"18"_s, u"19"_s}) {
            bench.session.attach(code, &screens[code]);
            bench.port.answers = {{"ok\n:-) "}};
            QVERIFY(bench.session.request(code, u"Help"_s));
            bench.deliver();
            QCOMPARE(screens[code].events, QStringList{u"taken"_s});
            const auto &recording = screens[code].last.recording;
            QCOMPARE(recording ? recording->recording.dados : QString(), bound.contains(code) ? u"kept"_s : QString());
        }
    }

    void recordingIsWaitedFor()
    {
        ReadyBench bench(kNoEcho);
        Listener console;
        bench.session.attach(u"1"_s, &console);
        const auto answeredWhileLocked = [&] {
            bench.port.answers = {{"ok\n:-) "}};
            QVERIFY(bench.session.request(u"1"_s, u"Help"_s));
            bench.session.Timer1_Timer();
            QVERIFY(console.events.isEmpty());
            QVERIFY(!bench.session.request(u"15"_s, u"cmd"_s));
        };
        {
            OtherProgram other(bench.path);
            other.run(u"BEGIN EXCLUSIVE"_s);
            answeredWhileLocked();
            for (int tick = 0; tick < 50; ++tick)
                bench.store.TimerStore_Timer();
            QCOMPARE(bench.log, QStringList({u"REFUSED_BUSY"_s, u"STORE_LOCKED"_s}));
            QCOMPARE(console.events, QStringList{u"taken"_s}); // without a recording, but not lost
            QVERIFY(bench.session.isReady());

            console.events.clear();
            answeredWhileLocked();
            bench.port.die();
            QCOMPARE(console.events, QStringList{u"lost"_s});
            QCOMPARE(console.last.reply, u"\r\nok\r\n:-) "_s);
        }
        bench.store.TimerStore_Timer();
        QCOMPARE(console.events, QStringList{u"lost"_s}); // what the store says now is for nobody
    }

    void stopDeliversWhatCame()
    {
        ReadyBench bench(kNoEcho);
        const auto stopAfter = [&](int polls, const QList<QByteArray> &chunks) {
            bench.port.answers = {chunks};
            if (!bench.session.request(u"15"_s, u"cmd"_s))
                return QString();
            if (polls > 0)
                bench.session.Timer1_Timer();
            for (int poll = 1; poll < polls; ++poll)
                bench.session.Timer2_Timer();
            bench.session.stop(u"1"_s); // another screen's command is not its to stop
            const bool inFlight = bench.session.Status() == u'3';
            bench.session.stop(u"15"_s);
            return inFlight && bench.session.isReady() && bench.screen.last.cut ? bench.screen.last.reply : QString();
        };
        QCOMPARE(stopAfter(2, {"one", "two", "three", "four"}), u"\r\nonetwothree"_s);
        QCOMPARE(stopAfter(0, {"one"}), u"\r\none"_s);
        QCOMPARE(stopAfter(1, {"one", ":-) "}), u"\r\none:-) "_s); // even with its prompt
        bench.port.answers = {{"ok\n:-) "}};
        bench.session.request(u"15"_s, u"cmd"_s);
        QCOMPARE(bench.deliver(), 1); // nothing of what was stopped comes in between
        QCOMPARE(bench.screen.last.reply, u"\r\nok\r\n:-) "_s);
        QVERIFY(!bench.screen.last.cut);
        bench.session.stop(u"15"_s);
        QCOMPARE(bench.screen.events.size(), 4);
    }

    void anotherCommandInstead()
    {
        ReadyBench bench(kNoEcho);
        bench.port.answers = {{"counting", "more"}, {"/q\r\n:-) "}};
        QVERIFY(bench.session.request(u"15"_s, u"buttoncnt --dqe"_s));
        bench.session.Timer1_Timer();
        QVERIFY(!bench.session.requestInstead(u"1"_s, u"/q"_s)); // of another screen
        QVERIFY(bench.session.requestInstead(u"15"_s, u"/q"_s));
        bench.deliver();
        QCOMPARE(bench.screen.events, QStringList{u"taken"_s});
        QCOMPARE(bench.screen.last.reply, u"\r\n/q\r\r\n:-) "_s);
        QVERIFY(!bench.session.requestInstead(u"15"_s, u"syscfg add"_s));
    }

    void phoneIsNotChanged_data()
    {
        columns<QString, bool>({"command", "sent"});
        for (const char *command : {"syscfg list", "SYSCFG  Print RMd#", "syscfg help", "help syscfg", "syscfgx add"})
            QTest::newRow(command) << QString::fromLatin1(command) << true;
        for (const char *command : {"syscfg", "syscfg add SrNm X", " \tsyscfg\tdelete all", "SysCfg init",
                                    "syscfg printer", "sn\rsyscfg add SrNm X", "sn; syscfg add SrNm X"})
            QTest::newRow(command) << QString::fromLatin1(command) << false;
    }

    void phoneIsNotChanged()
    {
        QFETCH(QString, command);
        ReadyBench bench;
        QTEST(bench.session.request(u"15"_s, command), "sent");
        QCOMPARE(bench.port.journal.isEmpty(), bench.log == QStringList{u"MSG_SYSCFG"_s});
    }

    /// Every command goes through here, wherever it was typed.
    void onlyOneLineIsWritten()
    {
        for (const QString &command :
             {u"a\rShutdown\r"_s, u"a\nb"_s, u"a"_s + QChar(0), u"a\tb"_s, u"a\u0085b"_s, u"a\u263Ab"_s}) {
            ReadyBench bench;
            QVERIFY(!bench.session.request(u"15"_s, command));
            QVERIFY(!bench.session.requestInstead(u"15"_s, command));
            QVERIFY(bench.port.journal.isEmpty());
            QCOMPARE(bench.log, QStringList({u"COMMAND_NOT_ONE_LINE"_s, u"COMMAND_NOT_ONE_LINE"_s}));
        }
    }

    void consoleKeepsAnEndlessReplyInBounds()
    {
        ReadyBench bench(kNoEcho);
        qsizetype appended = 0;
        QObject::connect(&bench.session, &Session::consoleAppended, &bench.session,
                         [&](const QString &text) { appended += text.size(); });
        bench.port.answers = {{"first", QByteArray(20'000'000, 'x'), "end :-) "}};
        QVERIFY(bench.session.request(u"15"_s, u"cmd"_s));
        bench.deliver();
        QVERIFY(bench.screen.last.reply.startsWith(u"\r\nfirstx"));
        QCOMPARE(bench.screen.last.reply.size(), 12 * 1024 * 1024);
        QVERIFY(bench.screen.last.cut); // what is missing must not pass for good
        QCOMPARE(appended, 20'000'000 + 13);
    }

    void lateReplyOfAClosedScreen()
    {
        ReadyBench bench(kNoEcho);
        Listener again;
        bench.port.answers = {{"ok\n", ":-) "}, {"ok\n:-) "}};
        QVERIFY(bench.session.request(u"15"_s, u"cmd"_s));
        bench.session.detach(&bench.screen);
        bench.session.attach(u"15"_s, &again); // opened anew before the reply has come
        bench.deliver();
        QVERIFY(bench.screen.events.isEmpty());
        QVERIFY(again.events.isEmpty());
        QVERIFY(bench.session.request(u"15"_s, u"cmd"_s));
        bench.deliver();
        QCOMPARE(again.events, QStringList{u"taken"_s});

        bench.session.connectOrDisconnect(u"3"_s);
        bench.accept("SystemConfig Driver is missing!");
        bench.port.answers = {{answered("syscfg print RMd#", "A1660")}};
        QVERIFY(bench.session.requestModel(u"15"_s));
        bench.session.detach(&again);
        bench.session.attach(u"15"_s, &bench.screen);
        bench.deliver();
        bench.session.TimerVersao_Timer();
        QVERIFY(bench.session.isModelKnown());
        QVERIFY(bench.screen.events.isEmpty());
    }

    void lossAtEveryByte()
    {
        ReadyBench bench;
        bench.session.chooseSpeed(u"2"_s); // a whole reply is still in flight after its first poll
        const QByteArray reply = answered("cmd", "value 1.0 mV");
        for (qsizetype bytes = 0; bytes <= 2 * reply.size(); ++bytes) {
            const QByteArray came = reply.left(bytes / 2);
            bench.port.answers = {{came}};
            QVERIFY(bench.session.request(u"15"_s, u"cmd"_s));
            if (bytes % 2 && !came.isEmpty())
                bench.session.Timer1_Timer(); // else the bytes are still in the port
            bench.port.die();
            QCOMPARE(bench.screen.events, QStringList{u"lost"_s});
            const Delivery &last = bench.screen.last;
            QCOMPARE(last.reply + last.stray, came.isEmpty() ? QString() : shown(came));
            QCOMPARE(last.reply.isEmpty(), bytes / 2 < 3); // before the echo is whole it is none
            QVERIFY(bench.screen.last.cut);
            QCOMPARE(bench.session.Status(), u"0"_s);
            QCOMPARE(bench.title, u"Tavimo Prelt"_s);
            bench.session.TimerFecha_Timer();
            QCOMPARE(bench.log, QStringList({u"lost"_s, u"portsWanted"_s}));
            bench.screen.events.clear();
            bench.accept("A1660");
            QVERIFY(bench.session.isReady());
            bench.log.clear();
        }
    }

    void lockedStoreIsToldAtLast()
    {
        SessionBench bench;
        OtherProgram other(bench.path);
        other.run(u"BEGIN EXCLUSIVE"_s);
        bench.session.chooseModel(u"IP 7"_s); // clears the readings and is remembered: two units of work
        for (int tick = 1; tick < 50; ++tick)
            bench.store.TimerStore_Timer();
        QVERIFY(bench.log.isEmpty());
        bench.store.TimerStore_Timer();
        QCOMPARE(bench.log, QStringList{u"STORE_LOCKED"_s});
        for (int tick = 0; tick < 50; ++tick)
            bench.store.TimerStore_Timer();
        QCOMPARE(bench.log, QStringList({u"STORE_LOCKED"_s, u"STORE_LOCKED"_s}));
    }

    void workKeepsItsOrder()
    {
        SessionBench bench;
        QStringList order;
        auto gone = std::make_unique<QObject>();
        const auto add = [&](const QString &name, QObject *context, const std::function<void()> &after = {}) {
            const auto work = [&order, name](Store &) {
                order.append(name);
                return Result<Done>(Done{});
            };
            bench.store.run<Done>(Store::Access::Write, work, context, [&order, name, after](const Result<Done> &) {
                order.append(name + " told"_L1);
                if (after)
                    after();
            });
        };
        {
            OtherProgram other(bench.path);
            other.run(u"BEGIN EXCLUSIVE"_s);
            add(u"a"_s, &bench.session, [&] { add(u"d"_s, &bench.session); });
            add(u"b"_s, gone.get());
            add(u"c"_s, &bench.session);
            gone.reset();
            bench.store.TimerStore_Timer();
            QVERIFY(order.isEmpty());
        }
        bench.store.TimerStore_Timer();
        QCOMPARE(order.join(u", "), u"a, a told, b, c, c told, d, d told"_s);
    }
};

QTEST_GUILESS_MAIN(TestDispatch)
#include "tst_dispatch.moc"
