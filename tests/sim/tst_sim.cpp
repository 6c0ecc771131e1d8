#include "models.h"
#include "outflow.h"
#include "phoneprofile.h"
#include "seeds.h"

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

/// The label that a reading index stands for, told once more and differently than the phone tells it.
QString labelOfIndex(int index)
{
    const QStringList odd = {u"BIST buck3_sw1:"_s, u"BIST buck3_sw2:"_s, u"BIST buck3_sw3:"_s, u"BIST buck4_sw1:"_s,
                             u"BIST buck4_sw2:"_s};
    const QStringList last = {u"BIST ibuf_1v2:"_s, u"BIST vbuf_1v2:"_s, u"BIST vrtc:"_s};
    if (index >= 80)
        return last.value(index - 80);
    if (index >= 60)
        return u"BIST ildo%1:"_s.arg(index - 60);
    if (index >= 40)
        return u"BIST ldo%1:"_s.arg(index - 40);
    if (index >= 20)
        return u"ibuck%1:"_s.arg(index - 20);
    return index >= 12 ? odd.value(index - 12) : u"BIST buck%1:"_s.arg(index);
}

} // namespace

class TestSim : public QObject
{
    Q_OBJECT

private slots:
    void answersByteForByte_data();
    void answersByteForByte();
    void everyModelTellsItsNumber();
    void healthyRailsLieWithinOnePerCent();
    void watchedCurrentsStayLow_data();
    void watchedCurrentsStayLow();
    void onlyTheLargestHasTheDisplayChip();
    void sameAtEveryStart();
    void railFaults_data();
    void railFaults();
    void whatIsNotKnown_data();
    void whatIsNotKnown();
    void planOfAReply();
    void splitPromptKeepsTwoPollsApart();
    void cableIsPulledAtTheByte_data();
    void cableIsPulledAtTheByte();
    void lineKeepsItsPace();
};

void TestSim::answersByteForByte_data()
{
    QTest::addColumn<QString>("phone");
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArray>("beforePrompt");
    const QByteArray query = "syscfg print RMd#";

    QTest::newRow("model query") << u"IP 7"_s << query << QByteArray("syscfg print RMd#\r\nA1660\n");
    QTest::newRow("CR LF everywhere") << u"ip 7,crlf"_s << query << QByteArray("syscfg print RMd#\r\nA1660\r\n");
    QTest::newRow("another number") << u"IP 7,model=A9999"_s << query << QByteArray("syscfg print RMd#\r\nA9999\n");
    QTest::newRow("no record") << u"IP 7, model=Not Found!"_s << query
                               << QByteArray("syscfg print RMd#\r\nNot Found!\n");
    QTest::newRow("unknown command") << u"IP X"_s << QByteArray("foo -x 1")
                                     << QByteArray("foo -x 1\r\nCommand \"foo\" not found!\n");
    QTest::newRow("known word, unknown rest")
        << u"IP X"_s << QByteArray("syscfg list") << QByteArray("syscfg list\r\nCommand \"syscfg\" not found!\n");
    QTest::newRow("only the return key") << u"IP X"_s << QByteArray() << QByteArray("\r\n");
}

void TestSim::answersByteForByte()
{
    QFETCH(QString, phone);
    QFETCH(QByteArray, command);
    QFETCH(QByteArray, beforePrompt);

    const QByteArray reply = answer(profile(phone), command);
    QCOMPARE(reply.chopped(24), beforePrompt);
    static const QRegularExpression prompt(u"^\\[[0-9A-F]{8}:[0-9A-F]{8}\\] :-\\) $"_s);
    QVERIFY(prompt.match(QString::fromLatin1(reply.last(24))).hasMatch());
}

void TestSim::everyModelTellsItsNumber()
{
    QCOMPARE(modelNames().size(), 9);
    for (const QString &model : modelNames())
        QCOMPARE(modelForNumber(profile(model).modelNumber), model);
}

