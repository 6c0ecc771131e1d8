#include "buckldoreading.h"
#include "columns.h"
#include "models.h"
#include "pmureading.h"
#include "pmuscreen.h"
#include "railbench.h"
#include "vcoresreading.h"
#include "vcoresscreen.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Traits = const RailScreenTraits &(*)();

/// What one output reads on one screen, on the newest models and on the others; a kind that a model has no such
/// output in is left out.
struct Reading
{
    const char *what;
    Traits traits;
    int kind;
    QLatin1StringView orig;
    QLatin1StringView newest;
    QLatin1StringView others;
};

constexpr Reading kReadings[] = {
    {"first core's current", buckLdoTraits, 2, "mABuck0"_L1, "*"_L1, "100,2 mA"_L1},
    {"first core's current by its net", vcoresTraits, 0, "mABuck0"_L1, "*"_L1, "100,2 mA"_L1},
    {"graphics", buckLdoTraits, 2, "Buck1"_L1, "*"_L1, "*"_L1},
    {"graphics", vcoresTraits, 0, "Buck1"_L1, "*"_L1, "*"_L1},
    {"graphics' current", buckLdoTraits, 2, "mABuck1"_L1, "*"_L1, "*"_L1},
    {"graphics' current is measured", vcoresTraits, 0, "mABuck1"_L1, "101,2 mA"_L1, "101,2 mA"_L1},
    {"first core's current", pmuTraits, 2, "mABuck0"_L1, "*"_L1, "100,2 mA"_L1},
    {"graphics", pmuTraits, 2, "Buck1"_L1, "*"_L1, "*"_L1},
    {"graphics' current", pmuTraits, 2, "mABuck1"_L1, "*"_L1, "*"_L1},
    {"time-out", pmuTraits, 2, "Buck4"_L1, "**"_L1, "**"_L1},
    {"line missing", pmuTraits, 2, "Buck2"_L1, "No Reading*"_L1, "No Reading*"_L1},
    {"time-out", buckLdoTraits, 2, "Buck4"_L1, "No Reading*"_L1, "No Reading*"_L1},
    {"time-out", vcoresTraits, 0, "Buck4"_L1, "No Reading*"_L1, "No Reading*"_L1},
    {"line missing", buckLdoTraits, 2, "Buck2"_L1, "No Reading*"_L1, "No Reading*"_L1},
    {"line missing", vcoresTraits, 0, "Buck2"_L1, "No Reading*"_L1, "No Reading*"_L1},
};

QList<RailRow> rowsOf(const QString &model, int kind)
{
    static QTemporaryDir folder;
    static const QString path = folder.filePath(u"Config.pmx"_s);
    static const bool made = bool(createStore(path));
    const Result<Store> store = Store::open(path, Store::Access::Read, {});
    return made && store ? *railRows(*store, {model, kind}) : QList<RailRow>();
}

RailReading read(Traits traits, const QList<RailRow> &rows, const QString &model)
{
    const RailInput input{
        .reply = savedReply(u"everyoutput.txt"_s), .model = model, .language = Language::English, .milliDecimals = 1};
    return traits().read(traits(), input, rows);
}

QString readingOf(const RailReading &reading, const QString &orig)
{
    const auto found = std::ranges::find(reading.rows, orig, &RailRow::orig);
    return found == reading.rows.end() ? u"no such output"_s : found->leitura;
}

} // namespace

/// The screens over rails differ in what they leave out and in how they judge; one reply is held before all of them.
class TestRails : public QObject
{
    Q_OBJECT

private slots:
    void differences_data()
    {
        columns<int, QString>({"row", "model"});
        for (std::size_t i = 0; i < std::size(kReadings); ++i)
            for (const QString &model : modelNames())
                QTest::addRow("%s, %s, %s", kReadings[i].traits().name.data(), kReadings[i].what, qPrintable(model))
                    << static_cast<int>(i) << model;
    }

