#include "columns.h"
#include "findingslist.h"
#include "moduletable.h"
#include "panelgrid.h"
#include "screenform.h"
#include "settings.h"
#include "theme.h"
#include "windowbench.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QSlider>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <QToolButton>
#include <QWheelEvent>
#include <QWindow>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

QString captionOf(const QWidget &widget)
{
    for (const char *property : {"text", "title"})
        if (const QVariant shown = widget.property(property); shown.isValid() && !shown.toString().isEmpty())
            return shown.toString();
    return widget.accessibleName();
}

/// The named buttons, labels and boxes that say nothing, to the eye or to a reader.
QStringList silentControls(const QWidget &window)
{
    // These speak only when there is something to say.
    static const QStringList kMayBeSilent = {u"lbModelo"_s, u"lbBox"_s,    u"St2"_s,      u"lbDica"_s,
                                             u"lbVar"_s,    u"lbStatus"_s, u"lbResumo"_s, u"lbSalvo"_s};
    QStringList silent;
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        const QString name = widget->objectName();
        const bool speaks = qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QLabel *>(widget) ||
                            qobject_cast<const QGroupBox *>(widget) || qobject_cast<const QComboBox *>(widget);
        if (speaks && !name.isEmpty() && !name.startsWith("qt_"_L1) && !kMayBeSilent.contains(name) &&
            captionOf(*widget).isEmpty())
            silent.append(name);
    }
    return silent;
}

} // namespace

class TestWindow : public QObject
{
    Q_OBJECT

private slots:
    void railAndKeysOpenEveryScreen()
    {
        Bench bench;
        for (const Module &module : modules()) {
            const QString name = module.name;
            bench.click(module.botao > 0 ? u"Botoes(%1)"_s.arg(module.botao) : u"bt"_s + name);
            QCOMPARE(bench.front(), name);
        }
        for (const Module &module : modules()) {
            const QKeyCombination keys = QKeySequence(QString(module.shortcut))[0];
            QTest::keyClick(&bench.window, keys.key(), keys.keyboardModifiers());
            QCOMPARE(bench.front(), QString(module.name));
        }
        QCOMPARE(bench.control<QTabWidget>(u"Abas"_s)->count(), static_cast<int>(modules().size()));
    }

    void termsAreAskedForUntilTheyAreAccepted()
    {
        Bench bench;
        const auto *terms = bench.control<QWidget>(u"FrameTermos"_s);
        bench.window.askForTerms();
        QVERIFY(terms->isVisible());
        bench.session.chooseLanguage(Language::Spanish);
        QCOMPARE(bench.control<QPushButton>(u"TermosNo"_s)->text(), u"No acepto los términos"_s);
        bench.click(u"TermosYes"_s);
        bench.window.askForTerms();
        QVERIFY(!terms->isVisible());
        QVERIFY(bench.window.isVisible());

        Bench other;
        other.window.askForTerms();
        other.click(u"TermosNo"_s);
        QVERIFY(!other.window.isVisible());
    }

    void fitsASmallDisplayInEveryLanguage()
    {
        applyTheme(ThemeChoice::Light);
        applyStyleSheet(*qApp);
        Bench bench;
        bench.connectTo(u"sim:IP 8 Plus"_s);
        QTRY_VERIFY(bench.session.isReady() && bench.session.isModelKnown());
        for (const Language language : {Language::Portuguese, Language::English, Language::Spanish}) {
            bench.session.chooseLanguage(language);
            for (const Module &module : modules()) {
                bench.window.openScreen(module.name);
                const QSize least = bench.window.minimumSizeHint();
                const QString where = u"%1 in language %2: %3 x %4"_s.arg(module.name)
                                          .arg(static_cast<int>(language))
                                          .arg(least.width())
                                          .arg(least.height());
                QVERIFY2(least.width() <= 1280 && least.height() <= 800, qPrintable(where));
            }
        }
    }

    void fieldsHaveControls()
    {
        Bench bench;
        for (const Module &module : modules())
            bench.window.openScreen(module.name);
        for (const ScreenForm *form : bench.window.findChildren<ScreenForm *>())
            for (const QString &field : form->screen().panel().fields.keys())
                QVERIFY2(form->findChild<QWidget *>(field), qPrintable(form->objectName() + u' ' + field));
    }

