#include "columns.h"
#include "data/otherprogram.h"
#include "masks.h"
#include "masterscreen.h"
#include "recordingtext.h"
#include "shell/sessionbench.h"

#include <QSignalSpy>
#include <QTest>

#include <functional>

using namespace std::chrono_literals;

namespace {

/// The console on a connected IP 7; the phone answers by script.
struct ConsoleBench : SessionBench
{
    ConsoleBench()
    {
        accept("A1660");
        screen.open();
        QObject::connect(&screen, &MasterScreen::commandChosen, &screen,
                         [this](const QString &text) { screen.setCommand(text); });
        log.clear();
        port.journal.clear();
    }

    void send(const QString &command, const QByteArray &body)
    {
        screen.setCommand(command);
        port.answers.append({answered(command.toLatin1(), body)});
        screen.btSend_Click();
        deliver();
    }

    std::optional<Recording> stored(const QString &command)
    {
        const Result<Store> open = Store::open(path, Store::Access::Read, 0s);
        const auto row = recordingFor(*open, u"IP 7"_s, command);
        return row && *row ? std::optional((*row)->recording) : std::nullopt;
    }

    void record(const Recording &recording)
    {
        Result<Store> open = Store::open(path, Store::Access::Write, 0s);
        QVERIFY(bool(saveRecording(*open, recording)));
    }

    bool isShown(const QString &field) const { return screen.panel().fields.value(field).visible.value_or(false); }
    bool isEnabled(const QString &field) const { return screen.panel().fields.value(field).enabled.value_or(false); }

    MasterScreen screen{session};
};

/// What the console makes of a reply once the command line is taken out.
QString bare(const QByteArray &body)
{
    return "\r\n\r\r\n"_L1 + QString::fromLatin1(QByteArray(body).replace("\n", "\r\n")) + "\r\n"_L1 +
           QLatin1StringView(kPromptBytes);
}

QByteArray everyByte()
{
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    return bytes.replace("\n", "") + "\nlast"; // the console doubles the line ends
}

} // namespace

class TestMaster : public QObject
{
    Q_OBJECT

private slots:
    void replyReplacesOrFollows()
    {
        ConsoleBench bench;
        bench.send(u"sn"_s, "sn: one SN");
        QCOMPARE(bench.screen.txtConsole(), bare(": one SN"));
        bench.send(u"ver"_s, "two");
        QCOMPARE(bench.screen.txtConsole(), bare("two"));
        bench.screen.setErasing(false);
        bench.send(u"ver"_s, "three");
        QCOMPARE(bench.screen.txtConsole(), bare("two") + "\r\n"_L1 + shown(answered("ver", "three")));
        bench.screen.btLimpar_Click();
        QCOMPARE(bench.screen.txtConsole(), QString());
        QCOMPARE(bench.screen.panel().fields[u"ListCmd"_s].items, QStringList({u"ver"_s, u"ver"_s, u"sn"_s}));
    }

    void sendingIsForConnectedPhones()
    {
        ConsoleBench bench;
        bench.screen.setCommand(u"  "_s);
        bench.screen.btSend_Click();
        bench.screen.setCommand(u"syscfg add SrNm X"_s);
        bench.screen.btSend_Click();
        QCOMPARE(bench.log, QStringList({u"REFUSED_NO_COMMAND"_s, u"MSG_SYSCFG"_s}));
        QVERIFY(bench.isEnabled(u"btSend"_s) && !bench.isEnabled(u"btParar"_s));
        bench.screen.setCommand(u"sn"_s);
        bench.screen.btSend_Click();
        QVERIFY(!bench.isEnabled(u"btSend"_s) && bench.isEnabled(u"btParar"_s));
        bench.session.connectOrDisconnect(u"3"_s);
        QCOMPARE(bench.session.Status(), u"3"_s); // the command in flight is waited for
        bench.screen.btParar_Click();
        bench.session.connectOrDisconnect(u"3"_s);
        QVERIFY(!bench.isEnabled(u"btSend"_s));
        bench.screen.btSend_Click();
        QCOMPARE(bench.port.journal.count("sn\r"), 1);
    }