    void differences()
    {
        QFETCH(const int, row);
        QFETCH(const QString, model);
        const Reading &expected = kReadings[row];
        const bool newest = model.startsWith("IP 8"_L1) || model == "IP X"_L1;
        const RailReading reading = read(expected.traits, rowsOf(model, expected.kind), model);
        QCOMPARE(readingOf(reading, expected.orig), newest ? expected.newest : expected.others);
    }

    void cameraRails()
    {
        int cameras = 0;
        for (const QString &model : modelNames()) {
            const QList<RailRow> rows = rowsOf(model, 2);
            for (const RailRow &row : rows) {
                if (row.ci != "CAM"_L1)
                    continue;
                ++cameras;
                QCOMPARE(readingOf(read(buckLdoTraits, rows, model), row.orig), u"*"_s);
                for (const Traits measuring : {vcoresTraits, pmuTraits})
                    QVERIFY(readingOf(read(measuring, rows, model), row.orig)
                                .endsWith(row.orig.startsWith("mA"_L1) ? "A"_L1 : "V"_L1));
            }
        }
        QVERIFY(cameras > 0);
    }

    void firstCoreIsNamedByItsNet()
    {
        QList<RailRow> rows(2);
        rows[0].orig = u"mABuck0"_s;
        rows[1].malha = u"mA BUCK0"_s;
        for (RailRow &row : rows)
            row.refT = u"20"_s;
        const RailReading reading = read(vcoresTraits, rows, u"IP X"_s);
        QCOMPARE(readingOf(reading, u"mABuck0"_s), u"100,2 mA"_s);
        QCOMPARE(readingOf(reading, {}), u"*"_s);
    }

    void typedTolerances_data()
    {
        columns<QString, QString>({"typed", "faults"});
        // Buck3 10 %, Buck3_sw1 9.9 %, Buck3_sw2 -10 %, Buck3_sw3 -9.9 %, Buck4 timed out, the others 0 %
        QTest::newRow("exactly the deviation fails") << u"10"_s << u"3 5 7"_s;
        QTest::newRow("nothing typed means 10") << QString() << u"3 5 7"_s;
        QTest::newRow("no number means 10") << u"ten"_s << u"3 5 7"_s;
        QTest::newRow("not finite means 10") << u"inf"_s << u"3 5 7"_s;
        QTest::newRow("between") << u"9.95"_s << u"3 5 7"_s;
        QTest::newRow("a comma is a point") << u"9,9"_s << u"3 4 5 6 7"_s;
        QTest::newRow("wide") << u"10.1"_s << u"7"_s;
        QTest::newRow("zero fails all") << u"0"_s << u"0 1 2 3 4 5 6 7 8 9 10"_s;
    }

    void typedTolerances()
    {
        QFETCH(const QString, typed);
        const RailInput input{
            .reply = savedReply(u"everyoutput.txt"_s), .model = u"IP 7"_s, .rule = Rule::within(toleranceOf(typed))};
        const Panel panel = pmuTraits().read(pmuTraits(), input, rowsOf(u"IP 7"_s, 2)).panel;
        QStringList faults;
        for (int line = 0; line < panel.rows.size(); ++line) {
            const auto field = [&](QStringView name) { return panel.fields[u"%1(%2)"_s.arg(name).arg(line)]; };
            QVERIFY(field(u"OK").visible != field(u"NO").visible);
            QCOMPARE(field(u"PORC").back == Colour::OutOfTolerance, *field(u"NO").visible);
            QCOMPARE(field(u"LEITURA_V").back, field(u"PORC").back);
            if (*field(u"NO").visible)
                faults.append(QString::number(line));
        }
        QTEST(faults.join(u' '), "faults");
    }