    void clicksReadABoard()
    {
        Bench bench;
        bench.connectTo(u"sim:IP 7,buck3=1200"_s);
        QTRY_VERIFY(bench.session.isReady() && bench.session.isModelKnown());
        QCOMPARE(bench.control<QLabel>(u"lbModelo"_s)->text(), u"IP 7"_s);
        bench.click(u"Botoes(4)"_s);
        bench.click(u"Botao4"_s);
        const auto *form = bench.control<ScreenForm>(u"BuckLdo"_s);
        QTRY_VERIFY(form->screen().hasReading());
        QCOMPARE(form->screen().panel().verdict, Verdict::Fail);
        QCOMPARE(bench.control<PanelGrid>(u"DBGrid1"_s)->model()->rowCount(),
                 static_cast<int>(form->screen().panel().rows.size()));
        const auto *findings = bench.control<FindingsList>(u"ListaAchados"_s);
        QCOMPARE(findings->model()->rowCount(), 1);
        QVERIFY(findings->model()->index(0, 0).data().toString().contains("1.200 V"_L1));
        QVERIFY(!bench.control<QLabel>(u"lbDica"_s)->isVisible());
        bench.click(u"Botoes(1)"_s);
        QVERIFY(bench.control<QLabel>(u"lbDica"_s)->isVisible()); // what is seen is the last reading
        bench.connectTo(u"sim:IP 8"_s);
        QTRY_COMPARE(findings->model()->rowCount(), 0); // they were another phone's
    }

    void chipsAreReadWhenOpened()
    {
        Bench bench;
        bench.connectTo(u"sim:IP 7,vbus=low"_s);
        QTRY_VERIFY(bench.session.isReady() && bench.session.isModelKnown());
        bench.window.openScreen(u"Tigris"_s);
        const auto *form = bench.control<ScreenForm>(u"Tigris"_s);
        QTRY_VERIFY(form->screen().hasReading());
        QCOMPARE(bench.control<QLabel>(u"VBus_V"_s)->text(), u"4.300 V"_s);
        QCOMPARE(bench.control<QLabel>(u"VBus_V"_s)->accessibleName(), u"VBUS 4.300 V"_s);
        QVERIFY(bench.control<QLabel>(u"Baixa1"_s)->isVisible());
        QCOMPARE(bench.control<QLabel>(u"DesvioVBus_V"_s)->text(), u"6.3 %"_s);
        QVERIFY(!bench.control<QLabel>(u"AprovadoVBus_V"_s)->isVisible());
        QVERIFY(bench.control<QLabel>(u"AprovadoVBat_V"_s)->isVisible());
        QVERIFY(!bench.control<QLabel>(u"Baixa3"_s)->isVisible());
        QVERIFY(!bench.control<QLabel>(u"VBus_V1"_s)->isVisible());
        form->findChild<QPushButton *>(u"btLog"_s)->click();
        QVERIFY(!form->findChild<QWidget *>(u"FrameLog"_s)->isVisible());
        bench.window.openScreen(u"Acorn"_s);
        QVERIFY(bench.control<QPushButton>(u"btOutraTela"_s)->isVisible());
        bench.click(u"btOutraTela"_s);
        QCOMPARE(bench.front(), u"Chestnut"_s);
    }

    /// The key in a button's tooltip sends its command, and a button that was disabled meanwhile has the focus again.
    void testsNeedNoMouse()
    {
        Bench bench;
        bench.connectTo(u"sim:IP 8"_s);
        QTRY_VERIFY(bench.session.isReady() && bench.session.isModelKnown());
        int tests = 0;
        for (const auto &name : {u"I2C"_s, u"RFs"_s, u"Nand"_s, u"Displays"_s, u"Outros"_s}) {
            bench.window.openScreen(name);
            for (auto *button : bench.control<ScreenForm>(name)->findChildren<QPushButton *>()) {
                const QKeySequence keys = QKeySequence::fromString(button->toolTip(), QKeySequence::NativeText);
                if (keys.count() != 1 || !button->isEnabled())
                    continue;
                const bool opensAnother =
                    button->objectName() == "btBl(7)"_L1 || button->objectName() == "btBateria"_L1;
                QSignalSpy clicked(button, &QPushButton::clicked);
                bench.window.activateWindow();
                QVERIFY(QTest::qWaitForWindowActive(&bench.window));
                QTest::keyClick(&bench.window, keys[0].key(), keys[0].keyboardModifiers());
                const QString what = u"%1 %2: %3"_s.arg(name, button->objectName()).arg(clicked.size());
                QVERIFY2(clicked.size() == 1, qPrintable(what));
                if (QMessageBox *box = bench.box())
                    box->reject();
                bench.window.openScreen(name);
                QTRY_VERIFY_WITH_TIMEOUT(bench.session.isReady(), 20000);
                if (!opensAnother)
                    QTRY_COMPARE(bench.window.focusWidget(), button);
                ++tests;
            }
        }
        QVERIFY(tests > 40);
    }

