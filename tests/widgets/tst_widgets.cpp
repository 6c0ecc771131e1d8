#include "columns.h"
#include "deviationbar.h"
#include "driftdrawing.h"
#include "findingslist.h"
#include "gridtext.h"
#include "icons.h"
#include "painter.h"
#include "panelgrid.h"
#include "panelmodel.h"
#include "theme.h"
#include "verdictbadge.h"

#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <cmath>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(std::optional<Rule>)

static constexpr GridColumn kColumns[] = {
    {u"Malha", u"Malha", ColumnKind::Name},
    {u"Leitura", u"Leitura", ColumnKind::Number},
    {u"PORC", u"Desvio", ColumnKind::Deviation},
    {u"", u"Veredito", ColumnKind::Verdict},
};

static Row rail(const QString &net, const QString &reading, double deviation, Verdict verdict)
{
    return {.cells = {{u"Malha"_s, net}, {u"Leitura"_s, reading}, {u"PORC"_s, QString::number(deviation) + u" %"_s}},
            .deviation = deviation,
            .rule = Rule::tenPercent(),
            .verdict = verdict,
            .source = u"net name"_s};
}

static QList<Row> threeRails()
{
    return {rail(u"PP1V8"_s, u"1.80 V"_s, 0, Verdict::Pass), rail(u"PP3V0"_s, u"2.99 V"_s, -0.2, Verdict::Pass),
            rail(u"PP5V0"_s, u"6.00 V"_s, 20, Verdict::Fail)};
}

static Panel panelOf(const QMap<QString, Field> &fields)
{
    Panel panel;
    panel.fields = fields;
    return panel;
}

static Judgement judgement(const QString &what, Verdict verdict, const QString &screen = u"BuckLdo"_s)
{
    Judgement judgement;
    judgement.what = what;
    judgement.verdict = verdict;
    judgement.screen = screen;
    return judgement;
}

/// A form with one control of each sort that readings fill.
class SampleForm : public QWidget
{
public:
    SampleForm()
    {
        auto *const layout = new QVBoxLayout(this);
        const std::pair<QWidget *, QString> controls[] = {
            {&label, u"Malha(1)"_s}, {&edit, u"txtComandos"_s}, {&button, u"btGravar"_s},
            {&combo, u"Combo"_s},    {&bar, u"Barra"_s},
        };
        for (const auto &[control, name] : controls) {
            control->setObjectName(name);
            layout->addWidget(control);
        }
    }

    QLabel label;
    QLineEdit edit;
    QPushButton button;
    QComboBox combo;
    QProgressBar bar;
    Painter painter{*this};
};

