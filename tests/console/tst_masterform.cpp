#include "commandline.h"
#include "differenceview.h"
#include "findbar.h"
#include "master.h"
#include "shell/sessionbench.h"
#include "textpane.h"
#include "zajustes.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QToolButton>

#include <algorithm>

namespace {

/// The console's form on a connected phone that answers by script.
struct FormBench : SessionBench
{
    FormBench()
    {
        accept("A1660");
        session.chooseLanguage(Language::English);
        form.CarregaDados();
        form.resize(1000, 600);
        form.show();
        log.clear();
    }

    template <typename T>
    T &control(const char *name)
    {
        T *found = form.findChild<T *>(QString::fromLatin1(name));
        if (!found)
            qFatal("no control %s", name);
        return *found;
    }

    void send(const QString &command, const QByteArray &body)
    {
        control<CommandLine>("txtComandos").setEditText(command);
        port.answers.append({answered(command.toLatin1(), body)});
        QTest::keyClick(&control<CommandLine>("txtComandos"), Qt::Key_Return);
        deliver();
    }

    QString line() { return control<CommandLine>("txtComandos").currentText(); }
    void press(Qt::Key key) { QTest::keyClick(&control<CommandLine>("txtComandos"), key); }
    void click(const char *button) { control<QAbstractButton>(button).click(); }
    QString console() { return control<TextPane>("txtConsole").toPlainText(); }

    Master form{session};
};

} // namespace

class TestMasterForm : public QObject
{
    Q_OBJECT

private slots:
    void everyFieldHasItsControl()
    {
        FormBench bench;
        const QMap<QString, Field> &fields = bench.form.screen().panel().fields;
        for (auto field = fields.begin(); field != fields.end(); ++field)
            QVERIFY2(bench.form.findChild<QWidget *>(field.key()), qPrintable(field.key()));
        QVERIFY(bench.control<QLineEdit>("txtInfoComandos2").isVisible());
        QVERIFY(!bench.control<QLineEdit>("txtInfoComandos").isVisible());
        QVERIFY(!bench.control<QPushButton>("Command1").isVisible()); // without the maintenance setting
    }

    void historyAndCompletion()
    {
        FormBench bench;
        bench.send(u"sn"_s, "one");
        bench.send(u"NANDsize"_s, "two"); // listed in another letter case
        QCOMPARE(bench.line(), u"NANDsize"_s);
        bench.control<CommandLine>("txtComandos").setEditText(u"dra"_s);
        bench.press(Qt::Key_Up);
        bench.press(Qt::Key_Up);
        QCOMPARE(bench.line(), u"sn"_s);
        bench.press(Qt::Key_Down);
        bench.press(Qt::Key_Down);
        QCOMPARE(bench.line(), u"dra"_s);

        QCompleter *completer = bench.control<CommandLine>("txtComandos").completer();
        completer->setCompletionPrefix(u"NANDS"_s);
        QCOMPARE(completer->completionCount(), 1);
        QCOMPARE(completer->currentCompletion(), u"nandsize"_s);
        bench.control<CommandLine>("txtComandos").setEditText(u"Nandsize"_s);
        QCOMPARE(bench.control<QLineEdit>("txtInfoComandos2").text(), u"Size of the NAND memory"_s);
    }