    void linesOfThePanel()
    {
        const Panel panel = read(pmuTraits, rowsOf(u"IP 7"_s, 2), u"IP 7"_s).panel;
        const auto text = [&panel](const QString &field) { return panel.fields.value(field).text; };
        QCOMPARE(text(u"SAIDA(3)"_s), u"BUCK3"_s);
        QCOMPARE(text(u"MALHA_NOME(3)"_s), u"PP1V8_SDRAM"_s);
        QCOMPARE(text(u"LEITURA_V(3)"_s), u"1.980 V"_s);
        QCOMPARE(text(u"LEITURA_A(3)"_s), u"103,2 mA"_s);
        QCOMPARE(text(u"REF(3)"_s), u"1.800 V"_s);
        QCOMPARE(text(u"PORC(3)"_s), u"10 %"_s);
        QCOMPARE(panel.fields.value(u"LEITURA_A(4)"_s).visible, std::optional(false)); // a switch has no current
        QVERIFY(text(u"lbVar"_s)->endsWith(" ** No Reading"_L1));
        QVERIFY(!panel.fields.contains(u"SAIDA(11)"_s)); // bucks without a reference have no line
    }

    void toleranceJudgesTheSameReplyAgain()
    {
        RailBench<PMUScreen> bench(u"IP 7,buck3=1750"_s); // -2.7 %
        bench.connectPhone();
        bench.readKind(2);
        QCOMPARE(bench.screen->panel().verdict, Verdict::Pass);
        const qsizetype commands = bench.port.commands.size();
        QSignalSpy judged(bench.screen.get(), &Screen::judged);
        bench.screen->PorcTolerancia_Change(u"2"_s);
        QCOMPARE(bench.screen->panel().verdict, Verdict::Fail);
        QCOMPARE(judged.size(), 0); // still typing: no finding comes of it yet
        bench.screen->PorcTolerancia_LostFocus();
        bench.screen->PorcTolerancia_LostFocus();
        QCOMPARE(judged.size(), 1);
        QCOMPARE(bench.port.commands.size(), commands);
        QList<Judgement> faults = bench.screen->judgements();
        faults.removeIf([](const Judgement &judgement) { return judgement.verdict != Verdict::Fail; });
        QCOMPARE(faults.size(), 1); // the net stands in two kinds and is one fault
    }

    void chipsNarrowTheGrid()
    {
        RailBench<VCoresScreen> bench(u"IP X,buck3=1200"_s);
        const auto chips = [&bench] {
            QSet<QString> seen;
            for (const Row &row : bench.screen->panel().rows)
                seen.insert(row.cell(u"Ci"));
            return seen;
        };
        bench.connectPhone();
        bench.readKind(0);
        QCOMPARE(bench.screen->panel().verdict, Verdict::Fail);

        bench.screen->cbICs_Click(2);
        QCOMPARE(chips(), QSet<QString>({u"CPU"_s, u"CPU/RAM"_s, u"CPU/SOC"_s}));
        bench.screen->cbICs_Click(3);
        QCOMPARE(chips(), QSet<QString>({u"GPU"_s}));
        QCOMPARE(bench.screen->panel().verdict, Verdict::None);
        QCOMPARE(bench.screen->faultsElsewhere(), u"VCore: 1 com falha (PP1V8_S2)"_s); // hidden, not forgotten
        QCOMPARE(bench.stored(u"IP X"_s, 0, u"Buck3"_s).leitura, u"1.200 V"_s);

        bench.screen->btGravar_Click(1);
        QCOMPARE(bench.stored(u"IP X"_s, 0, u"Buck1"_s).g[0], u"*"_s);
        QCOMPARE(bench.stored(u"IP X"_s, 0, u"Buck3"_s).g[0], QString()); // only what is shown is recorded

        bench.screen->goTo(u"PP1V8_S2"_s);
        QCOMPARE(bench.screen->panel().rows.size(), 20);
        bench.screen->cbICs_Click(1);
        QCOMPARE(bench.screen->panel().rows.size(), 20); // both chips are all there are
        bench.port.pull();
        bench.screen->cbICs_Click(3); // not connected
        QCOMPARE(bench.screen->panel().rows.size(), 20);
    }
};

QTEST_GUILESS_MAIN(TestRails)
#include "tst_rails.moc"