    void longWordsAreBrokenInABox()
    {
        Bench bench;
        const QString address = u"https://reports.example.org/index.php?"_s + QString(2000, u'x');
        bench.session.boxes().message({{u"DOCUMENT_NOT_OPENED"_s, {address}}});
        QTRY_VERIFY(bench.box());
        const auto *text = bench.box()->findChild<QTextEdit *>(u"BoxText"_s);
        QVERIFY(text && text->toPlainText().contains(address));
        QVERIFY(text->document()->idealWidth() <= text->viewport()->width());
        QVERIFY(bench.box()->width() < bench.window.width());
        QVERIFY(text->document()->size().height() <= text->height() || text->height() == 400);
        bench.box()->reject();
    }

    void languageReachesOpenForms_data()
    {
        columns<int, QString>({"language", "read"});
        QTest::newRow("Portuguese") << 1 << u"Executar Leitura  F5"_s;
        QTest::newRow("English") << 2 << u"Run Read  F5"_s;
        QTest::newRow("Spanish") << 3 << u"Ejecutar Lectura  F5"_s;
    }

    void languageReachesOpenForms()
    {
        QFETCH(const int, language);
        Bench bench;
        for (const Module &module : modules())
            bench.window.openScreen(module.name);
        bench.window.Botoes_Click(10);
        bench.click(u"btIdioma(%1)"_s.arg(language));
        QTEST(bench.control<QPushButton>(u"Botao4"_s)->text(), "read");
        QCOMPARE(silentControls(bench.window).join(u' '), QString());
    }

    void missingPortIsTold()
    {
        Bench bench;
        bench.connectTo(QString());
        QVERIFY(bench.box());
        QCOMPARE(bench.session.Status(), u"0"_s);
        bench.box()->reject();
        QTRY_VERIFY(!bench.box()); // the event loop went on: nothing waited for the answer
        QVERIFY(bench.control<QPushButton>(u"Botoes(1)"_s)->isEnabled());
    }

    void typingSurvivesNews()
    {
        Bench bench;
        auto *field = bench.control<QComboBox>(u"cbPortas"_s)->lineEdit();
        field->clear();
        QTest::keyClicks(field, u"/dev/ttyUSB"_s);
        emit bench.session.portsWanted();
        emit bench.session.languageChanged();
        emit bench.session.statusChanged();
        QTest::keyClicks(field, u"3"_s);
        QCOMPARE(field->text(), u"/dev/ttyUSB3"_s);
    }

    void reportsAreSetUp()
    {
        Bench bench;
        const auto stored = [&bench](const QString &name) {
            QString value;
            bench.session.withStore<QString>(
                Store::Access::Read, [name](Store &store) { return setting(store, name); }, &bench.window,
                [&value](const QString &found) { value = found; });
            return value;
        };
        bench.control<QAction>(u"btRelatorios"_s)->trigger();
        auto *host = bench.control<QLineEdit>(u"txtServico"_s);
        QVERIFY(host);
        host->setText(u"javascript:alert(1)"_s);
        QTest::keyClick(host, Qt::Key_Return);
        QVERIFY(host->isVisible()); // what is not accepted is told, and nothing is kept
        QVERIFY(stored(u"report-host"_s).isEmpty());
        host->setText(u"https://r.example/"_s);
        QTest::keyClick(host, Qt::Key_Return);
        QTRY_VERIFY(!bench.control<QLineEdit>(u"txtServico"_s));
        QCOMPARE(stored(u"report-host"_s), u"https://r.example/"_s);
    }