    void markAndDifferenceTellTheSame()
    {
        ConsoleBench bench;
        bench.record({u"IP 7"_s, u"PMU"_s, bare("BIST ldo1: 3000.0 mV\nBIST ldo2: 1800.0 mV")});
        bench.send(u"pmu"_s, "BIST ldo1: 3000.0 mV\nBIST ldo2: 1800.0 mV");
        QVERIFY(bench.isShown(u"lbAutoComparador"_s));
        QCOMPARE(bench.screen.panel().verdict, Verdict::Pass);

        bench.screen.setCommand(u"pmu"_s);
        bench.port.answers = {{answered("pmu", "BIST ldo1: 3000.0 mV\nBIST ldo2: 1200.0 mV")}};
        bench.screen.btSend_Click();
        QVERIFY(!bench.isShown(u"lbAutoComparador"_s)); // it is about a reply that is there
        bench.deliver();
        QVERIFY(!bench.isShown(u"lbAutoComparador"_s));
        QCOMPARE(bench.screen.panel().verdict, Verdict::Fail);
        QCOMPARE(bench.screen.difference().differing, 1);
        bench.session.chooseLanguage(Language::English);
        QCOMPARE(bench.screen.summary(), u"First departs at BIST ldo2, 1 line differs"_s);
        bench.screen.setTolerance(40);
        QCOMPARE(bench.screen.panel().verdict, Verdict::Pass);
        QCOMPARE(bench.screen.summary(), u"Within the tolerance, 1 line differs within it"_s);

        bench.send(u"other"_s, "x");
        QCOMPARE(bench.screen.panel().verdict, Verdict::None);
        QCOMPARE(bench.screen.summary(), u"No recording to compare with"_s);
    }

    void cutReplyIsNeverGood()
    {
        ConsoleBench bench;
        bench.record({u"IP 7"_s, u"pmu"_s, bare("one\ntwo")});
        bench.screen.setCommand(u"pmu"_s);
        bench.port.answers = {{"pmu\r\n", "one\n"}};
        bench.screen.btSend_Click();
        bench.session.Timer1_Timer();
        bench.screen.btParar_Click();
        QVERIFY(bench.session.isReady());
        QVERIFY(!bench.isShown(u"lbAutoComparador"_s)); // though it stands in the recording
        QCOMPARE(bench.screen.panel().verdict, Verdict::Incomplete);
        bench.boxes.answer = Answer::Yes;
        bench.screen.btSalvar_Click();
        QCOMPARE(bench.log, QStringList({u"REPLY_CUT"_s, u"NOT_RECORDED_CUT"_s}));
        QCOMPARE(bench.stored(u"pmu"_s)->dados, bare("one\ntwo"));
        QVERIFY(bench.isShown(u"lbCorte"_s));
        QCOMPARE(bench.screen.panel().fields[u"lbCorte"_s].text, u"Parada antes do fim da resposta"_s);
        bench.send(u"pmu"_s, "one\ntwo");
        QVERIFY(!bench.isShown(u"lbCorte"_s));
    }

    /// What is on its way, or another phone's, was never compared.
    void passEndsWithItsReply()
    {
        const auto ask = [](ConsoleBench &bench, const QString &command) {
            bench.screen.setCommand(command);
            bench.port.answers = {{"part"}};
            bench.screen.btSend_Click();
            bench.session.Timer1_Timer();
        };
        const std::pair<const char *, std::function<void(ConsoleBench &)>> events[] = {
            {"the same command", [&](ConsoleBench &bench) { ask(bench, u"SN"_s); }},
            {"another command", [&](ConsoleBench &bench) { ask(bench, u"ver"_s); }},
            {"shutdown",
             [](ConsoleBench &bench) {
                 bench.boxes.answer = Answer::Yes;
                 bench.screen.btDesligar_Click();
             }},
            {"the same model comes again",
             [](ConsoleBench &bench) {
                 bench.session.connectOrDisconnect(u"3"_s);
                 bench.accept("A1660");
             }},
            {"the line dies in a reply",
             [&](ConsoleBench &bench) {
                 ask(bench, u"ver"_s);
                 bench.port.die();
             }},
            {"the line dies at once",
             [&](ConsoleBench &bench) {
                 bench.port.diesOnWrite = true;
                 ask(bench, u"ver"_s);
             }},
            {"the store is damaged",
             [](ConsoleBench &bench) {
                 QFile file(bench.path);
                 QVERIFY(file.open(QIODevice::WriteOnly) && file.write("garbage") > 0);
                 file.close();
                 bench.send(u"sn"_s, "one");
             }},
        };
        for (const auto &[what, happen] : events) {
            ConsoleBench bench;
            bench.record({u"IP 7"_s, u"sn"_s, bare("one")});
            bench.send(u"sn"_s, "one");
            QVERIFY(bench.isShown(u"lbAutoComparador"_s) && bench.screen.panel().verdict == Verdict::Pass);
            QSignalSpy emptied(&bench.screen, &MasterScreen::differenceChanged);
            happen(bench);
            QVERIFY2(!bench.isShown(u"lbAutoComparador"_s) && bench.screen.panel().verdict == Verdict::None, what);
            QVERIFY2(bench.screen.difference().rows.isEmpty() && !emptied.isEmpty(), what);
            QVERIFY2(bench.screen.txtComparador().isEmpty() || bench.screen.boundCommand() == u"sn", what);
        }
    }

