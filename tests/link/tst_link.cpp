#include "columns.h"
#include "linebytes.h"
#include "ownecho.h"
#include "portaddress.h"
#include "portlist.h"
#include "replayport.h"
#include "replygatherer.h"
#include "serialport.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr QByteArrayView kWholePrompt = "[0011AABB:CCDD2233] :-) ";

/// A reply as the polls of a session see it: the reads in turn, empty ones once they are used up.
struct Gathered
{
    int followUps = 0;
    QByteArray text;
};

Gathered gathered(const QList<QByteArray> &reads, EndOfReply end, int limit)
{
    Gathering now = firstPoll(reads.value(0), end);
    Gathered all{0, now.chunk};
    while (!now.complete && all.followUps < 1000) {
        now = followUpPoll(now, reads.value(++all.followUps), end, limit);
        all.text += now.chunk;
    }
    return all;
}

PortEntry at(const QString &device, int number = 0)
{
    return {number, device, {}, {}};
}

} // namespace

class TestLink : public QObject
{
    Q_OBJECT

private slots:
    void echoIsAWholeLineOfItsOwn_data()
    {
        columns<QString, qsizetype>({"gathered", "begin"});
        const auto row = [](const char *name, const QString &gathered, qsizetype begin) {
            QTest::newRow(name) << gathered << begin;
        };
        row("at the start", u"\r\ni2c -s 1\r\r\n0x75\r\n[8D4FBF00:BD229EF5] :-) "_s, 2);
        row("behind a prompt", u"tail\r\n[8D4FBF00:BD229EF5] :-) i2c -s 1\r\n0x75"_s, 30);
        row("of two the last", u"i2c -s 1\r\nlate\r\n:-) i2c -s 1\r\n0x75"_s, 20);
        row("nothing behind it yet", u"i2c -s 1"_s, 0);
        row("not yet whole", u"i2c -s "_s, -1);
        row("of a longer command", u"i2c -s 10\r\n0x75\r\n:-) "_s, -1);
        row("within a line", u"no i2c -s 1\r\n:-) "_s, -1);
        row("a line of a tail", u"help\r\ni2c -s 1\r\n:-) "_s, -1);
        row("a tail alone", u"Key: 1\r\n[8D4FBF00:BD229EF5] :-) "_s, -1);
        row("nothing", u""_s, -1);
    }

    void echoIsAWholeLineOfItsOwn()
    {
        QFETCH(const QString, gathered);
        QFETCH(const qsizetype, begin);
        for (const QString &command : {u"i2c -s 1"_s, u" i2c -s 1 "_s}) { // blanks around it are sent as they are
            const OwnEcho echo = ownEcho(gathered, command);
            QCOMPARE(echo.isFound ? echo.begin : -1, begin);
        }
        QVERIFY(!ownEcho(gathered, {}).isFound);
        QVERIFY(ownEcho(u"x\r\nxxx", u"x").isFound && !ownEcho(u"yx", u"x").isFound); // a letter that ends the text
    }

    void lineCarriesLatin1Alone()
    {
        QCOMPARE(*lineBytes(u"bl \u00A0\u00E9\u00FF"_s), QByteArray("bl \xA0\xE9\xFF\r"));
        const QList<QStringList> refused = {{u"a\rb"_s, u"U+000D"_s, u"2"_s},
                                            {u"\u007F"_s, u"U+007F"_s, u"1"_s},
                                            {u"ab\u009F"_s, u"U+009F"_s, u"3"_s},
                                            {u"\u0100"_s, u"U+0100"_s, u"1"_s},
                                            {u"\U0001F4F1\n"_s, u"U+1F4F1"_s, u"1"_s}};
        for (const QStringList &row : refused) {
            const Result<QByteArray> line = lineBytes(row.first());
            QVERIFY(!line);
            QCOMPARE(line.trouble().what.arguments, row.sliced(1));
        }
    }

