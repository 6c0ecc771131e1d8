#include "simulatedphone.h"

#include "outflow.h"
#include "pseudoterminal.h"
#include "shellcommands.h"

#include <QElapsedTimer>
#include <QSocketNotifier>
#include <QTimer>

#include <optional>

using namespace std::chrono_literals;

static constexpr auto kTick = 5ms;
// Below this a pseudo-terminal takes a prompt whole; a reader that is further behind is waited for.
static constexpr qsizetype kRoomForWhole = 2048;

struct SimulatedPhone::Terminal
{
    PhoneProfile profile;
    int bytesPerSecond;
    std::chrono::milliseconds promptDelay = 120ms;
    std::unique_ptr<PseudoTerminal> line = PseudoTerminal::make();
    std::unique_ptr<QSocketNotifier> notifier = {};
    QTimer timer{nullptr};
    QByteArray typed = {};
    QList<QByteArray> waiting = {}; // commands that came while a reply was on its way: the phone takes them in turn
    std::optional<Outflow> reply = {};
    Mood mood = Mood::Listening;
    QElapsedTimer sinceFirstByte = {};
};

SimulatedPhone::SimulatedPhone(PhoneProfile profile, int bytesPerSecond, QObject *parent)
    : QObject(parent), m_terminal(new Terminal{.profile = std::move(profile), .bytesPerSecond = bytesPerSecond})
{
    if (!m_terminal->line)
        return;
    m_terminal->notifier = std::make_unique<QSocketNotifier>(m_terminal->line->descriptor(), QSocketNotifier::Read);
    connect(m_terminal->notifier.get(), &QSocketNotifier::activated, this, &SimulatedPhone::takeInput);
    m_terminal->timer.setTimerType(Qt::PreciseTimer);
    m_terminal->timer.setInterval(kTick);
    connect(&m_terminal->timer, &QTimer::timeout, this, &SimulatedPhone::send);
}

SimulatedPhone::~SimulatedPhone()
{
    unplug();
}

QString SimulatedPhone::device() const
{
    return m_terminal->line ? m_terminal->line->path() : QString();
}

void SimulatedPhone::setPromptDelay(std::chrono::milliseconds delay)
{
    m_terminal->promptDelay = delay;
}

void SimulatedPhone::unplug()
{
    m_terminal->timer.stop();
    if (m_terminal->notifier) // it may be the one that is just calling
        m_terminal->notifier->setEnabled(false);
    m_terminal->waiting.clear();
    m_terminal->reply.reset();
    m_terminal->line.reset();
}

void SimulatedPhone::takeInput()
{
    m_terminal->typed += m_terminal->line->read().replace("\n", "");
    qsizetype end = 0;
    while ((end = m_terminal->typed.indexOf('\r')) >= 0) {
        const QByteArray command = m_terminal->typed.first(end);
        m_terminal->typed.remove(0, end + 1);
        m_terminal->waiting.append(command);
        emit commandReceived(command);
    }
    answerNext();
}

void SimulatedPhone::answerNext()
{
    if (m_terminal->reply || m_terminal->waiting.isEmpty())
        return;
    const QByteArray command = m_terminal->waiting.takeFirst();
    const Mood before = m_terminal->mood;
    m_terminal->mood = moodAfter(before, QString::fromLatin1(command).simplified());
    if (before == m_terminal->mood && before != Mood::Listening)
        return answerNext(); // it hears nothing
    const ReplyPlan plan = replyPlan(m_terminal->profile, command, m_terminal->promptDelay);
    obey(m_terminal->profile, command);
    m_terminal->reply.emplace(plan, m_terminal->bytesPerSecond);
    m_terminal->sinceFirstByte.start();
    m_terminal->timer.start();
    send();
}

void SimulatedPhone::send()
{
    Outflow &reply = *m_terminal->reply;
    if (reply.isDone()) {
        finishReply();
        return;
    }
    if (reply.isDueWhole() && m_terminal->line->unread() > kRoomForWhole)
        return;
    const QByteArray due = reply.due(std::chrono::milliseconds(m_terminal->sinceFirstByte.elapsed()));
    if (!due.isEmpty())
        reply.take(m_terminal->line->write(due));
}

/// Bytes that nobody has read yet would go down with the cable, so it is pulled after they have been.
void SimulatedPhone::finishReply()
{
    const bool unplugs = m_terminal->reply->unplugsAfter();
    if (unplugs && m_terminal->line->unread() > 0)
        return;
    m_terminal->timer.stop();
    m_terminal->reply.reset();
    if (unplugs)
        unplug();
    else
        answerNext();
}