void TestSim::healthyRailsLieWithinOnePerCent()
{
    const SeedTable table = seedTable(u"master"_s);
    QHash<QString, QByteArray> replies;
    for (const QString &model : modelNames())
        replies.insert(model, readAll(model));
    int judged = 0;
    for (const QStringList &row : table.rows) {
        const QByteArray reply = replies.value(table.cell(row, u"Modelo"));
        const auto value = milli(reply, labelOfIndex(table.cell(row, u"RefT").toInt()));
        QVERIFY2(value, qPrintable(row.join(u',')));
        const double nominal = table.cell(row, u"RefV").toDouble() * 1000.0;
        QVERIFY2(nominal == 0.0 || qAbs(*value / nominal - 1.0) <= 0.01, qPrintable(row.join(u',')));
        judged += nominal > 0.0;
    }
    QCOMPARE(judged, 138);
}

void TestSim::watchedCurrentsStayLow_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<double>("limit");
    for (const char *model : {"IP 6", "IP 6 Plus", "IP 6s", "IP 6s Plus"})
        QTest::newRow(model) << u"BIST ildo3:"_s << 1.7;
    for (const char *model : {"IP 7", "IP 7 Plus"})
        QTest::newRow(model) << u"BIST ildo7:"_s << 1.7;
    for (const char *model : {"IP 8", "IP 8 Plus", "IP X"})
        QTest::newRow(model) << u"BIST ildo7:"_s << 3.35;
}

void TestSim::watchedCurrentsStayLow()
{
    QFETCH(QString, label);
    QFETCH(double, limit);
    const auto value = milli(readAll(QString::fromLatin1(QTest::currentDataTag())), label);
    QVERIFY(value && *value > 0.0 && *value < limit);
}

void TestSim::onlyTheLargestHasTheDisplayChip()
{
    QVERIFY(!readAll(u"IP 8 Plus"_s).contains("acorn"));
    const QByteArray reply = readAll(u"IP X"_s);
    const auto vp = milli(reply, u"acorn vp :"_s);
    const auto vn = milli(reply, u"acorn vn :"_s);
    QVERIFY(vp && qAbs(*vp - 10000.0) <= 100.0);
    QVERIFY(vn && qAbs(*vn + 6700.0) <= 67.0);
}

void TestSim::sameAtEveryStart()
{
    QCOMPARE(readAll(u"IP 6s"_s), readAll(u"IP 6s"_s));
    QVERIFY(readAll(u"IP 6s"_s) != readAll(u"IP 6s Plus"_s));
    const QList<QByteArray> lines = readAll(u"IP 6s"_s).split('\n');
    QCOMPARE(lines.value(1), QByteArray("PMU ADC test"));
    QCOMPARE(lines.value(3), QByteArray("Read PMU ADC channels"));
    QVERIFY(lines.value(6).startsWith("tcal: ") && lines.value(6).endsWith(" Ohm"));
    QVERIFY(lines.value(8).startsWith("ibuck0: "));
}

void TestSim::railFaults_data()
{
    QTest::addColumn<QString>("phone");
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("another voltage") << u"IP 7,ldo2=1200"_s << QByteArray("BIST ldo2: 1200.0000 mV");
    QTest::newRow("fraction, negative") << u"IP 7,ldo2=-12.5"_s << QByteArray("BIST ldo2: -12.5000 mV");
    QTest::newRow("off, capitals") << u"IP 7,Buck3=OFF"_s << QByteArray("BIST buck3: 0.0000 mV");
    QTest::newRow("time-out") << u"IP 7,buck3_sw1=timeout"_s << QByteArray("BIST buck3_sw1: timeout mV");
    QTest::newRow("current") << u"IP 7,ildo7=5"_s << QByteArray("BIST ildo7: 5.0000 mA");
    QTest::newRow("current without BIST") << u"IP 7,ibuck0=500"_s << QByteArray("ibuck0: 500.0000 mA");
    QTest::newRow("second of two faults") << u"IP 7,ldo1=off,ldo2=1"_s << QByteArray("BIST ldo2: 1.0000 mV");
}

void TestSim::railFaults()
{
    QFETCH(QString, phone);
    QFETCH(QByteArray, line);
    const QList<QByteArray> healthy = readAll(u"IP 7"_s).split('\n');
    const QList<QByteArray> faulty = readAll(phone).split('\n');
    QCOMPARE(faulty.count(line), 1);
    QCOMPARE(faulty.size(), healthy.size());
}