    void replyEndsOnTheRightPoll_data()
    {
        columns<QList<QByteArray>, EndOfReply, int, int>({"reads", "end", "limit", "followUps"});

        using Reads = QList<QByteArray>;
        const QByteArray prompt = kWholePrompt.toByteArray();
        const Reads talk(300, "x");
        Reads pauses = {"a", "b", "c", "d", "e", "", "f", ""};

        QTest::newRow("a silent phone is not waited for") << Reads{""} << EndOfReply::Prompt << 200 << 0;
        QTest::newRow("late first byte after an empty first read")
            << Reads{"", prompt} << EndOfReply::Prompt << 200 << 0;
        QTest::newRow("short reply ends at once") << Reads{prompt} << EndOfReply::PromptAtOnce << 200 << 0;
        QTest::newRow("model query never ends at once") << Reads{prompt} << EndOfReply::Prompt << 200 << 1;
        QTest::newRow("prompt alone in the last chunk") << Reads{"a", "b", ":-)"} << EndOfReply::Prompt << 200 << 2;
        QTest::newRow("prompt amid the newest chunk") << Reads{"a", "b :-) c"} << EndOfReply::Prompt << 200 << 1;
        QTest::newRow("prompt in the chunk before the newest is past")
            << Reads{"a :-) ", "noise", ""} << EndOfReply::Prompt << 200 << 101;
        QTest::newRow("split prompt is not seen") << Reads{"a", ":-", ")"} << EndOfReply::Prompt << 200 << 101;
        QTest::newRow("split prompt with a pause") << Reads{"a", "", ":-", "", ")"} << EndOfReply::Prompt << 200 << 101;
        QTest::newRow("a pause in the middle is borne") << Reads{"a", "", "", prompt} << EndOfReply::Prompt << 200 << 3;
        QTest::newRow("bytes beyond poll 100 keep it going") << talk << EndOfReply::Prompt << 200 << 200;
        QTest::newRow("slow speed, silence after the first chunk") << Reads{"a"} << EndOfReply::Prompt << 100 << 100;
        QTest::newRow("no limit, then silence") << talk << EndOfReply::Prompt << 0 << 300;
        QTest::newRow("battery: a prompt ends nothing") << Reads{prompt, prompt} << EndOfReply::Silence << 200 << 6;
        QTest::newRow("battery: an early pause is borne") << pauses << EndOfReply::Silence << 200 << 7;
        QTest::newRow("battery: nothing at all") << Reads{""} << EndOfReply::Silence << 200 << 0;
    }

    void replyEndsOnTheRightPoll()
    {
        QFETCH(QList<QByteArray>, reads);
        QFETCH(EndOfReply, end);
        QFETCH(int, limit);
        QFETCH(int, followUps);

        const Gathered result = gathered(reads, end, limit);
        QCOMPARE(result.followUps, followUps);
        QCOMPARE(result.text, reads.first(qMin<qsizetype>(followUps + 1, reads.size())).join());
    }

    void pollCounterSaturates()
    {
        Gathering talker = firstPoll("x", EndOfReply::Prompt);
        for (int i = 0; i < 600; ++i)
            talker = followUpPoll(talker, "x", EndOfReply::Prompt, 0);
        QCOMPARE(talker.polls, 255);
        QVERIFY(!talker.complete);
    }

    void endlessTalkerMeetsOnlyTheLimit()
    {
        const Gathering before{.polls = 150, .newest = "x"};
        QVERIFY(!followUpPoll(before, "x", EndOfReply::Prompt, 100).complete); // the limit was lowered meanwhile
        QVERIFY(followUpPoll(before, "", EndOfReply::Prompt, 100).complete);
    }

    void speedSetting()
    {
        const Speed slow = speedFor(u"2"_s, {});
        QCOMPARE(slow.interval, 500ms);
        QCOMPARE(slow.replyLimit, 100);
        const Speed odd = speedFor(u"3"_s, slow);
        QCOMPARE(odd.interval, 500ms);
        QCOMPARE(odd.replyLimit, 0);
        QCOMPARE(speedFor(u"1"_s, odd).interval, 100ms);
    }

    void typedPort_data()
    {
        using enum PortAddress::Kind;
        columns<QString, PortAddress>({"typed", "address"});

        QTest::newRow("bare number") << u"3"_s << PortAddress{Number, 3};
        QTest::newRow("with prefix") << u"COM3"_s << PortAddress{Number, 3};
        QTest::newRow("small letters, blanks") << u" com16 "_s << PortAddress{Number, 16};
        QTest::newRow("one too high") << u"17"_s << PortAddress{NumberTooHigh};
        QTest::newRow("far too high for a number") << u"COM99999999999"_s << PortAddress{NumberTooHigh};
        QTest::newRow("zero") << u"0"_s << PortAddress{};
        QTest::newRow("negative") << u"-1"_s << PortAddress{};
        QTest::newRow("empty") << u""_s << PortAddress{};
        QTest::newRow("digits of another script") << u"٣"_s << PortAddress{};
        QTest::newRow("path with a high number") << u"/dev/ttyUSB20"_s << PortAddress{Path, 0, u"/dev/ttyUSB20"_s};
        QTest::newRow("bare device name") << u"ttyUSB0"_s << PortAddress{};
        QTest::newRow("simulated with faults")
            << u"sim:IP 7,ldo2=off"_s << PortAddress{Simulated, 0, u"IP 7,ldo2=off"_s};
        QTest::newRow("simulated, nothing named") << u"sim:"_s << PortAddress{Simulated};
    }

