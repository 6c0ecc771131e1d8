#include "columns.h"
#include "journal.h"
#include "linelist.h"
#include "moduletable.h"
#include "panelmodel.h"
#include "plaintext.h"
#include "queries.h"
#include "screenform.h"
#include "windowbench.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QTextBlock>
#include <QTextDocument>

namespace {

/// What a phone, a store or a file may hold instead of a name.
QString hostile()
{
    return u"A<h1>head</h1><img src=\"file:///dev/zero\"><b>bold</b> &amp; &lt;p&gt;"_s + QString(400, u'W');
}

void fillWithHostile(Store &store)
{
    const auto change = [&store](const char *statement) {
        QVERIFY2(store.run({"", statement}, {{u":text"_s, hostile()}}), statement);
    };
    change("Update Master set Malha = :text || Orig, Ci = :text");
    change("Update RailSources set Source = :text, Confidence = :text");
    change("Update Rf set Malha = :text, Componente = :text, Valor = :text");
    change("Update Comandos set Info = :text, Info2 = :text, Info3 = :text");
    change("Update DeviceSources set Source = :text");
    change("Update i set i = i || :text");
    change("Insert into Comandos (Comando, Info, Info2, Info3) values (:text, :text, :text, :text)");
    change("Insert into Dados (Aparelho, Comando, Dados, Info, Info2, Info3) "
           "values ('IP 7', 'pmuadc --read all', :text, :text, :text, :text)");
    JournalFinding finding;
    for (QString JournalFinding::*part : {&JournalFinding::output, &JournalFinding::what, &JournalFinding::screens,
                                          &JournalFinding::reading, &JournalFinding::source, &JournalFinding::line})
        finding.*part = hostile();
    JournalSurvey survey{.id = u"1"_s, .started = hostile()};
    survey.model = survey.serial = survey.note = hostile();
    QVERIFY(keepInJournal(store, {survey, {{.command = hostile(), .reply = hostile()}}, {finding}}));
}

/// Whether a tooltip shows no more than letters.
bool isPlain(const QString &tip)
{
    if (!Qt::mightBeRichText(tip))
        return true;
    QTextDocument shown;
    shown.setHtml(tip);
    for (QTextBlock block = shown.begin(); block.isValid(); block = block.next()) {
        for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
            if (piece.fragment().charFormat().isImageFormat() || block.blockFormat().headingLevel() > 0)
                return false;
        }
    }
    return tip.contains("h1&gt;"_L1) ? shown.toPlainText().contains("<h1>"_L1) : !tip.contains("<h1>"_L1);
}

QStringList richCells(const QAbstractItemModel &model, const QString &name)
{
    QStringList rich;
    for (int row = 0; row < model.rowCount(); ++row) {
        for (int column = 0; column < model.columnCount(); ++column) {
            if (!isPlain(model.index(row, column).data(Qt::ToolTipRole).toString()))
                rich.append(u"%1: cell %2, %3"_s.arg(name).arg(row).arg(column));
        }
    }
    return rich;
}

/// What would show a text as markup.
QStringList richParts(const QWidget &window)
{
    QStringList rich;
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        const QString name = QLatin1StringView(widget->metaObject()->className()) + u' ' + widget->objectName();
        const auto *label = qobject_cast<const QLabel *>(widget);
        if (label && label->textFormat() != Qt::PlainText && !label->text().isEmpty())
            rich.append(name);
        if (!isPlain(widget->toolTip()))
            rich.append(name + u": tooltip"_s);
        const auto *view = qobject_cast<const QAbstractItemView *>(widget);
        if (view && view->model() && !qobject_cast<const QHeaderView *>(view))
            rich += richCells(*view->model(), name);
    }
    return rich;
}

/// Every named control of a form gets the text by every way that a reading has; buttons show captions only.
Panel hostilePanel(const QWidget &form)
{
    Panel panel;
    for (const QWidget *widget : form.findChildren<QWidget *>()) {
        if (widget->objectName().isEmpty() || widget->objectName().startsWith("qt_"_L1))
            continue;
        Field &field = panel.fields[widget->objectName()];
        field = {.items = QStringList{hostile()}, .tip = hostile()};
        if (!qobject_cast<const QAbstractButton *>(widget))
            field.text = hostile();
    }
    return panel;
}

