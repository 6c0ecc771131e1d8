#include "chestnutscreen.h"

#include "chestnutreading.h"
#include "models.h"
#include "replycodes.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

static bool hasLcdPanel(const QString &model)
{
    return !hasOledPanel(model);
}

ChestnutScreen::ChestnutScreen(Session &session, QObject *parent)
    : ChipScreen(session,
                 {.name = u"Chestnut"_s,
                  .code = u"8"_s,
                  .command = kChestnutCommand,
                  .read = readChestnut,
                  .fits = hasLcdPanel,
                  .refusal = {{}, {u"IP X!"_s, u"NOT FOR X!"_s}},
                  .otherScreen = u"Acorn"_s,
                  .log = ReplyLog::Folded,
                  .reporting = Reporting::Offered},
                 parent)
{
    m_timerTouch.setInterval(500ms);
    m_timer1.setInterval(1000ms);
    connect(&m_timerTouch, &QTimer::timeout, this, &ChestnutScreen::TimerTouch_Timer);
    connect(&m_timer1, &QTimer::timeout, this, &ChestnutScreen::Timer1_Timer);
    connect(&session, &Session::statusChanged, this, [this] {
        if (!this->session().isConnected())
            dropRepeat();
    });
}

bool ChestnutScreen::switchTouch(Touch wanted)
{
    const bool isOn = wanted == Touch::On;
    if (!session().request(kMainWindowCode, isOn ? QString(kTouchOn) : u"touch --off"_s))
        return false;
    m_nextTouch = isOn ? Touch::Off : Touch::On;
    rebuild();
    return true;
}

void ChestnutScreen::btTouch_Click()
{
    if (!session().isConnected())
        return;
    m_touchHandled = true;
    dropRepeat();
    switchTouch(m_nextTouch);
}

bool ChestnutScreen::repeats()
{
    const bool maySwitch = !m_touchHandled && session().isConnected() && !session().isSavedReply();
    if (!maySwitch || !isTouchSupplyFaulty(reading()))
        return false;
    m_touchHandled = true;
    m_timerTouch.start();
    return true;
}

void ChestnutScreen::TimerTouch_Timer()
{
    if (!session().isReady()) // another screen's command is in flight
        return;
    m_timerTouch.stop();
    if (switchTouch(Touch::On))
        m_timer1.start();
}

void ChestnutScreen::Timer1_Timer()
{
    if (!session().isReady())
        return;
    m_timer1.stop();
    read();
}

/// What was read before stands.
void ChestnutScreen::dropRepeat()
{
    if (!m_timerTouch.isActive() && !m_timer1.isActive())
        return;
    m_timerTouch.stop();
    m_timer1.stop();
    emit readingEnded();
}

QMap<QString, Field> ChestnutScreen::state() const
{
    QMap<QString, Field> fields = ChipScreen::state();
    const QString next = caption(m_nextTouch == Touch::On ? u"Ativar" : u"Desativar");
    fields[u"btTouch"_s] = {.text = next + " Touch"_L1, .visible = hasReading()};
    return fields;
}