void TestSim::whatIsNotKnown_data()
{
    QTest::addColumn<QString>("part");
    QTest::addColumn<QString>("listed");
    QTest::newRow("IP 9") << u"IP 9"_s << u"IP 8 Plus, IP X"_s;
    QTest::newRow("") << u""_s << u"IP 6, IP 6 Plus"_s;
    QTest::newRow("IP 7,ldo19=1200") << u"ldo19=1200"_s << u"ldo15="_s;
    QTest::newRow("IP 7,ldo2=low") << u"ldo2=low"_s << u"ldo2="_s;
    QTest::newRow("IP 7,ldo2") << u"ldo2"_s << u"timeout"_s;
    QTest::newRow("IP 7,ldo2=nan") << u"ldo2=nan"_s << u"ldo2="_s;
    QTest::newRow("IP 7,crlf,nonsense") << u"nonsense"_s << u"crlf"_s;
    QTest::newRow("IP 7,drop@soon") << u"drop@soon"_s << u"drop@BYTES"_s;
    QTest::newRow("IP 7,drop@-1") << u"drop@-1"_s << u"drop@BYTES"_s;
    QTest::newRow("IP 7,prompt=late") << u"prompt=late"_s << u"prompt=split"_s;
    QTest::newRow("IP 7,silent=yes") << u"silent=yes"_s << u"silent"_s;
    QTest::newRow("IP 7,model=") << u"model="_s << u"model=TEXT"_s;
}

void TestSim::whatIsNotKnown()
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

void TestSim::planOfAReply()
{
    const ReplyPlan plan = replyPlan(profile(u"IP 7"_s), "syscfg print RMd#", 120ms);
    QCOMPARE(plan.pieces.size(), 3);
    QCOMPARE(plan.pieces.at(0).bytes, QByteArray("syscfg print RMd#\r\n"));
    QCOMPARE(plan.pieces.at(1).bytes, QByteArray("A1660\n"));
    QCOMPARE(plan.pieces.at(2).bytes.size(), 24);
    QCOMPARE(plan.pieces.at(2).earliest, 120ms);
    QVERIFY(!plan.thenUnplug);
    QVERIFY(replyPlan(profile(u"IP 7,silent"_s), "syscfg print RMd#", 120ms).pieces.isEmpty());
}

void TestSim::splitPromptKeepsTwoPollsApart()
{
    const ReplyPlan plan = replyPlan(profile(u"IP 7,prompt=split"_s), kReadAll.toByteArray(), 120ms);
    QCOMPARE(plan.pieces.size(), 4);
    QVERIFY(plan.pieces.at(2).bytes.endsWith(" :-"));
    QCOMPARE(plan.pieces.at(3).bytes, QByteArray(") "));
    QVERIFY(plan.pieces.at(3).earliest - plan.pieces.at(2).earliest > 200ms);
}

void TestSim::cableIsPulledAtTheByte_data()
{
    QTest::addColumn<int>("bytes");
    QTest::addColumn<bool>("pulled");
    QTest::newRow("before anything") << 0 << true;
    QTest::newRow("in the echo") << 4 << true;
    QTest::newRow("between echo and body") << 19 << true;
    QTest::newRow("in the prompt") << 48 << true;
    QTest::newRow("with the last byte") << 49 << true;
    QTest::newRow("beyond this reply") << 50 << false;
}

void TestSim::cableIsPulledAtTheByte()
{
    QFETCH(int, bytes);
    QFETCH(bool, pulled);
    const ReplyPlan plan = replyPlan(profile(u"IP 7,drop@%1"_s.arg(bytes)), "syscfg print RMd#", 120ms);
    QByteArray sent;
    for (const ReplyPiece &piece : plan.pieces)
        sent += piece.bytes;
    QCOMPARE(plan.thenUnplug, pulled);
    QCOMPARE(sent, answer(profile(u"IP 7"_s), "syscfg print RMd#").left(bytes));
}

void TestSim::lineKeepsItsPace()
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

QTEST_GUILESS_MAIN(TestSim)

#include "tst_sim.moc"
