#include "chipreading.h"
#include "columns.h"
#include "displaysscreen.h"
#include "models.h"
#include "phonebench.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString text(const Panel &panel, const QString &control)
{
    return panel.fields.value(control).text.value_or(u"unset"_s);
}

} // namespace

class TestDisplay : public QObject
{
    Q_OBJECT

private slots:
    void commands_data()
    {
        columns<QString, QByteArray>({"button", "command"});
        const auto colour = [](const char *button, const char *options) {
            QTest::newRow(button) << QString::fromLatin1(button) << QByteArray("displaytext -t ab -b ") + options;
        };
        colour("Cor_Amarelo", "yellow -c white -w");
        colour("Cor_Azul", "blue -c white -w");
        colour("Cor_Branco", "white -c black -w");
        colour("Cor_Cinza", "gray -c white -w");
        colour("Cor_Cyan", "cyan -c black -w");
        colour("Cor_Preto", "black -c white -w");
        colour("Cor_Rosa", "magenta  -c white -w");
        colour("Cor_Verde", "green -c white -w");
        colour("Cor_Vermelho", "red -c white -w");
        const auto light = [](const char *button, const char *command) {
            QTest::newRow(button) << QString::fromLatin1(button) << QByteArray(command);
        };
        light("bl:0", "bl -n");
        light("bl:1", "bl --off");
        light("bl:2", "bl -r");
        light("bl:3", "bl -l");
        light("bl:4", "bl -m");
        light("bl:5", "bl -h");
        light("bl:6", "");
        light("bl:7", "");
        light("bl:8", "display --getmode");
        light("level:1", "bl -p 1");
        light("level:3", "bl -p 3");
    }

    void commands()
    {
        QFETCH(const QString, button);
        QFETCH(const QByteArray, command);
        PhoneBench bench(u"IP 7"_s);
        bench.connectPhone();
        bench.port.commands.clear();
        DisplaysScreen display(*bench.session);
        display.txt_Texto_Cores_Change(u"a b "_s); // the phone takes one word
        display.press(button);
        bench.gatherReply();
        QCOMPARE(bench.port.commands, command.isEmpty() ? QList<QByteArray>() : QList<QByteArray>{command});
        QCOMPARE(display.reading().verdict, Verdict::None);
        QCOMPARE(DisplaysScreen::isButton(button), !command.isEmpty());
    }

    void emptyTextIsFilled()
    {
        PhoneBench bench(u"IP X"_s);
        bench.connectPhone();
        DisplaysScreen display(*bench.session);
        QSignalSpy corrected(&display, &DisplaysScreen::textCorrected);
        display.Cor_Click(u"Cor_Azul"_s);
        QCOMPARE(bench.port.commands.last(), QByteArray("displaytext -t Tavimo_Prelt -b blue -c white -w"));
        QCOMPARE(corrected.value(0).value(0).toString(), u"Tavimo_Prelt"_s);
    }

    void blanksAndSecondLinesAreNotSent()
    {
        for (const auto &[typed, why] :
             {std::pair(u"  "_s, u"DISPLAY_TEXT_BLANK"_s), std::pair(u"a\rShutdown"_s, u"COMMAND_NOT_ONE_LINE"_s)}) {
            PhoneBench bench(u"IP 8"_s);
            bench.connectPhone();
            DisplaysScreen display(*bench.session);
            QSignalSpy told(bench.session.get(), &Session::refused);
            QSignalSpy ended(&display, &Screen::readingEnded);
            display.txt_Texto_Cores_Change(typed);
            display.Cor_Click(u"Cor_Azul"_s);
            QCOMPARE(bench.port.commands.size(), 1); // the model's
            QCOMPARE(told.size(), 1);
            QCOMPARE(told.first().first().value<Notice>().key, why);
            QCOMPARE(ended.size(), 1);
        }
    }

    void coloursAreNotForTheOldest()
    {
        for (const QString &model : modelNames()) {
            PhoneBench bench(model);
            bench.connectPhone();
            bench.port.commands.clear();
            DisplaysScreen display(*bench.session);
            const bool isRefused = model.startsWith("IP 6"_L1);
            display.Cor_Click(u"Cor_Verde"_s);
            bench.gatherReply();
            QCOMPARE(bench.boxes.keys, isRefused ? QStringList{u"MSG_NAO_PARA_IP6"_s} : QStringList());
            QCOMPARE(bench.port.commands.size(), isRefused ? 0 : 1);
            display.btBl_Click(1);
            QCOMPARE(bench.port.commands.last(), QByteArray("bl --off"));
        }
    }

    void modeOfTheModels()
    {
        const auto mode = [](const QString &description) {
            PhoneBench bench(description);
            bench.connectPhone();
            DisplaysScreen display(*bench.session);
            display.btBl_Click(kModeButton);
            bench.gatherReply();
            return text(display.panel(), u"lbResolucao"_s);
        };
        QCOMPARE(mode(u"IP 7"_s), u"750x1334"_s);
        QCOMPARE(mode(u"IP 8 Plus"_s), u"1080x1920"_s);
        QCOMPARE(mode(u"IP X,display=off"_s), u"Sem Medição"_s);
    }

    void lastLevelWins()
    {
        PhoneBench bench(u"IP 8"_s);
        bench.connectPhone();
        bench.port.commands.clear();
        DisplaysScreen display(*bench.session);
        for (const int level : {1, 2, 3})
            display.Slider1_Change(level);
        bench.gatherReply();
        bench.gatherReply();
        QCOMPARE(bench.port.commands, QList<QByteArray>({"bl -p 1", "bl -p 3"}));
    }

    void nothingIsSentWithoutALink()
    {
        PhoneBench bench(u"IP 7"_s);
        DisplaysScreen display(*bench.session);
        display.press(u"Cor_Azul"_s);
        QCOMPARE(text(display.panel(), u"lbAguarde"_s), u"Desconectado"_s);
        QSignalSpy requested(&display, &Screen::screenRequested);
        bench.session->chooseModel(u"IP X"_s);
        display.btBl_Click(kDisplayChipButton);
        bench.session->chooseModel(u"IP 8"_s);
        display.btBl_Click(kDisplayChipButton);
        QCOMPARE(requested.value(0).value(0).toString(), u"Acorn"_s);
        QCOMPARE(requested.value(1).value(0).toString(), u"Chestnut"_s);
        QCOMPARE(text(display.panel(), u"btBl(7)"_s), u"Tensões Chestnut"_s);
    }
};

QTEST_GUILESS_MAIN(TestDisplay)
#include "tst_display.moc"