    void hitsAreMarkedAndCounted()
    {
        FormBench bench;
        bench.send(u"x"_s, "Vbat 1\nvbat 2\nother");
        auto &pane = bench.control<TextPane>("txtConsole");
        auto &find = bench.control<QLineEdit>("txtLocalizar");
        find.setText(u"VBAT"_s);
        QCOMPARE(pane.extraSelections().size(), 2);
        QCOMPARE(pane.chosenHit(), 1); // gone to while it is typed
        QTest::keyClick(&find, Qt::Key_Return);
        QCOMPARE(pane.chosenHit(), 2);
        QTest::keyClick(&find, Qt::Key_Return); // once around
        QCOMPARE(pane.chosenHit(), 1);
        const auto tells = [&](const QString &text) {
            const auto labels = find.parentWidget()->findChildren<QLabel *>();
            return std::ranges::any_of(labels, [&](const QLabel *label) { return label->text() == text; });
        };
        bench.send(u"x"_s, "nothing");
        QVERIFY(tells(u"Data not found"_s));
        bench.session.chooseLanguage(Language::Spanish);
        QVERIFY(tells(u"Datos no encontrados"_s));
        bench.send(u"x"_s, "vbat\nvbat\nvbat");
        QVERIFY(tells(u"0 de 3"_s));
        find.clear();
        QVERIFY(pane.extraSelections().isEmpty());
    }

    void typedTextOutlivesWhatIsPainted()
    {
        FormBench bench;
        bench.send(u"sn"_s, "one");
        bench.click("btSalvar");
        auto &recording = bench.control<TextPane>("txtComparador");
        QVERIFY(!recording.isReadOnly());
        QTest::keyClicks(&recording, u"mine "_s);
        bench.session.chooseModel(u"IP 7"_s);
        bench.session.statusChanged();
        QVERIFY(recording.toPlainText().startsWith(u"mine "));
        bench.control<CommandLine>("txtComandos").setEditText(u"ver"_s);
        bench.boxes.answer = Answer::Yes;
        bench.log.clear();
        bench.port.answers = {{answered("ver", "2")}};
        bench.click("btSend");
        QCOMPARE(bench.log, QStringList{u"ask To Save"_s});
        bench.deliver();
        QCOMPARE(recording.toPlainText(), QString());
        bench.log.clear();
        bench.send(u"sn"_s, "one");
        QVERIFY(bench.log.isEmpty());
        QVERIFY(recording.toPlainText().startsWith(u"mine "));
    }

    void differencesAreGoneThroughByKey()
    {
        FormBench bench;
        bench.send(u"pmu"_s, "a: 1\nb: 2\nc: 3\nd: 4");
        bench.click("btSalvar");
        bench.send(u"pmu"_s, "a: 1\nb: 9\nc: 3\nd: 9");
        bench.click("btDiferencas");
        auto &view = bench.control<DifferenceView>("ListaDiferencas");
        QVERIFY(view.isVisible());
        QCOMPARE(view.model()->rowCount(), 4);
        QCOMPARE(view.currentIndex().row(), 1);
        bench.click("btProximaDif");
        QCOMPARE(view.currentIndex().row(), 3);
        bench.click("btProximaDif");
        QCOMPARE(view.currentIndex().row(), 3);
        bench.click("btAnteriorDif");
        QCOMPARE(view.copyText(), u"b: 9\tb: 2\t+7 (+350.0 %)"_s);
        view.clearSelection();
        QCOMPARE(view.copyText().count(u'\n'), 1);
        QCOMPARE(bench.control<QLabel>("lbResumo").text(), u"First departs at b, 2 lines differ"_s);
    }

    void longRepliesAreShownInPart()
    {
        FormBench bench;
        const int least = bench.form.minimumSizeHint().width();
        QByteArray body;
        for (int line = 1; line <= 30000; ++line)
            body += "line " + QByteArray::number(line) + '\n';
        bench.send(u"x"_s, body);
        bench.click("btSalvar");
        QTest::keyClicks(&bench.control<TextPane>("txtComparador"), u"x"_s);
        QCOMPARE(bench.log, QStringList{u"RECORDING_TOO_LONG"_s});
        QVERIFY(bench.control<QLabel>("lbLinhasComparador").isVisible());
        QVERIFY(bench.control<QLabel>("lbLinhas").text().contains(u"Save text"));
        QCOMPARE(bench.form.minimumSizeHint().width(), least); // what is told does not push buttons off the screen
        auto &pane = bench.control<TextPane>("txtConsole");
        QCOMPARE(pane.blockCount(), TextPane::kLinesShown);
        QVERIFY(pane.toPlainText().contains(u"line 30000"));
        QVERIFY(bench.control<QLabel>("lbLinhas").isVisible());

        bench.send(u"x"_s, QByteArray(3'000'000, 'x')); // no line end at all
        QVERIFY(pane.document()->begin().length() <= 1001);
    }

