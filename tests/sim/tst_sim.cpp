#include "columns.h"
#include "models.h"
#include "outflow.h"
#include "phoneprofile.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr QByteArrayView kReadAll = "pmuadc --read all";

PhoneProfile profile(const QString &text)
{
    Result<PhoneProfile> result = profileFor(text);
    return result ? *result : PhoneProfile{};
}

QByteArray readAll(const QString &text)
{
    return answer(profile(text), kReadAll.toByteArray());
}

/// The value behind a label, by the place where its line begins.
std::optional<double> milli(const QByteArray &reply, const QString &label)
{
    const QRegularExpression line(u"^%1 (-?\\d+\\.\\d{4}) m[VA]$"_s.arg(QRegularExpression::escape(label)),
                                  QRegularExpression::MultilineOption);
    const QRegularExpressionMatch match = line.match(QString::fromLatin1(reply));
    return match.hasMatch() ? std::optional(match.captured(1).toDouble()) : std::nullopt;
}

} // namespace

class TestSim : public QObject
{
    Q_OBJECT

private slots:
    void answersByteForByte_data()
    {
        columns<QString, QByteArray, QByteArray>({"phone", "command", "beforePrompt"});
        const QByteArray query = "syscfg print RMd#";

        QTest::newRow("model query") << u"IP 7"_s << query << QByteArray("syscfg print RMd#\r\nA1660\n");
        QTest::newRow("CR LF everywhere") << u"ip 7,crlf"_s << query << QByteArray("syscfg print RMd#\r\nA1660\r\n");
        QTest::newRow("another number") << u"IP 7,model=A9999"_s << query << QByteArray("syscfg print RMd#\r\nA9999\n");
        QTest::newRow("unknown command") << u"IP X"_s << QByteArray("foo -x 1")
                                         << QByteArray("foo -x 1\r\nCommand \"foo\" not found!\n");
        QTest::newRow("known word, unknown rest")
            << u"IP X"_s << QByteArray("syscfg lost") << QByteArray("syscfg lost\r\nCommand \"syscfg\" not found!\n");
        QTest::newRow("only the return key") << u"IP X"_s << QByteArray() << QByteArray("\r\n");
    }

    void answersByteForByte()
    {
        QFETCH(QString, phone);
        QFETCH(QByteArray, command);
        QFETCH(QByteArray, beforePrompt);

        const QByteArray reply = answer(profile(phone), command);
        QCOMPARE(reply.chopped(24), beforePrompt);
        static const QRegularExpression prompt(u"^\\[[0-9A-F]{8}:[0-9A-F]{8}\\] :-\\) $"_s);
        QVERIFY(prompt.match(QString::fromLatin1(reply.last(24))).hasMatch());
    }

    void shellAnswersByItself()
    {
        const auto body = [](const QByteArray &command) {
            return answer(profile(u"IP 7"_s), command).sliced(command.size() + 2);
        };
        const QList<QByteArray> help = body("Help").split('\n');
        QVERIFY(help.contains("i2c") && help.contains("syscfg") && help.count("syscfg") == 1);
        QVERIFY(body("help nandsize").startsWith("nandsize  "));
        QVERIFY(body("help frob").startsWith("No help on \"frob\"!\n["));
        QCOMPARE(body("Shutdown"), QByteArray());
        QVERIFY(body("Reset").endsWith(":-) "));
        QVERIFY(body("testmemory --1MB").contains("\nPassed\n["));
        QVERIFY(!body("buttoncnt --dqe").contains(":-)"));
    }

    void chipsAnswer_data()
    {
        columns<QString, QByteArray, QByteArray, int>({"phone", "command", "line", "times"});
        const auto add = [](const char *phone, const char *command, const char *line, int times) {
            QTest::addRow("%s: %s", phone, line)
                << QString::fromLatin1(phone) << QByteArray(command) << QByteArray(line) << times;
        };
        const char *const tigris = "pmuadc --sel tigris --read all";
        const char *const chestnut = "pmuadc --sel chestnut --read all";
        const char *const gauge = "device  --key GasGauge -p";
        add("IP 7,tigris.vbus=4300", tigris, "\ntigris vbus : 4300.0000 mV\n", 1);
        add("IP 7,vbus=low", tigris, "\ntigris vbus : 4300.0000 mV\n", 1);
        add("IP 7,vbat=missing", tigris, "\ntigris vbat", 0);
        add("IP 7", tigris, "vbus1", 0);
        add("IP 8,vbus1=timeout", tigris, "\ntigris vbus1 : timeout mV\n", 1);
        add("IP 6", chestnut, "\nchestnut vldo3 : 0.0000 mV\n", 1); // touch is off after a start
        add("IP X", chestnut, "chestnut vldo", 0);
        add("IP X,acorn.die_temp=31.25", "pmuadc --read all", "\nacorn die_temp : 31.2500 C\n", 1);
        add("IP 7", gauge, "\nnominal-capacity: \"1715mAh\"\n", 1);
        add("IP 6", gauge, "nominal-capacity", 0);
        add("IP 7,tristar=off", "tristar -p", "\nERROR\n", 1);
        add("IP 7,garbage", tigris, "\x1B~\x80tigris ibus : ", 1); // noise lies between the lines
        add("IP 7,garbage", "syscfg print RMd#", "\nA1660\n", 1);
        add("IP 7,display=off", "displaytext -t a -b red -c white -w", "\nERROR: no display\n", 1);
        add("IP 7", "touch --on", "touch --on\r\n[", 1);
    }

