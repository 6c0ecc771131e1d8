// Small things that happen often, in this process and without a display.

#include "buckldoreading.h"
#include "buckldoscreen.h"
#include "consoletime.h"
#include "contest.h"
#include "figurereporter.h"
#include "gridtime.h"
#include "i2cscreen.h"
#include "phoneprofile.h"
#include "railtable.h"
#include "replayport.h"
#include "replydifference.h"
#include "silentboxes.h"

#include <QApplication>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int kRepetitions = 25;
constexpr qsizetype kReply = 6000;
constexpr qsizetype kFlood = 4 << 20;
constexpr int kLines = 100'000;
constexpr int kLongRepetitions = 5;

/// The self-test as the phone sends it, made 6 kB long by lines that nobody asks for, as other models have them.
QByteArray longReply()
{
    QByteArray reply = answer(*profileFor(QString(kFullModel)), "pmuadc --read all");
    const qsizetype body = reply.indexOf('\n') + 1;
    while (reply.size() < kReply)
        reply.insert(body, "BIST spare: 1000.0000 mV\n");
    return reply;
}

QList<RailRow> storedRows(const QString &path)
{
    const Result<Store> store = Store::open(path, Store::Access::Read, 1s);
    if (!store)
        giveUp(u"the store does not open: "_s + path);
    const Result<QList<RailRow>> rows = railRows(*store, {QString(kFullModel), kFullKind});
    if (!rows || rows->size() != kFullRows)
        giveUp(u"the store has not the rows that were put in"_s);
    return *rows;
}

void judge(benchmark::State &state, const QString &path)
{
    const QList<RailRow> rows = storedRows(path);
    const RailInput input{.reply = QString::fromLatin1(longReply()), .model = QString(kFullModel)};
    for (auto _ : state)
        benchmark::DoNotOptimize(readRails(buckLdoTraits(), input, rows));
}

/// From the bytes to the panel, as `prelt judge` does it.
template <typename AnyScreen>
void judgeReply(const QByteArray &reply, const QString &path)
{
    ReplayPort port(reply);
    StoreQueue store(path, StoreQueue::Waiting::Blocking);
    SilentBoxes boxes;
    Session session({.port = port,
                     .store = store,
                     .boxes = boxes,
                     .deviceFor = {},
                     .intervals = {.poll = 1h},
                     .keeping = Keeping::Nothing});
    session.adopt(u"a saved reply"_s, QString(kFullModel));
    AnyScreen screen(session);
    screen.open();
    screen.read();
    session.Timer1_Timer();
    if (!session.isReady() || !screen.hasReading())
        giveUp(u"the flood was not judged"_s);
}

void judgeFlood(benchmark::State &state, const QString &path)
{
    const QByteArray flood = QByteArray(kFlood, '\n') + "[0A1B2C3D:00112233] :-) ";
    for (auto _ : state) {
        judgeReply<BuckLdoScreen>(flood, path);
        judgeReply<I2CScreen>(flood, path);
    }
}

void readStore(benchmark::State &state, const QString &path)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(storedRows(path));
}

void gatherMegabytes(benchmark::State &state)
{
    const QByteArray chunk = QByteArray("BIST buck0: 632.5091 mV\n").repeated(170);
    for (auto _ : state) {
        QByteArray console;
        Gathering gathering = firstPoll(chunk, EndOfReply::Prompt);
        for (; console.size() < 20'000'000; console += gathering.chunk)
            gathering = followUpPoll(gathering, chunk, EndOfReply::Prompt, 0);
        benchmark::DoNotOptimize(console);
    }
}

void paintGrid(benchmark::State &state, GridTime &grid)
{
    for (auto _ : state)
        state.SetIterationTime(grid.promptToPaint());
}

/// As many lines as a phone hardly prints, each with a label of its own; one in a hundred has another number.
QString hundredThousandLines(int changed)
{
    QString reply;
    for (int line = 0; line < kLines; ++line) {
        const int value = line % 100 == 0 ? changed : 1000;
        reply += u"BIST rail%1: %2.0000 mV\r\n"_s.arg(line).arg(value);
    }
    return reply;
}

void compareReplies(benchmark::State &state)
{
    const DifferenceInput input{.live = hundredThousandLines(1200), .recorded = hundredThousandLines(1800)};
    for (auto _ : state)
        benchmark::DoNotOptimize(difference(input));
    if (difference(input).differing != kLines / 100)
        giveUp(u"the difference is not what was put in"_s);
}

void floodConsole(benchmark::State &state, ConsoleTime &console)
{
    for (auto _ : state)
        state.SetIterationTime(console.longestStep());
}

benchmark::internal::Benchmark *medianOf(benchmark::internal::Benchmark *one)
{
    return one->Unit(benchmark::kMillisecond)->Repetitions(kRepetitions)->ReportAggregatesOnly();
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&argc, argv);
    const QApplication application(argc, argv);
    const QString store = QApplication::arguments().value(1);
    fillUp(store);
    GridTime grid(store, longReply());
    if (grid.rows() != kFullRows)
        giveUp(u"the grid shows %1 rows"_s.arg(grid.rows()));

    medianOf(benchmark::RegisterBenchmark("judge a 6 kB reply against 120 rows", judge, store))->MinTime(0.02);
    medianOf(benchmark::RegisterBenchmark("judge 4 MiB of empty lines, buses and rails", judgeFlood, store))
        ->Repetitions(kLongRepetitions)
        ->Iterations(1);
    medianOf(benchmark::RegisterBenchmark("prompt seen to grid painted, 120 rows", paintGrid, std::ref(grid)))
        ->UseManualTime()
        ->Iterations(4);
    medianOf(benchmark::RegisterBenchmark("open the store and read 120 rows", readStore, store))->MinTime(0.02);
    medianOf(benchmark::RegisterBenchmark("gather 20 MB in chunks of 4 kB", gatherMegabytes))->MinTime(0.02);
    medianOf(benchmark::RegisterBenchmark("difference of two replies of 100,000 lines", compareReplies))
        ->Repetitions(kLongRepetitions)
        ->Iterations(1);
    ConsoleTime console(store);
    medianOf(
        benchmark::RegisterBenchmark("20 MB into the open console, longest block", floodConsole, std::ref(console)))
        ->UseManualTime()
        ->Repetitions(kLongRepetitions)
        ->Iterations(1);
    FigureReporter figures;
    benchmark::RunSpecifiedBenchmarks(&figures);
}