class TestWidgets : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { applyTheme(ThemeChoice::Light); }

    void paintsEverySort()
    {
        SampleForm form;
        const Panel panel = panelOf({{u"Malha(1)"_s, {.text = u"2.998 V"_s, .back = Colour::Fault, .tip = u"tip"_s}},
                                     {u"btGravar"_s, {.visible = false, .enabled = false}},
                                     {u"Combo"_s, {.items = QStringList{u"a"_s, u"b"_s}}},
                                     {u"Barra"_s, {.value = 40}}});
        QCOMPARE(form.painter.paint(panel), QStringList());
        QCOMPARE(form.label.text(), u"2.998 V"_s);
        QCOMPARE(form.label.toolTip(), u"tip"_s);
        QCOMPARE(form.label.palette().color(QPalette::Window), currentTheme().faultField);
        QCOMPARE(form.label.palette().color(QPalette::WindowText), currentTheme().onField);
        QVERIFY(form.button.isHidden());
        QVERIFY(!form.button.isEnabled());
        QCOMPARE(form.combo.count(), 2);
        QCOMPARE(form.bar.value(), 40);
    }

    void leavesTypingAlone()
    {
        SampleForm form;
        const Panel panel =
            panelOf({{u"txtComandos"_s, {.text = u"help"_s}}, {u"Combo"_s, {.items = QStringList{u"a"_s, u"b"_s}}}});
        form.painter.paint(panel);
        form.edit.setText(u"typed since"_s);
        form.combo.setCurrentIndex(1);
        form.painter.paint(panel);
        QCOMPARE(form.edit.text(), u"typed since"_s);
        QCOMPARE(form.combo.currentIndex(), 1);
        form.painter.paint(panelOf({{u"txtComandos"_s, {.enabled = false}}}));
        QCOMPARE(form.edit.text(), u"typed since"_s);
    }

    void keepsColourNextToText()
    {
        SampleForm form;
        form.painter.paint(panelOf({{u"Malha(1)"_s, {.text = u"1"_s, .back = Colour::Pass}}}));
        form.painter.paint(panelOf({{u"Malha(1)"_s, {.text = u"2"_s}}}));
        QCOMPARE(form.label.palette().color(QPalette::Window), currentTheme().passField);
        form.painter.paint(panelOf({{u"Malha(1)"_s, {.back = Colour::Neutral}}}));
        QCOMPARE(form.label.palette().color(QPalette::Window), currentTheme().surface);
        QCOMPARE(form.label.palette().color(QPalette::WindowText), currentTheme().text);
    }

    void coloursShowOnEdits()
    {
        SampleForm form;
        form.painter.paint(panelOf({{u"txtComandos"_s, {.back = Colour::Fault}}}));
        const QImage shown = form.grab().toImage();
        QCOMPARE(shown.pixelColor(form.edit.geometry().center()), currentTheme().faultField);
    }

    void namesWithoutControlAreTold()
    {
        SampleForm form;
        const QStringList unknown = form.painter.paint(panelOf({{u"Malha(9)"_s, {.text = u"1"_s}}}));
        QCOMPARE(unknown, QStringList{u"Malha(9)"_s});
    }

    void onlyTheChangedRowIsTold()
    {
        PanelModel model(kColumns);
        model.show(threeRails());
        const QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        const QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
        QList<Row> rows = threeRails();
        model.show(rows);
        QCOMPARE(changed.size() + reset.size(), 0);
        rows[1] = rail(u"PP3V0"_s, u"3.01 V"_s, 0.3, Verdict::Pass);
        model.show(rows);
        QCOMPARE(reset.size(), 0);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.at(0).at(0).toModelIndex(), model.index(1, 0));
        QCOMPARE(changed.at(0).at(1).toModelIndex(), model.index(1, 3));
    }

    void selectionFollowsASort()
    {
        PanelModel model(kColumns);
        PanelGrid grid(model);
        model.show(threeRails());
        grid.selectRow(2);
        QList<Row> sorted = threeRails();
        sorted.move(2, 0);
        model.show(sorted);
        QCOMPARE(grid.selectionModel()->selectedRows().size(), 1);
        QCOMPARE(grid.selectionModel()->selectedRows().at(0).row(), 0);
        QCOMPARE(model.index(0, 0).data().toString(), u"PP5V0"_s);
    }

    void otherRowsReset_data()
    {
        QTest::addColumn<QList<Row>>("rows");
        QTest::newRow("a row fewer") << threeRails().mid(1);
        QTest::newRow("another rail in its place")
            << QList<Row>{threeRails().at(0), threeRails().at(1), rail(u"PPVDD"_s, u"1 V"_s, 0, Verdict::Pass)};
        QTest::newRow("a rail twice") << QList<Row>{threeRails().at(0), threeRails().at(1), threeRails().at(1)};
    }

    void otherRowsReset()
    {
        QFETCH(QList<Row>, rows);
        PanelModel model(kColumns);
        model.show(threeRails());
        const QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
        model.show(rows);
        QCOMPARE(reset.size(), 1);
        QCOMPARE(model.rowCount(), rows.size());
    }

    void copiesSelectionOrAll()
    {
        PanelModel model(kColumns);
        PanelGrid grid(model);
        model.show(threeRails());
        QCOMPARE(grid.copyText().count(u'\n'), 3);
        grid.selectRow(1);
        QCOMPARE(grid.copyText(), u"PP3V0\t2.99 V\t-0.2 %\tPass"_s);
        grid.setLanguage(Language::Spanish);
        QCOMPARE(grid.copyText(), u"PP3V0\t2.99 V\t-0.2 %\tAprobado"_s);
    }

    void csvCells_data()
    {
        columns<QString, QString>({"text", "cell"});
        QTest::newRow("formula") << u"=1+1"_s << u"'=1+1"_s;
        QTest::newRow("formula that starts like a number") << u"-2+cmd|' /C calc'!A0"_s << u"'-2+cmd|' /C calc'!A0"_s;
        QTest::newRow("at sign") << u"@SUM(A1)"_s << u"'@SUM(A1)"_s;
        QTest::newRow("wide sign") << u"\uff1dA1"_s << u"'\uff1dA1"_s;
        QTest::newRow("tab hides a formula") << u"\t=1"_s << u"\"'\t=1\""_s;
        QTest::newRow("formula behind a semicolon") << u"bad;=2+3"_s << u"\"bad;=2+3\""_s;
        QTest::newRow("number with a line behind it") << u"-1\n=1"_s << u"\"'-1\n=1\""_s;
        QTest::newRow("negative per cent stays") << u"-0.2 %"_s << u"-0.2 %"_s;
        QTest::newRow("comma") << u"96,66 mA"_s << u"\"96,66 mA\""_s;
        QTest::newRow("empty") << QString() << QString();
    }

    void csvCells()
    {
        QFETCH(QString, text);
        QTEST(QString::fromUtf8(csvFile({{u"x"_s, text}})).remove(QChar::ByteOrderMark).chopped(2).sliced(2), "cell");
    }

    void csvHasMarkAndLineEnds()
    {
        QCOMPARE(csvFile({{u"Tensão"_s, u"%"_s}, {u"1"_s, QString()}}),
                 QByteArray("\xEF\xBB\xBFTens\xC3\xA3o,%\r\n1,\r\n"));
    }

    void bars_data()
    {
        columns<std::optional<Rule>, double, QRect, bool>({"rule", "deviation", "bar", "clipped"});
        const std::optional<Rule> ten = Rule::tenPercent();
        const std::optional<Rule> ceiling = Rule::ceiling();
        QTest::newRow("nothing at zero") << ten << 0.0 << QRect() << false;
        QTest::newRow("tiny is still seen") << ten << 0.01 << QRect(151, 20, 2, 8) << false;
        QTest::newRow("to the limit") << ten << 10.0 << QRect(151, 20, 25, 8) << false;
        QTest::newRow("far above stays inside") << ten << 1000.0 << QRect(151, 20, 50, 8) << true;
        QTest::newRow("far below stays inside") << ten << -1000.0 << QRect(100, 20, 50, 8) << true;
        QTest::newRow("well under a ceiling") << ceiling << -50.0 << QRect(125, 20, 25, 8) << false;
        QTest::newRow("no rule, own scale") << std::optional<Rule>() << 10.0 << QRect(151, 20, 25, 8) << false;
    }

    void bars()
    {
        QFETCH(std::optional<Rule>, rule);
        QFETCH(double, deviation);
        const DeviationBar drawn = deviationBar({100, 20, 101, 8}, deviation, rule);
        QCOMPARE(drawn.zero, 150);
        QTEST(drawn.bar, "bar");
        QTEST(drawn.clipped, "clipped");
    }

    void drawingOfTheDrift()
    {
        const QRect area(100, 20, 48, 14);
        const auto points = driftPoints(area, {-30.0, {}, 0.5});
        QVERIFY(!points[1]);
        QCOMPARE(points[3]->y(), 27.0);           // the live one, in the middle
        QVERIFY(points[0]->y() < 23);             // it has fallen: what was recorded stands high
        QVERIFY(points[2]->y() > points[3]->y()); // it has risen a little
        QVERIFY(points[2]->y() < 28);             // on the same scale
        QVERIFY(points[0]->x() < points[2]->x() && points[2]->x() < points[3]->x());
        for (const double percent : {-1e6, 1e6, 0.1}) // noise is not blown up, and nothing leaves the drawing
            for (const auto &point : driftPoints(area, {percent, percent, percent}))
                QVERIFY(QRectF(area).contains(*point) && (percent > 0.1 || std::abs(point->y() - 27) < 6));
    }

    void driftIsToldInNumbers()
    {
        Row row{{{u"G1"_s, u"1.800 V"_s}, {u"G3"_s, u"*"_s}}};
        row.drift = {-16.66, {}, {}};
        static constexpr std::array kColumn = {GridColumn{u"Drift", u"Deriva", ColumnKind::Drift}};
        PanelModel model(kColumn);
        model.show({row, Row()});
        QCOMPARE(model.index(0, 0).data().toString(), u"-16.7 %"_s);
        QCOMPARE(model.index(0, 0).data(Qt::ToolTipRole).toString(),
                 u"Recording 1: 1.800 V   -16.7 %\nRecording 3: *"_s);
        QCOMPARE(model.index(1, 0).data().toString(), QString());
    }

    void typedTextSurvivesOtherEntries()
    {
        QWidget form;
        QComboBox combo(&form);
        combo.setObjectName(u"Combo1"_s);
        combo.setEditable(true);
        combo.addItems({u"0"_s, u"1"_s});
        combo.setEditText(u"7"_s);
        Painter painter(form);
        painter.paint(panelOf({{u"Combo1"_s, {.items = QStringList{u"0"_s, u"1"_s, u"2"_s}}}}));
        QCOMPARE(combo.count(), 3);
        QCOMPARE(combo.currentText(), u"7"_s);
    }

    void toleranceMarks()
    {
        const DeviationBar both = deviationBar({100, 20, 101, 8}, 1, Rule::within(5));
        QCOMPARE(both.lowMark, 125);
        QCOMPARE(both.highMark, 175);
        const DeviationBar one = deviationBar({100, 20, 101, 8}, 1, Rule::ceiling());
        QVERIFY(!one.lowMark);
        QCOMPARE(one.highMark, 150);
        const DeviationBar none = deviationBar({100, 20, 101, 8}, 1, {});
        QVERIFY(!none.lowMark && !none.highMark);
    }

    void findingsNewestFirst()
    {
        FindingsModel model;
        model.add(
            {judgement(u"A"_s, Verdict::Fail), judgement(u"B"_s, Verdict::Pass), judgement(u"C"_s, Verdict::Fail)});
        model.add({judgement(u"A"_s, Verdict::Fail, u"Tristar"_s)});
        model.add({judgement(u"C"_s, Verdict::Fail), judgement(u"A"_s, Verdict::Incomplete)});
        QStringList order;
        for (int place = 0; place < model.rowCount(); ++place)
            order.append(model.finding(place).screen + u' ' + model.finding(place).what);
        QCOMPARE(order, QStringList({u"BuckLdo C"_s, u"Tristar A"_s, u"BuckLdo A"_s}));
        QCOMPARE(model.openCount(), 3);
    }

    void aRepairSettlesItsFinding()
    {
        FindingsModel model;
        model.add({judgement(u"A"_s, Verdict::Fail), judgement(u"B"_s, Verdict::Fail)});
        const QSignalSpy counted(&model, &FindingsModel::openCountChanged);
        model.add({judgement(u"B"_s, Verdict::Pass)});
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(model.openCount(), 1);
        QCOMPARE(counted.size(), 1);
        model.add({judgement(u"B"_s, Verdict::Fail)});
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(model.finding(0).what, u"B"_s);
        QCOMPARE(model.openCount(), 2);
    }

    void aFindingIsChosenByClickAndKey()
    {
        FindingsModel model;
        FindingsList list(model);
        list.resize(300, 200);
        list.show();
        model.add({judgement(u"A"_s, Verdict::Fail), judgement(u"B"_s, Verdict::Fail)});
        const QSignalSpy chosen(&list, &FindingsList::findingChosen);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(model.index(1, 0)).center());
        QTest::keyClick(&list, Qt::Key_Up);
        QTest::keyClick(&list, Qt::Key_Return);
        QCOMPARE(chosen, QList<QVariantList>({{u"BuckLdo"_s, u"B"_s}, {u"BuckLdo"_s, u"A"_s}}));
    }

    void everyIconDrawsInTheInkOfTheThemeThatIsShown()
    {
        const auto dots = [](const QIcon &icon, const QColor &wanted) {
            const QImage image = icon.pixmap(24).toImage();
            int found = 0;
            for (int pixel = 0; pixel < 24 * 24; ++pixel) {
                const QColor colour = image.pixelColor(pixel % 24, pixel / 24);
                const int apart = std::abs(colour.red() - wanted.red()) + std::abs(colour.green() - wanted.green()) +
                                  std::abs(colour.blue() - wanted.blue());
                found += colour.alpha() > 100 && apart < 12 ? 1 : 0;
            }
            return found;
        };
        QVERIFY(lineIconNames().size() > 30);
        for (const QString &name : lineIconNames()) {
            const QIcon icon = lineIcon(name, &Theme::faultInk);
            for (const ThemeChoice choice : {ThemeChoice::Dark, ThemeChoice::Light}) {
                applyTheme(choice);
                QVERIFY2(dots(icon, currentTheme().faultInk) > 10, qPrintable(name));
            }
        }
        QVERIFY(lineIcon(u"nosuch").isNull());
        QVERIFY(!programIcon().isNull());
    }

    void textOnColouredFieldsIsReadable()
    {
        const auto luminance = [](const QColor &colour) {
            const auto linear = [](double part) {
                return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
            };
            return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
        };
        for (const ThemeChoice choice : {ThemeChoice::Dark, ThemeChoice::Light}) {
            applyTheme(choice);
            applyStyleSheet(*qApp);
            const Theme &theme = currentTheme();
            QCOMPARE(theme.dark, choice == ThemeChoice::Dark);
            const std::pair<QColor, QColor> pairs[] = {
                {theme.text, theme.surface},      {theme.dim, theme.window},         {theme.accent, theme.surface},
                {theme.onAccent, theme.accent},   {theme.onField, theme.faultField}, {theme.onField, theme.warnField},
                {theme.onField, theme.passField}, {theme.faultInk, theme.surface},   {theme.warnInk, theme.surface},
                {theme.passInk, theme.surface},   {theme.passInk, theme.stripe}};
            for (const auto &[ink, ground] : pairs) {
                const auto [low, high] = std::minmax({luminance(ink), luminance(ground)});
                QVERIFY2((high + 0.05) / (low + 0.05) >= 4.5, qPrintable(ink.name() + u" on "_s + ground.name()));
            }
        }
    }
};

QTEST_MAIN(TestWidgets)
#include "tst_widgets.moc"
