#include "bateriascreen.h"

#include "bateriareading.h"
#include "replycodes.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

static constexpr auto kPropertiesCode = "14"_L1;
/// How long the gauge takes is not known: the bar comes to a stand before its end.
static constexpr int kProgressStep = 4;
static constexpr int kProgressLimit = 96;

BateriaScreen::BateriaScreen(Session &session, QObject *parent)
    : Screen(session, u"Bateria"_s, {kPropertiesCode, kBatteryLongCode}, parent)
{
    m_timerLer.setInterval(300ms);
    m_timerBarra.setInterval(100ms);
    connect(&m_timerLer, &QTimer::timeout, this, &BateriaScreen::TimerLer_Timer);
    connect(&m_timerBarra, &QTimer::timeout, this, &BateriaScreen::TimerBarra_Timer);
    connect(&session, &Session::readingsCleared, this, &BateriaScreen::forget);
    connect(&session, &Session::languageChanged, this, &BateriaScreen::rebuild);
    connect(&session, &Session::modelChanged, this, &BateriaScreen::rebuild);
    connect(&session, &Session::statusChanged, this, [this] {
        if (m_timerLer.isActive() && !this->session().isConnected()) // nothing is in flight that could be released
            end(Step::Nothing);
    });
}

void BateriaScreen::readAtOpening()
{
    if (session().isReady())
        read();
}

void BateriaScreen::read()
{
    if (isReading())
        return;
    m_txtDados.clear();
    forgetStray();
    if (session().isSavedReply()) // it is the gauge's
        askGauge();
    else if (session().request(kPropertiesCode, kBatteryProperties))
        enter(Step::Properties);
    else
        end(Step::Nothing);
}

void BateriaScreen::askGauge()
{
    if (session().request(kBatteryLongCode, kGasGauge))
        enter(Step::Gauge);
    else
        end(Step::Nothing);
}

void BateriaScreen::enter(Step step)
{
    if (!isReading())
        m_progress = 0;
    m_step = step;
    m_timerBarra.start();
    rebuild();
}

void BateriaScreen::end(Step step)
{
    m_step = step;
    m_timerLer.stop();
    m_timerBarra.stop();
    rebuild();
    emit readingEnded();
}

void BateriaScreen::take(const Delivery &delivery)
{
    if (m_step == Step::Gauge)
        return judge(delivery);
    m_txtDados = delivery.reply;
    m_timerLer.start();
}

void BateriaScreen::judge(const Delivery &delivery)
{
    m_txtDados = delivery.reply;
    if (m_txtDados.isEmpty())
        session().refuse({u"IGNORED_EMPTY_REPLY"_s});
    else if (delivery.cut)
        session().refuse({u"REPLY_CUT"_s});
    end(m_txtDados.isEmpty() ? Step::Nothing : Step::Read);
    if (hasReading())
        emit judged();
}

void BateriaScreen::release(Release why, const Delivery &partial)
{
    Q_UNUSED(why)
    if (m_step == Step::Gauge && !partial.reply.isEmpty())
        judge(partial);
    else
        end(Step::Nothing);
}

void BateriaScreen::TimerLer_Timer()
{
    if (!session().isReady()) // another screen's command is in flight
        return;
    m_timerLer.stop();
    askGauge();
}

void BateriaScreen::TimerBarra_Timer()
{
    m_progress = qMin(m_progress + kProgressStep, kProgressLimit);
    rebuild();
}

void BateriaScreen::forget()
{
    if (isReading())
        return;
    m_txtDados.clear();
    forgetStray();
    m_step = Step::Nothing;
    rebuild();
}

void BateriaScreen::rebuild()
{
    const QString reply = hasReading() ? m_txtDados : QString();
    show(readBateria({reply, session().model(), session().language()}), state());
}

QMap<QString, Field> BateriaScreen::state() const
{
    return {{u"btBateria"_s, {.text = caption(u"Executar Leitura") + "  F5"_L1, .enabled = !isReading()}},
            {u"FrameVCore"_s, {.visible = isReading()}},
            {u"Barra"_s, {.value = m_progress}}};
}