void paintHostile(QWidget &form)
{
    Painter(form).paint(hostilePanel(form));
    for (const auto *view : form.findChildren<QAbstractItemView *>()) {
        auto *model = qobject_cast<PanelModel *>(view->model());
        if (!model)
            continue;
        Row row{.cells = {}, .source = hostile(), .confidence = hostile()};
        for (int column = 0; column < model->columnCount(); ++column)
            row.cells.append({model->column(column).key.toString(), hostile()});
        model->show({row});
    }
}

} // namespace

/// Texts from elsewhere are shown as they are written, and widen nothing.
class TestPlain : public QObject
{
    Q_OBJECT

private slots:
    void everyScreenShowsLetters()
    {
        Bench bench(&fillWithHostile);
        bench.connectTo(u"sim:IP 7"_s);
        QTRY_VERIFY(bench.session.isReady() && bench.session.isModelKnown());
        for (const Module &module : modules()) {
            bench.window.openScreen(module.name);
            QTRY_VERIFY_WITH_TIMEOUT(bench.session.isReady(), 20000);
            auto *form = bench.control<ScreenForm>(module.name);
            form->screen().read();
            QTRY_VERIFY_WITH_TIMEOUT(bench.session.isReady() || bench.box(), 20000);
            while (QMessageBox *box = bench.box()) {
                QCOMPARE(richParts(*box).join(u'\n'), QString());
                delete box;
            }
            QCOMPARE(richParts(*form).join(u'\n'), QString());
            paintHostile(*form);
            QCOMPARE(richParts(*form).join(u'\n'), QString());
            const int least = form->minimumSizeHint().width();
            QVERIFY2(least <= 1040, qPrintable(u"%1 is %2 wide"_s.arg(form->objectName()).arg(least)));
        }
        QCOMPARE(richParts(bench.window).join(u'\n'), QString());
    }

    void theFrameShowsLetters()
    {
        Bench bench;
        const int before = bench.window.minimumSizeHint().width();
        bench.window.showNotice({{u"DOCUMENT_NOT_OPENED"_s, {hostile()}}});
        paintHostile(*bench.control<QWidget>(u"FrameAchados"_s));
        paintHostile(bench.window.connectionBar());
        QCOMPARE(richParts(bench.window).join(u'\n'), QString());
        QVERIFY(bench.window.minimumSizeHint().width() <= std::max(before, 1280));
        const auto *model = bench.control<QLabel>(u"lbModelo"_s);
        QCOMPARE(model->text(), hostile());
        QVERIFY(model->minimumSizeHint().width() > 0 && model->maximumWidth() <= 200);
    }

    void boxesShowLetters()
    {
        Bench bench;
        bench.boxes.message({{{}, {hostile(), hostile()}}});
        QTRY_VERIFY(bench.box());
        QCOMPARE(richParts(*bench.box()).join(u'\n'), QString());
        QVERIFY(bench.box()->sizeHint().width() <= 700);
        bench.box()->reject();
        QTRY_VERIFY(!bench.box());
        bench.boxes.ask({.title = hostile(), .text = hostile()}, [](Answer) {});
        QTRY_VERIFY(bench.box());
        QCOMPARE(richParts(*bench.box()).join(u'\n'), QString());
        bench.box()->reject();
        QTRY_VERIFY(!bench.box());
        bench.boxes.input({.title = hostile(), .text = hostile()}, hostile(), [](const QString &) {});
        const auto *input = bench.window.findChild<QInputDialog *>();
        QVERIFY(input);
        QCOMPARE(richParts(*input).join(u'\n'), QString());
        QVERIFY2(input->sizeHint().width() <= 1280, qPrintable(QString::number(input->sizeHint().width())));
    }

    void toolTips_data()
    {
        columns<QString, QString>({"text", "tip"});
        QTest::newRow("stays as it is") << u"a < b & c"_s << u"a < b & c"_s;
        QTest::newRow("markup") << u"x <b>y</b>\nz"_s << u"<p>x\u00a0&lt;b&gt;y&lt;/b&gt;<br>\nz</p>"_s;
        QTest::newRow("long line") << QString(60, u'a') + u' ' + QString(60, u'b')
                                   << QString(60, u'a') + u'\n' + QString(60, u'b');
        QTest::newRow("long word") << QString(150, u'a') << QString(80, u'a') + u'\n' + QString(70, u'a');
        QTest::newRow("endless") << QString(u"a\n"_s).repeated(9999) << QString(u"a\n"_s).repeated(2000) + u'…';
    }

    void toolTips()
    {
        QFETCH(const QString, text);
        QTEST(plainToolTip(text), "tip");
    }
};

QTEST_MAIN(TestPlain)
#include "tst_plain.moc"
