#include "icscreen.h"

#include "chipreading.h"
#include "icreading.h"

#include <array>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

static constexpr auto kCode = "5"_L1;
static constexpr int kTickLimit = 30;
static constexpr std::array kCommands = {
    "tristar -p"_L1, "tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx"_L1};

ICScreen::ICScreen(Session &session, QObject *parent) : Screen(session, u"IC"_s, {kCode}, parent)
{
    m_timerStatus.setInterval(250ms);
    m_timerAguarde.setInterval(2000ms);
    connect(&m_timerStatus, &QTimer::timeout, this, &ICScreen::TimerStatus_Timer);
    connect(&m_timerAguarde, &QTimer::timeout, this, &ICScreen::TimerAguarde_Timer);
    connect(&session, &Session::readingsCleared, this, &ICScreen::forget);
    connect(&session, &Session::languageChanged, this, &ICScreen::rebuild);
    connect(&session, &Session::modelChanged, this, &ICScreen::rebuild);
}

void ICScreen::btBl_Click()
{
    if (m_isReading)
        return;
    if (!session().isReady())
        return askToWait();
    if (session().isModelKnown())
        return sendTest();
    if (session().requestModel(kCode))
        begin();
}

void ICScreen::askToWait()
{
    const bool isClosed = session().Status() == "0"_L1;
    m_notice = isClosed ? caption(u"Desconectado") + u'!' : caption(u"Aguarde...");
    m_timerAguarde.start();
    rebuild();
}

void ICScreen::TimerAguarde_Timer()
{
    m_timerAguarde.stop();
    rebuild();
}

void ICScreen::sendTest()
{
    if (!session().request(kCode, kCommands.at(static_cast<std::size_t>(m_selector - 1))))
        return end();
    begin();
    m_timerStatus.start();
}

void ICScreen::begin()
{
    m_txtDados.clear();
    m_cut = false;
    m_notice.clear();
    m_ticks = 0;
    m_isReading = true;
    rebuild();
}

void ICScreen::take(const Delivery &delivery)
{
    m_txtDados = delivery.reply;
    m_cut = delivery.cut;
    if (m_txtDados.isEmpty())
        session().refuse({u"IGNORED_EMPTY_REPLY"_s});
    TimerStatus_Timer();
}

void ICScreen::TimerStatus_Timer()
{
    ++m_ticks;
    if (m_txtDados.size() > kNoPortChipReply || m_ticks >= kTickLimit)
        end();
}

void ICScreen::release(Release why, const Delivery &partial)
{
    Q_UNUSED(why)
    m_txtDados = partial.reply;
    m_cut = true;
    end();
}

void ICScreen::end()
{
    m_timerStatus.stop();
    m_isReading = false;
    rebuild();
    emit readingEnded();
    if (hasReading())
        emit judged();
}

void ICScreen::forget()
{
    if (m_isReading)
        return;
    m_txtDados.clear();
    rebuild();
}

void ICScreen::btTristar_Click()
{
    emit screenRequested(u"Tristar"_s);
}

void ICScreen::btTigris_Click()
{
    emit screenRequested(u"Tigris"_s);
}

void ICScreen::chooseSelector(int selector)
{
    m_selector = selector == 2 ? 2 : 1;
    rebuild();
}

void ICScreen::rebuild()
{
    const QString reply = hasReading() ? m_txtDados : QString();
    show(readIC({reply, m_cut, session().model(), session().language()}), state());
}

QMap<QString, Field> ICScreen::state() const
{
    const QString chip = portChip(session().model());
    QMap<QString, Field> fields{
        {u"btBl"_s, {.text = chip + u' ' + caption(u"Comunicação") + "  F5"_L1, .enabled = !m_isReading}},
        {u"btTristar"_s, {.text = chip + u' ' + caption(u"Tensões")}},
        {u"btTigris"_s, {.text = "TIGRIS "_L1 + caption(u"Tensões")}},
        {u"lbAguarde"_s, {.text = caption(u"Aguarde..."), .visible = m_timerAguarde.isActive()}},
        {u"FrameVCore"_s, {.visible = m_isReading}},
        {u"Barra"_s, {.value = 100 * m_ticks / kTickLimit}}};
    for (int selector = 1; selector <= 2; ++selector)
        fields[element(u"OpSelecao", selector)] = {.enabled = !m_isReading, .checked = m_selector == selector};
    if (!m_notice.isEmpty())
        fields[u"lbStatus"_s].text = m_notice;
    return fields;
}
