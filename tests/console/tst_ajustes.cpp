#include "ajustesscreen.h"
#include "data/otherprogram.h"
#include "masks.h"
#include "shell/sessionbench.h"

#include <QTest>

using Side = AjustesScreen::Side;
using namespace std::chrono_literals;

namespace {

struct AjustesBench : SessionBench
{
    AjustesBench()
    {
        Result<Store> open = Store::open(path, Store::Access::Write, 0s);
        for (const Recording &recording :
             {Recording{u"IP 7"_s, u"Help"_s, u"a\r\nSECRET\r\n"_s}, Recording{u"IP 7 Plus"_s, u"help"_s, u"b\r\n"_s},
              Recording{u"IP X"_s, u"help"_s, u"c"_s}})
            QVERIFY(bool(saveRecording(*open, recording)));
        QVERIFY(bool(addMask(*open, u"'qzx'SEC'wvj'RET"_s)));
        screen.open();
    }

    QString stored(const QString &model)
    {
        const Result<Store> open = Store::open(path, Store::Access::Read, 0s);
        const auto row = recordingFor(*open, model, u"help"_s);
        return row && *row ? (*row)->recording.dados : QString();
    }

    QString told(const QString &field) { return screen.panel().fields.value(field).text.value_or(QString()); }

    AjustesScreen screen{session};
};

} // namespace

class TestAjustes : public QObject
{
    Q_OBJECT

private slots:
    void showsAModelAndItsPlus()
    {
        AjustesBench bench;
        QCOMPARE(bench.screen.recording(Side::Base), u"a\r\nSECRET\r\n"_s);
        QCOMPARE(bench.screen.recording(Side::Plus), u"b\r\n"_s);
        QCOMPARE(bench.told(u"Label2"_s), u"IP 7 Plus"_s);
        QVERIFY(bench.screen.commands().contains(u"syscfg list"_s));
        bench.screen.select(u"IP X"_s, u"help"_s); // has no Plus
        QCOMPARE(bench.screen.recording(Side::Base), u"c"_s);
        QVERIFY(!bench.screen.row(Side::Plus));
        QCOMPARE(bench.told(u"Label2"_s), u"IP X Plus: Dados não localizados"_s);
    }

    void bothSidesAreSaved()
    {
        AjustesBench bench;
        bench.screen.btAtualizar_Click({u"a\nSECRET\nmore"_s, std::nullopt});
        QCOMPARE(bench.stored(u"IP 7"_s), u"a\r\nSECRET\r\nmore"_s);
        QCOMPARE(bench.stored(u"IP 7 Plus"_s), u"b\r\n"_s);
        QCOMPARE(bench.told(u"lbSalvo"_s), u"Salvo "_s);

        bench.boxes.answer = Answer::Yes;
        bench.screen.select(u"IP X"_s, u"help"_s, AjustesScreen::Edits{std::nullopt, u"B\n"_s});
        QCOMPARE(bench.log, QStringList{u"ask Salvar"_s});
        QCOMPARE(bench.stored(u"IP 7 Plus"_s), u"B\r\n"_s);
        QCOMPARE(bench.told(u"lbSalvo"_s), QString());
        bench.screen.btAtualizar_Click({std::nullopt, u"typed beside nothing"_s});
        QCOMPARE(bench.stored(u"IP X Plus"_s), QString());
    }

    void masksAreTakenAsTheyAreStored()
    {
        AjustesBench bench;
        bench.screen.Command1_Click({});
        QCOMPARE(bench.stored(u"IP 7"_s), u"a\r\nSECRET\r\n"_s); // the stored text still has its markers
        bench.boxes.typed = u"secret"_s;
        bench.screen.Command2_Click();
        bench.screen.Command1_Click({std::nullopt, u"b\n+"_s});
        QCOMPARE(bench.stored(u"IP 7"_s), u"a\r\nxxxxx\u00AE\r\n"_s);
        QCOMPARE(bench.stored(u"IP 7 Plus"_s), u"b\r\n+"_s); // what was typed at the other side goes along
    }

    void lockedStoreKeepsTheRows()
    {
        AjustesBench bench;
        {
            OtherProgram other(bench.path);
            other.run(u"BEGIN EXCLUSIVE"_s);
            bench.screen.btAtualizar_Click({u"new"_s, u"new"_s});
            for (int tick = 0; tick < 50; ++tick)
                bench.store.TimerStore_Timer();
        }
        QCOMPARE(bench.log, QStringList{u"STORE_LOCKED"_s});
        QCOMPARE(bench.stored(u"IP 7"_s), u"a\r\nSECRET\r\n"_s);
        QCOMPARE(bench.told(u"lbSalvo"_s), QString());
    }
};

QTEST_GUILESS_MAIN(TestAjustes)
#include "tst_ajustes.moc"