    void apostropheIsNotRecorded()
    {
        ConsoleBench bench;
        bench.send(u"a'b"_s, "one");
        bench.screen.btSalvar_Click();
        bench.boxes.answer = Answer::Yes;
        bench.screen.btSalvarAtualizacoes_Click({.notes = {u"nota"_s}});
        QCOMPARE(bench.log, QStringList({u"COMMAND_APOSTROPHE"_s, u"ask Salvar"_s, u"COMMAND_APOSTROPHE"_s}));
        QVERIFY(!bench.stored(u"a'b"_s));
    }

    void maskedTextsAreNoDifference()
    {
        ConsoleBench bench;
        bench.record({u"IP 7"_s, u"sn"_s, bare("SrNm: xxxxx\xAE")});
        bench.boxes.typed = u"C39XYZ"_s;
        bench.screen.Command2_Click();
        bench.send(u"sn"_s, "SrNm: c39xyz");
        QVERIFY(bench.isShown(u"lbAutoComparador"_s));
        QCOMPARE(bench.screen.difference().rows.first().kind, DifferenceRow::Kind::Masked);
        QVERIFY(bench.screen.txtConsole().contains(u"c39xyz"));
        bench.boxes.answer = Answer::Yes;
        bench.screen.btSalvar_Click();
        QVERIFY(bench.stored(u"sn"_s)->dados.contains(u"c39xyz")); // a copy is not masked by itself
        bench.screen.Command1_Click({});
        QCOMPARE(bench.stored(u"sn"_s)->dados, bare("SrNm: xxxxx\xAE"));
    }

    void recordingIsTheReplyToTheByte()
    {
        ConsoleBench bench;
        bench.send(u"dump"_s, everyByte());
        QSignalSpy saved(&bench.screen, &MasterScreen::recordingSaved);
        bench.screen.btSalvar_Click();
        QCOMPARE(saved.size(), 1);
        QCOMPARE(bench.stored(u"dump"_s)->dados, bare(everyByte()));
        QVERIFY(bench.screen.recording()->intact());
        QVERIFY(bench.log.isEmpty()); // nothing was there to be replaced

        bench.send(u"dump"_s, "another");
        bench.boxes.answer = Answer::No;
        bench.screen.btSalvar_Click();
        QCOMPARE(bench.log, QStringList{u"ask Dados"_s});
        QCOMPARE(bench.stored(u"dump"_s)->dados, bare(everyByte()));
        bench.boxes.answer = Answer::Yes;
        bench.screen.btSalvar_Click();
        QCOMPARE(bench.stored(u"dump"_s)->dados, bare("another"));

        bench.boxes.answer = Answer::No;
        bench.screen.btExcluir_Click();
        QVERIFY(bench.stored(u"dump"_s));
        bench.boxes.answer = Answer::Yes;
        bench.screen.btExcluir_Click();
        QVERIFY(!bench.stored(u"dump"_s));
        QVERIFY(bench.screen.txtComparador().isEmpty());
        bench.log.clear();
        bench.screen.btExcluir_Click();
        QVERIFY(bench.log.isEmpty());
    }