    /// A wheel that passes, and keys after the focus fell to them, choose nothing.
    void choosersKeepTheirChoice()
    {
        Bench bench;
        for (const Module &module : modules())
            bench.window.openScreen(module.name);
        const auto values = [&bench] {
            QStringList all;
            for (const char *property : {"currentText", "value"})
                for (const QWidget *widget : bench.window.findChildren<QWidget *>())
                    if (const QVariant value = widget->property(property); value.isValid())
                        all.append(widget->objectName() + u' ' + value.toString());
            return all;
        };
        const QStringList before = values();
        int choosers = 0;
        for (auto *widget : bench.window.findChildren<QWidget *>()) {
            if (!qobject_cast<QComboBox *>(widget) && !qobject_cast<QAbstractSpinBox *>(widget) &&
                !qobject_cast<QSlider *>(widget))
                continue;
            ++choosers;
            QEvent polish(QEvent::Polish);
            QApplication::sendEvent(widget, &polish);
            QVERIFY2(widget->focusPolicy() != Qt::WheelFocus, qPrintable(widget->objectName()));
            widget->clearFocus();
            for (const int turn : {-120, 120, 120}) {
                QWheelEvent wheel({5, 5}, widget->mapToGlobal(QPointF(5, 5)), {}, {0, turn}, Qt::NoButton,
                                  Qt::NoModifier, Qt::NoScrollPhase, false);
                QApplication::sendEvent(widget, &wheel);
            }
        }
        QVERIFY(choosers > 10);
        QCOMPARE(values(), before);
    }

    void focusThatFellChoosesNothing()
    {
        Bench bench;
        auto *port = bench.control<QComboBox>(u"cbPortas"_s);
        const auto *speed = bench.control<QComboBox>(u"ComboBox"_s);
        port->setFocus();
        QCOMPARE(QApplication::focusWidget(), port);
        port->setEnabled(false);
        bench.control<QToolButton>(u"imgAtualizar"_s)->setEnabled(false);
        const QString chosen = speed->currentText();
        for (const auto key : {Qt::Key_Down, Qt::Key_2, Qt::Key_Up})
            QTest::keyClick(bench.window.windowHandle(), key);
        QCOMPARE(speed->currentText(), chosen);
        QVERIFY(!qobject_cast<QComboBox *>(QApplication::focusWidget()));
    }

    void comesBackOnTheScreen()
    {
        Bench bench;
        QWidget large;
        large.setGeometry(4000, 3000, 5000, 4000);
        bench.window.restore({large.saveGeometry(), {}, {}, {}});
        const QRect room = bench.window.screen()->availableGeometry();
        const QSize least = bench.window.minimumSizeHint();
        QCOMPARE(bench.window.pos(), room.topLeft());
        QCOMPARE(bench.window.size(), room.size().expandedTo(least));
        bench.window.setGeometry(-5000, -5000, 5000, 300);
        bench.window.restore({bench.window.saveGeometry(), {}, {}, {}});
        QCOMPARE(bench.window.x(), room.x());
        QVERIFY(room.contains(bench.window.pos()));
        QCOMPARE(bench.window.width(), std::max(room.width(), least.width()));
    }

    void themeIsRemembered()
    {
        Bench bench;
        QSignalSpy chosen(&bench.window, &Inicial::themeChosen);
        bench.control<QAction>(u"Tema(2)"_s)->trigger();
        QCOMPARE(chosen.size(), 1);
        const QString file = bench.home.filePath(u"window.ini"_s);
        QVERIFY(keepWindowState(bench.window.state(), file));
        QCOMPARE(windowStateFrom(file), bench.window.state());
        QCOMPARE(windowStateFrom(file).theme, ThemeChoice::Dark);
        bench.window.restore(windowStateFrom(bench.home.filePath(u"none"_s)));
        QCOMPARE(bench.window.state().theme, ThemeChoice::Desktop);
        applyTheme(ThemeChoice::Light);
    }

    void tabsCloseByKey()
    {
        Bench bench;
        bench.window.openScreen(u"BuckLdo"_s);
        bench.window.openScreen(u"PMU"_s);
        QTest::keyClick(&bench.window, Qt::Key_W, Qt::ControlModifier);
        QCOMPARE(bench.front(), u"BuckLdo"_s);
        QTest::keyClick(&bench.window, Qt::Key_W, Qt::ControlModifier);
        QTest::keyClick(&bench.window, Qt::Key_W, Qt::ControlModifier); // and with nothing left to close
        QCOMPARE(bench.control<QTabWidget>(u"Abas"_s)->count(), 0);
    }
};

QTEST_MAIN(TestWindow)
#include "tst_window.moc"
