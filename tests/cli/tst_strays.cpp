#include "bateriascreen.h"
#include "options.h"
#include "phonebench.h"
#include "referenciasscreen.h"
#include "screentable.h"

#include <QSignalSpy>
#include <QTest>

namespace {

/// A screen on a phone whose line still holds the tail of another command.
struct StrayBench : PhoneBench
{
    StrayBench(const QString &model, std::unique_ptr<Screen> (*make)(Session &)) : PhoneBench(model)
    {
        connectPhone();
        screen = make(*session);
        screen->open();
    }

    void give(const QString &command)
    {
        const QMap<QString, QString> given{{u"--bus"_s, u"0"_s}, {u"--buck"_s, u"5"_s}};
        giveOptions(*screen, {.screen = command, .replyFile = {}, .report = {}, .given = given});
    }
    void read() const
    {
        screen->read();
        gatherReply();
        auto *battery = qobject_cast<BateriaScreen *>(screen.get());
        if (!battery || screen->isStray()) // the second of its questions is the one that is judged
            return;
        battery->TimerLer_Timer();
        gatherReply();
    }

    std::unique_ptr<Screen> screen;
};

} // namespace

/// What is left of another command's reply on the line is never judged as the answer to this one, on no screen.
class TestStrays : public QObject
{
    Q_OBJECT

private slots:
    void tailJudgesNothing_data()
    {
        QTest::addColumn<QString>("command");
        for (const ScreenCommand *screen : screenCommands())
            QTest::newRow(screen->command.data()) << QString(screen->command);
        QTest::newRow("reference boards") << QString();
    }

    void tailJudgesNothing()
    {
        QFETCH(const QString, command);
        const QString model = command == "acorn"_L1 ? u"IP X"_s : u"IP 8"_s;
        StrayBench bench(model, command.isEmpty() ? &makeScreen<ReferenciasScreen> : screenByCommand(command)->make);
        if (!command.isEmpty())
            bench.give(command);
        Screen &screen = *bench.screen;
        bench.read();
        QVERIFY(!screen.isStray());
        const Panel own = screen.reading();

        const QByteArray whole = answer(bench.port.phone, "syscfg list");
        bench.port.before = whole.last(200);
        bench.read();
        QCOMPARE(screen.reading().verdict, own.verdict); // before the echo it is another command's
        QCOMPARE(screen.reading().judgements.size(), own.judgements.size());
        QCOMPARE(screen.hasReading(), true);

        QSignalSpy ended(&screen, &Screen::readingEnded);
        QSignalSpy judged(&screen, &Screen::judged);
        QSignalSpy told(bench.session.get(), &Session::refused);
        bench.port.answers = false;
        bench.read();
        QCOMPARE(ended.size(), 1);
        QVERIFY(screen.isStray());
        QCOMPARE(screen.reading().verdict, Verdict::Incomplete);
        for (const Judgement &judgement : screen.judgements())
            QCOMPARE(judgement.verdict, Verdict::Incomplete);
        QCOMPARE(told.size(), 1);
        QCOMPARE(told.first().first().value<Notice>().key, u"REPLY_STRAY"_s);

        bench.port.before.clear();
        bench.port.answers = true;
        bench.read();
        QCOMPARE(screen.reading().verdict, own.verdict);
    }
};

QTEST_GUILESS_MAIN(TestStrays)
#include "tst_strays.moc"