    void notesAloneAreFilledUp()
    {
        ConsoleBench bench;
        bench.record({u"IP 7"_s, u"SN"_s, {}, u"nota"_s});
        bench.send(u"sn"_s, "one");
        bench.screen.btSalvar_Click();
        QCOMPARE(bench.stored(u"sn"_s), (Recording{u"IP 7"_s, u"SN"_s, bare("one"), u"nota"_s}));
        const Result<Store> open = Store::open(bench.path, Store::Access::Read, 0s);
        QCOMPARE(allRecordings(*open)->size(), 1);
    }

    void onlyThisPhonesReplyIsRecorded()
    {
        ConsoleBench bench;
        bench.send(u"sn"_s, "one");
        bench.session.connectOrDisconnect(u"3"_s);
        bench.screen.btSalvar_Click();
        bench.accept("A1688"); // another phone, the reply still on screen
        bench.log.clear();
        bench.screen.btSalvar_Click();
        QCOMPARE(bench.log, QStringList{u"REFUSED_NO_READING"_s});
        bench.send(u"sn"_s, "two");
        bench.screen.setCommand(u"ver"_s); // what is typed next does not rename the reply
        bench.screen.btSalvar_Click();
        const Result<Store> open = Store::open(bench.path, Store::Access::Read, 0s);
        QCOMPARE(allRecordings(*open)->size(), 1);
        QCOMPARE(allRecordings(*open)->first().recording, (Recording{u"IP 6s"_s, u"sn"_s, bare("two")}));
    }

    void lockedStoreLosesNothing()
    {
        ConsoleBench bench;
        bench.record({u"IP 7"_s, u"sn"_s, u"kept"_s, u"nota"_s});
        OtherProgram other(bench.path);
        other.run(u"BEGIN EXCLUSIVE"_s);
        bench.screen.setCommand(u"sn"_s);
        bench.port.answers = {{answered("sn", "one")}};
        bench.screen.btSend_Click();
        bench.session.Timer1_Timer();
        for (int tick = 0; tick < 100; ++tick) // the recording, then the masks
            bench.store.TimerStore_Timer();
        QCOMPARE(bench.screen.txtConsole(), bare("one"));
        bench.boxes.answer = Answer::Yes;
        bench.screen.btSalvarAtualizacoes_Click({.notes = {u"new"_s}});
        for (int tick = 0; tick < 50; ++tick)
            bench.store.TimerStore_Timer();
        other.run(u"ROLLBACK"_s);
        QCOMPARE(bench.stored(u"sn"_s), (Recording{u"IP 7"_s, u"sn"_s, u"kept"_s, u"nota"_s}));
        QVERIFY(bench.log.count(u"STORE_LOCKED"_s) >= 2);
        bench.log.clear();
        bench.screen.btSalvar_Click(); // what could not be seen is seen now, and asked for
        QCOMPARE(bench.log, QStringList{u"ask Dados"_s});
        QCOMPARE(bench.stored(u"sn"_s)->dados, bare("one"));
        QCOMPARE(bench.stored(u"sn"_s)->info, u"nota"_s);
    }

    void editsAreSavedTogether()
    {
        ConsoleBench bench;
        bench.record({u"IP 7"_s, u"sn"_s, bare("one\ntwo")});
        bench.send(u"sn"_s, "one");
        const QString inEditor = editable(bench.screen.txtComparador()).replace(u"two"_s, u"2\nthree"_s);
        const MasterEdits edits{inEditor, {u"nota"_s, u"note"_s, {}}, u"SN"_s, {u"d1"_s, u"d2"_s, u"d3"_s}};
        bench.boxes.answer = Answer::No;
        bench.screen.btSalvarAtualizacoes_Click(edits);
        QCOMPARE(bench.stored(u"sn"_s)->info, QString());
        bench.boxes.answer = Answer::Yes;
        bench.screen.btSalvarAtualizacoes_Click(edits);
        QCOMPARE(bench.stored(u"sn"_s)->dados, bare("one\n2\nthree"));
        QCOMPARE(bench.stored(u"sn"_s)->info2, u"note"_s);
        QCOMPARE(bench.screen.rowOf(u"sn"_s)->info, (std::array{u"d1"_s, u"d2"_s, u"d3"_s}));

        bench.log.clear();
        bench.screen.setCommand(u"ver"_s);
        bench.port.answers = {{answered("ver", "1")}};
        bench.screen.btSend_Click(MasterEdits{inEditor + u'!'});
        QCOMPARE(bench.log, QStringList{u"ask Salvar"_s});
        QVERIFY(bench.stored(u"sn"_s)->dados.endsWith(u'!')); // saved before the next reply takes its place
        QCOMPARE(bench.session.Status(), u"3"_s);
    }