    void replyIsPaintedNowAndThen()
    {
        FormBench bench;
        bench.control<CommandLine>("txtComandos").setEditText(u"test"_s);
        bench.port.answers = {{"first\r", "\nsecond\n", ":-) "}};
        bench.click("btSend");
        bench.session.Timer1_Timer();
        auto &pane = bench.control<TextPane>("txtConsole");
        pane.TimerTexto_Timer();
        QCOMPARE(bench.console(), u"first"_s);
        bench.session.Timer2_Timer();
        pane.TimerTexto_Timer();
        QCOMPARE(bench.console(), u"first\nsecond\n"_s); // a line end in two chunks is one
        for (int i = 0; i < 100; ++i)
            pane.addSoon(QString(10000, u'x') + u'\n');
        pane.TimerTexto_Timer();
        QVERIFY(bench.console().size() < 100000);
        bench.session.Timer2_Timer();
        QCOMPARE(bench.console(), u"\nfirst\nsecond\n:-) "_s);
    }

    void escapeClosesTheListFirst()
    {
        FormBench bench;
        bench.control<CommandLine>("txtComandos").setEditText(u"test"_s);
        bench.port.answers = {{"one"}};
        bench.click("btSend");
        auto *line = bench.control<CommandLine>("txtComandos").lineEdit();
        line->selectAll();
        QTest::keyClicks(line, u"i2c"_s);
        QWidget *list = bench.control<CommandLine>("txtComandos").completer()->popup();
        QTRY_VERIFY(list->isVisible());
        QTest::keyClick(list, Qt::Key_Escape);
        QVERIFY(!list->isVisible());
        QCOMPARE(bench.session.Status(), u"3"_s); // the command in flight is not stopped by it
    }

    void savedIsToldUntilSomethingIsTyped()
    {
        FormBench bench;
        bench.send(u"help"_s, "one");
        bench.click("btSalvar");
        zAjustes form(bench.session);
        form.CarregaDados();
        auto *text = form.findChild<TextPane *>(u"txtConsole"_s);
        const auto *told = form.findChild<QLabel *>(u"lbSalvo"_s);
        QTest::keyClicks(text, u"a"_s);
        form.findChild<QPushButton *>(u"btAtualizar"_s)->click();
        QCOMPARE(told->text(), u"Saved "_s);
        QTest::keyClicks(text, u"b"_s);
        QCOMPARE(told->text(), QString());
    }

    void helpWindowTakesALineOver()
    {
        FormBench bench;
        bench.port.answers = {{answered("Help", "i2c\nsyscfg")}};
        bench.click("btHelp");
        bench.deliver();
        auto *help = bench.form.window()->findChild<QDialog *>(u"fmHelp"_s);
        QVERIFY(help && help->isVisible());
        auto *list = help->findChild<TextPane *>(u"txtConsole"_s);
        QVERIFY(list->find(u"i2c"_s));
        const QRect place = list->cursorRect();
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place.center());
        QCOMPARE(bench.line(), u"i2c"_s);
        QCOMPARE(bench.port.journal.count("Help\r"), 1); // nothing else went to the phone
        help->findChild<QLineEdit *>(u"txt2"_s)->setText(u"zz mine"_s);
        help->findChild<QPushButton *>(u"btAdd"_s)->click();
        QVERIFY(bench.control<CommandLine>("txtComandos").findText(u"zz mine"_s) >= 0);
    }
};

QTEST_MAIN(TestMasterForm)
#include "tst_masterform.moc"