    void typedPort()
    {
        QFETCH(QString, typed);
        QFETCH(PortAddress, address);
        QCOMPARE(portAddress(typed), address);
    }

    void portsKeepTheirOrder()
    {
        const QList<PortEntry> found = {at(u"/dev/ttyS10"_s),  at(u"/dev/ttyUSB10"_s), at(u"/dev/ttyAMA0"_s),
                                        at(u"/dev/ttyACM0"_s), at(u"/dev/ttyUSB9"_s),  at(u"/dev/ttyS2"_s)};
        const QList<PortEntry> expected = {at(u"/dev/ttyUSB9"_s, 1), at(u"/dev/ttyUSB10"_s, 2),
                                           at(u"/dev/ttyACM0"_s, 3), at(u"/dev/ttyAMA0"_s, 4),
                                           at(u"/dev/ttyS2"_s, 5),   at(u"/dev/ttyS10"_s, 6)};
        QCOMPARE(numbered(found), expected);
        QCOMPARE(numbered({at(u"\\\\.\\COM7"_s), at(u"\\\\.\\COM31"_s)}), QList{at(u"\\\\.\\COM7"_s, 7)});
    }

    void noMoreThanThirtyPorts()
    {
        QList<PortEntry> found;
        for (int i = 40; i > 0; --i)
            found.append(at(u"/dev/ttyUSB%1"_s.arg(i)));
        const QList<PortEntry> ports = numbered(found);
        QCOMPARE(ports.size(), 30);
        QCOMPARE(ports.last(), at(u"/dev/ttyUSB30"_s, 30));
    }

    void whatIsNoPort_data()
    {
        columns<QString, QString>({"name", "remedy"});
        QTest::newRow("missing") << u"gone"_s << u"REMEDY_NO_PORT"_s;
        QTest::newRow("directory") << u"."_s << u"REMEDY_NOT_A_PORT"_s;
        QTest::newRow("ordinary file") << u"notes.txt"_s << u"REMEDY_NOT_A_PORT"_s;
        QTest::newRow("link to an ordinary file") << u"link"_s << u"REMEDY_NOT_A_PORT"_s;
        QTest::newRow("device that is no line") << u"/dev/null"_s << u"REMEDY_NOT_A_PORT"_s;
    }

    void whatIsNoPort()
    {
        QFETCH(QString, name);
        QFETCH(QString, remedy);
        const QTemporaryDir folder;
        QFile notes(folder.filePath(u"notes.txt"_s));
        QVERIFY(notes.open(QIODevice::WriteOnly) && notes.write("words") == 5);
        notes.close();
        QVERIFY(notes.link(folder.filePath(u"link"_s)));

        SerialPort port;
        const QString path = QDir(folder.path()).absoluteFilePath(name);
        const Result<Done> opened = port.open(path);
        QVERIFY(!opened);
        QVERIFY(!port.isOpen());
        QCOMPARE(opened.trouble().what, (Notice{u"MSG_PORTA_INVALIDA"_s, {path}}));
        QCOMPARE(opened.trouble().remedies.value(0).key, remedy);
        QVERIFY(notes.open(QIODevice::ReadOnly));
        QCOMPARE(notes.readAll(), QByteArray("words"));
    }

    void savedReplyAnswersEveryCommand()
    {
        ReplayPort port("no echo here\n[0011AABB:CCDD2233] :-) ");
        port.write("lost before it is open\r");
        QVERIFY(port.read().isEmpty());
        QVERIFY(port.open({}));
        for (const char *command : {"pmuadc --read all\r", "again\r"}) {
            port.write(command);
            QCOMPARE(port.read(), QByteArray("no echo here\n[0011AABB:CCDD2233] :-) "));
            QVERIFY(port.read().isEmpty());
        }
    }
};

QTEST_GUILESS_MAIN(TestLink)

#include "tst_link.moc"