    void editorGivesBackWhatWasLeftAlone_data()
    {
        columns<QString, QString, QString>({"recording", "typed", "saved"});
        const QString hostile = u"\r\na\u0000\x1B\r\r\nb\nc\rd\r\n"_s;
        QTest::newRow("untouched") << hostile << editable(hostile) << hostile;
        QTest::newRow("a line in the middle") << hostile << editable(hostile).replace(u'b', u"x\ny"_s)
                                              << QString(hostile).replace(u"b\n"_s, u"x\r\ny\r\n"_s);
        QTest::newRow("a line removed") << u"a\r\nb\r\nc"_s << u"a\nc"_s << u"a\r\nc"_s;
        QTest::newRow("lines behind the last") << u"a\r\nb"_s << u"a\nb\nc"_s << u"a\r\nb\r\nc"_s;
        QTest::newRow("lines before the first") << u"a\r\nb"_s << u"0\na\nb"_s << u"0\r\na\r\nb"_s;
        QTest::newRow("all typed") << QString() << u"a\nb"_s << u"a\r\nb"_s;
        QTest::newRow("all deleted") << u"a\r\nb"_s << QString() << QString();
    }

    void editorGivesBackWhatWasLeftAlone()
    {
        QFETCH(QString, recording);
        QFETCH(QString, typed);
        QTEST(edited(recording, typed), "saved");
    }

    void modelChangeBindsTheViewAnew()
    {
        ConsoleBench bench;
        bench.record({u"IP 7"_s, u"sn"_s, u"of the 7"_s});
        bench.record({u"IP 8"_s, u"sn"_s, u"of the 8"_s});
        bench.send(u"sn"_s, "one");
        QCOMPARE(bench.screen.txtComparador(), u"of the 7"_s);
        bench.session.chooseModel(u"IP 8"_s);
        QCOMPARE(bench.screen.txtComparador(), u"of the 8"_s);
        bench.session.chooseModel(u"IP X"_s);
        QCOMPARE(bench.screen.txtComparador(), QString());
    }

    void buttonTestIsEnded()
    {
        ConsoleBench bench;
        bench.screen.setCommand(u"ButtonCnt --dqe"_s);
        bench.port.answers = {{"counting"}, {"/q\r\n:-) "}};
        bench.screen.btSend_Click();
        QCOMPARE(bench.log, QStringList{u"ask Teste de Funcionamento de Botões"_s});
        QCOMPARE(bench.port.journal.last(), QByteArray("/q\r"));
        bench.deliver();
        QCOMPARE(bench.screen.txtConsole(), u"\r\n\r\r\n:-) "_s);
    }

    void commandListIsKept()
    {
        ConsoleBench bench;
        const auto count = [&] { return bench.screen.commands().size(); };
        const auto atStart = count();
        bench.boxes.typed = u"zz 'x'"_s;
        bench.screen.btNovo_Click();
        bench.boxes.typed.clear();
        bench.screen.btNovo_Click();
        bench.boxes.typed = u"HELP i2c"_s; // is there, in another letter case
        bench.screen.btNovo_Click();
        QCOMPARE(count(), atStart);
        QCOMPARE(bench.log.filter(u"COMMAND"_s), QStringList{u"COMMAND_APOSTROPHE"_s});
        bench.boxes.typed = u"zz new"_s;
        bench.screen.btNovo_Click();
        QCOMPARE(bench.screen.commands().last().comando, u"zz new"_s);
        QCOMPARE(bench.screen.txtComandos(), u"zz new"_s);
        bench.boxes.answer = Answer::No;
        bench.screen.btApagar_Click();
        QCOMPARE(count(), atStart + 1);
        bench.boxes.answer = Answer::Yes;
        bench.screen.btApagar_Click();
        QCOMPARE(count(), atStart);
    }