    void chipsAnswer()
    {
        QFETCH(QString, phone);
        QFETCH(QByteArray, command);
        QFETCH(QByteArray, line);
        QVERIFY2(profileFor(phone), qPrintable(phone));
        QTEST(static_cast<int>(answer(profile(phone), command).count(line)), "times");
    }

    void touchSupplyFollowsItsCommand()
    {
        PhoneProfile phone = profile(u"IP 7"_s);
        const auto supply = [&phone] {
            return milli(answer(phone, "pmuadc --sel chestnut --read all"), u"chestnut vldo3 :"_s);
        };
        obey(phone, "touch --on");
        QVERIFY(supply() && qAbs(*supply() - 5111.0) < 51.0);
        obey(phone, "touch  --off");
        QCOMPARE(supply(), 0.0);
    }

    void watchedCurrentsStayLow()
    {
        const QStringList &names = modelNames();
        for (const QString &model : names) {
            const QString label = names.indexOf(model) < 4 ? u"BIST ildo3:"_s : u"BIST ildo7:"_s;
            const double limit = names.indexOf(model) < 6 ? 1.7 : 3.35;
            const auto value = milli(readAll(model), label);
            QVERIFY2(value && *value > 0.0 && *value < limit, qPrintable(model));
        }
    }

    void onlyTheLargestHasTheDisplayChip()
    {
        QVERIFY(!readAll(u"IP 8 Plus"_s).contains("acorn"));
        const QByteArray reply = readAll(u"IP X"_s);
        const auto vp = milli(reply, u"acorn vp :"_s);
        const auto vn = milli(reply, u"acorn vn :"_s);
        QVERIFY(vp && qAbs(*vp - 10000.0) <= 100.0);
        QVERIFY(vn && qAbs(*vn + 6700.0) <= 67.0);
    }

    void sameAtEveryStart()
    {
        QCOMPARE(readAll(u"IP 6s"_s), readAll(u"IP 6s"_s));
        QVERIFY(readAll(u"IP 6s"_s) != readAll(u"IP 6s Plus"_s));
        const QList<QByteArray> lines = readAll(u"IP 6s"_s).split('\n');
        QCOMPARE(lines.value(1), QByteArray("PMU ADC test"));
        QCOMPARE(lines.value(3), QByteArray("Read PMU ADC channels"));
        QVERIFY(lines.value(6).startsWith("tcal: ") && lines.value(6).endsWith(" Ohm"));
        QVERIFY(lines.value(8).startsWith("ibuck0: "));
    }

    void railFaults_data()
    {
        columns<QString, QByteArray>({"phone", "line"});
        QTest::newRow("another voltage") << u"IP 7,ldo2=1200"_s << QByteArray("BIST ldo2: 1200.0000 mV");
        QTest::newRow("fraction, negative") << u"IP 7,ldo2=-12.5"_s << QByteArray("BIST ldo2: -12.5000 mV");
        QTest::newRow("off, capitals") << u"IP 7,Buck3=OFF"_s << QByteArray("BIST buck3: 0.0000 mV");
        QTest::newRow("time-out") << u"IP 7,buck3_sw1=timeout"_s << QByteArray("BIST buck3_sw1: timeout mV");
        QTest::newRow("current") << u"IP 7,ildo7=5"_s << QByteArray("BIST ildo7: 5.0000 mA");
        QTest::newRow("current without BIST") << u"IP 7,ibuck0=500"_s << QByteArray("ibuck0: 500.0000 mA");
        QTest::newRow("second of two faults") << u"IP 7,ldo1=off,ldo2=1"_s << QByteArray("BIST ldo2: 1.0000 mV");
    }

