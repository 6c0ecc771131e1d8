// What a steady stream at the speed of the line costs.

#include "contest.h"
#include "figure.h"
#include "phoneend.h"
#include "processfigures.h"

using namespace Qt::StringLiterals;

static constexpr int kPace = 11520; // bytes per second at 115,200 baud
static constexpr int kSeconds = 20;

static QByteArray lines(qsizetype size)
{
    QByteArray text;
    for (int number = 0; text.size() < size; ++number)
        text += QByteArray("BIST buck") + QByteArray::number(number % 10) + ": " +
                QByteArray::number(600 + number % 1000) + ".5091 mV\n";
    return text.first(size);
}

static double processorSecondsFor(const QString &command, WindowWatch &windows)
{
    PhoneEnd phone;
    Subject subject(command, windows, phone.device());
    phone.settle(subject);
    const double before = processorSeconds(subject.process());
    phone.stream(lines(kPace * kSeconds), kPace);
    subject.expectRunning("during the stream");
    return processorSeconds(subject.process()) - before;
}

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const Contest contest = contestFor(application);
    WindowWatch windows;
    const double ours = processorSecondsFor(contest.oursOnPort, windows);
    const double peer = processorSecondsFor(contest.peerOnPort, windows);
    print({.what = u"20 s of stream at 115,200 baud"_s,
           .unit = u"s CPU"_s,
           .ours = ours,
           .others = peer,
           .mostTimes = 1.0});
}