    void helpShowsTheRecordingAtOnce()
    {
        ConsoleBench bench;
        bench.record({u"IP 7"_s, u"help"_s, u"i2c\r\nsyscfg"_s});
        bench.send(u"sn"_s, "one");
        QSignalSpy wanted(&bench.screen, &MasterScreen::helpWanted);
        bench.screen.btHelp_Click();
        QCOMPARE(wanted.value(0).value(0).toString(), u"i2c\r\nsyscfg"_s);
        QCOMPARE(bench.screen.panel().verdict, Verdict::None); // the reply on screen is not the phone's help
        bench.log.clear();
        bench.screen.btSalvar_Click();
        QCOMPARE(bench.log, QStringList{u"REFUSED_NO_READING"_s});
        QVERIFY(!bench.stored(u"sn"_s));

        bench.screen.btRecent_Click();
        bench.send(u"Help nand"_s, "text");
        QVERIFY(bench.screen.txtHelpAux().contains(u"text"));
        QVERIFY(bench.isShown(u"FrameHistorico"_s) && !bench.isShown(u"ldDispComparador"_s));
    }

    void referenceIsOpenedInTheLanguage()
    {
        ConsoleBench bench;
        bench.screen.btHelpPdf_Click();
        QCOMPARE(bench.log, QStringList{u"GUIDE_MISSING"_s});
        for (const auto &name : {u"xEDK_BR.pdf"_s, u"xEDK_USA.pdf"_s, u"xEDK_ES.pdf"_s})
            QVERIFY(QFile(bench.dir.filePath(name)).open(QIODevice::WriteOnly));
        for (const auto language : {Language::Portuguese, Language::English, Language::Spanish}) {
            bench.session.chooseLanguage(language);
            bench.screen.btHelpPdf_Click();
        }
        QCOMPARE(bench.opened.size(), 3);
        QCOMPARE(bench.opened[0], QDir::toNativeSeparators(bench.dir.filePath(u"xEDK_BR.pdf"_s)));
        QVERIFY(bench.opened[1].endsWith(u"/xEDK_USA.pdf") && bench.opened[2].endsWith(u"/xEDK_ES.pdf"));
    }

    void replyIsShownAsItArrives()
    {
        ConsoleBench bench;
        QStringList events;
        QObject::connect(&bench.screen, &MasterScreen::consoleStarted, &bench.screen, [&] { events += u"started"_s; });
        QObject::connect(&bench.screen, &MasterScreen::consoleReplaced, &bench.screen,
                         [&] { events += u"replaced"_s; });
        QObject::connect(&bench.screen, &MasterScreen::consoleAppended, &bench.screen,
                         [&](const QString &text) { events += text; });
        bench.screen.setCommand(u"testmemory --1MB"_s);
        bench.port.answers = {{"Block 1\n", "Block 2\n", ":-) "}};
        bench.screen.btSend_Click();
        bench.deliver();
        QCOMPARE(events, QStringList({u"started"_s, u"Block 1\r\n"_s, u"Block 2\r\n"_s, u":-) "_s, u"replaced"_s}));
    }

    void longRepliesAreComparedBesideTheWindow()
    {
        ConsoleBench bench;
        QByteArray body;
        for (int line = 0; line < 5000; ++line)
            body += "BIST rail" + QByteArray::number(line) + ": 1000.0000 mV\n";
        bench.send(u"pmu"_s, body);
        bench.screen.btSalvar_Click();
        bench.send(u"pmu"_s, QByteArray(body).replace("rail4321: 1000", "rail4321: 500"));
        QVERIFY(bench.screen.isComparing());
        QVERIFY(QTest::qWaitFor([&] { return !bench.screen.isComparing(); }));
        QCOMPARE(bench.screen.difference().differing, 1);
        QCOMPARE(bench.screen.difference().rows[*bench.screen.difference().first()].change,
                 u"-500.0000 mV (-50.0 %)"_s);
    }
};

QTEST_GUILESS_MAIN(TestMaster)
#include "tst_master.moc"