    void railFaults()
    {
        QFETCH(QString, phone);
        QFETCH(QByteArray, line);
        const QList<QByteArray> healthy = readAll(u"IP 7"_s).split('\n');
        const QList<QByteArray> faulty = readAll(phone).split('\n');
        QCOMPARE(faulty.count(line), 1);
        QCOMPARE(faulty.size(), healthy.size());
    }

    void whatIsNotKnown_data()
    {
        columns<QString, QString>({"part", "listed"});
        QTest::newRow("IP 9") << u"IP 9"_s << u"IP 8 Plus, IP X"_s;
        QTest::newRow("") << u""_s << u"IP 6, IP 6 Plus"_s;
        QTest::newRow("IP 7,ldo19=1200") << u"ldo19=1200"_s << u"RAIL=VALUE"_s;
        QTest::newRow("IP 7,ldo2=low") << u"ldo2=low"_s << u", ldo2,"_s;
        QTest::newRow("IP 7,ldo2") << u"ldo2"_s << u"timeout"_s;
        QTest::newRow("IP 7,ldo2=nan") << u"ldo2=nan"_s << u", ldo15,"_s;
        QTest::newRow("IP 7,crlf,nonsense") << u"nonsense"_s << u"crlf"_s;
        QTest::newRow("IP 7,drop@soon") << u"drop@soon"_s << u"drop@BYTES"_s;
        QTest::newRow("IP 7,drop@-1") << u"drop@-1"_s << u"drop@BYTES"_s;
        QTest::newRow("IP 7,prompt=late") << u"prompt=late"_s << u"prompt=split"_s;
        QTest::newRow("IP 7,silent=yes") << u"silent=yes"_s << u"silent"_s;
        QTest::newRow("IP 7,garbage=3") << u"garbage=3"_s << u", garbage,"_s;
        QTest::newRow("IP 7,model=") << u"model="_s << u"model=TEXT"_s;
    }

    void aFaultThatTheGaugeCannotTell()
    {
        const Result<PhoneProfile> result = profileFor(u"IP 6 Plus,battery=worn"_s);
        QVERIFY(!result);
        QCOMPARE(result.trouble().what.key, u"SIM_NO_CAPACITY"_s);
    }

    void whatIsNotKnown()
    {
        QFETCH(QString, part);
        QFETCH(QString, listed);
        const Result<PhoneProfile> result = profileFor(QString::fromLatin1(QTest::currentDataTag()));
        QVERIFY(!result);
        QCOMPARE(result.trouble().what.key, u"SIM_UNKNOWN"_s);
        QCOMPARE(result.trouble().what.arguments.value(0), part);
        QVERIFY(result.trouble().what.arguments.value(1).contains(listed));
        QVERIFY(!result.trouble().what.arguments.value(1).contains(u"ldo19"_s));
    }

    void splitPromptKeepsTwoPollsApart()
    {
        const QList<ReplyPiece> pieces = replyPlan(profile(u"IP 7,prompt=split"_s), "syscfg print RMd#", 120ms).pieces;
        QCOMPARE(pieces.size(), 4);
        QVERIFY(pieces.at(2).bytes.endsWith(" :-"));
        QVERIFY(pieces.at(3).earliest - pieces.at(2).earliest > 200ms);
    }

    void cableIsPulledAtTheByte()
    {
        const QByteArray whole = answer(profile(u"IP 7"_s), "syscfg print RMd#");
        for (qsizetype bytes = 0; bytes <= whole.size() + 1; ++bytes) {
            const ReplyPlan plan = replyPlan(profile(u"IP 7,drop@%1"_s.arg(bytes)), "syscfg print RMd#", 120ms);
            QByteArray sent;
            for (const ReplyPiece &piece : plan.pieces)
                sent += piece.bytes;
            QCOMPARE(plan.thenUnplug, bytes <= whole.size());
            QCOMPARE(sent, whole.left(bytes));
        }
    }

    void lineKeepsItsPace()
    {
        Outflow flow(replyPlan(profile(u"IP 7"_s), kReadAll.toByteArray(), 120ms), 1000);
        QVERIFY(flow.isDueWhole());
        QCOMPARE(flow.due(0ms), QByteArray("pmuadc --read all\r\n"));
        flow.take(19);
        QVERIFY(flow.due(0ms).isEmpty()); // the echo went ahead of its time
        QCOMPARE(flow.due(29ms), QByteArray("PMU ADC te"));
        flow.take(4); // the line took less than was offered
        QCOMPARE(flow.due(29ms), QByteArray("ADC te"));
        QVERIFY(!flow.isDone());
    }
};

QTEST_GUILESS_MAIN(TestSim)

#include "tst_sim.moc"
