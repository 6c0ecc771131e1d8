#include "checkscreen.h"

#include "guides.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

static constexpr int kTickLimit = 30;
/// How long a reply takes is not known: the bar comes to a stand before its end.
static constexpr int kProgressStep = 4;
static constexpr int kProgressLimit = 96;

bool isSixFamily(const QString &model)
{
    return model.startsWith("IP 6"_L1);
}

CheckScreen::CheckScreen(Session &session, QString name, QString code, QObject *parent)
    : Screen(session, std::move(name), {code}, parent), m_code(std::move(code))
{
    m_timer1.setInterval(250ms);
    m_timerAguarde.setInterval(2000ms);
    connect(&m_timer1, &QTimer::timeout, this, &CheckScreen::Timer1_Timer);
    connect(&m_timerBarra, &QTimer::timeout, this, &CheckScreen::TimerBarra_Timer);
    connect(&m_timerAguarde, &QTimer::timeout, this, &CheckScreen::TimerAguarde_Timer);
    connect(&session, &Session::readingsCleared, this, [this] {
        if (!m_isReading)
            forget();
    });
    connect(&session, &Session::languageChanged, this, &CheckScreen::rebuild);
    connect(&session, &Session::modelChanged, this, &CheckScreen::rebuild);
    connect(&session, &Session::consoleAppended, this, [this](const QString &text) {
        if (m_timer1.isActive() && this->session().activeCode() == m_code)
            emit replyGrew(text);
    });
}

bool CheckScreen::mayAsk()
{
    if (session().isReady())
        return true;
    m_notice = waitText(session().Status() == "0"_L1 ? u"Desconectado" : u"Aguarde...");
    m_timerAguarde.start();
    showState();
    return false;
}

void CheckScreen::TimerAguarde_Timer()
{
    m_timerAguarde.stop();
    m_notice.clear();
    showState();
}

void CheckScreen::ask(const Check &check)
{
    if (m_isReading)
        return;
    if (!mayAsk())
        return checkEnded();
    m_check = check;
    if (!check.needsModel || session().isModelKnown())
        return send();
    if (session().requestModel(m_code))
        begin();
    else
        end();
}

void CheckScreen::send()
{
    if (m_check.refuses && m_check.refuses(session().model())) {
        refuseModel();
        return end();
    }
    begin();
    if (!session().request(m_code, m_check.command))
        return end();
    m_timer1.start();
}

void CheckScreen::refuseModel()
{
    m_isRefused = true;
    session().boxes().message({{u"MSG_NAO_PARA_IP6"_s}});
}

void CheckScreen::begin()
{
    m_delivery = {};
    forgetStray();
    m_isReading = true;
    m_isJudged = false;
    m_isRefused = false;
    m_ticks = 0;
    m_progress = 0;
    m_notice.clear();
    m_timerAguarde.stop();
    m_timerBarra.start(m_check.bar);
    askBegan();
    rebuild();
}

void CheckScreen::take(const Delivery &delivery)
{
    if (!m_timer1.isActive())
        return;
    m_delivery = delivery;
    if (delivery.reply.isEmpty())
        session().refuse({u"IGNORED_EMPTY_REPLY"_s});
    Timer1_Timer();
    if (m_isReading && session().isSavedReply()) // nothing more will come
        end();
}

void CheckScreen::Timer1_Timer()
{
    if (!m_timer1.isActive() || session().Status() != "1"_L1)
        return;
    ++m_ticks;
    if (hasArrived(m_delivery.reply))
        judge();
    else if (m_ticks >= kTickLimit)
        end();
}

void CheckScreen::judge()
{
    if (m_delivery.cut)
        session().refuse({u"REPLY_CUT"_s});
    m_isJudged = true;
    end();
    askEnded();
    for (const Notice &message : Panel(reading()).messages)
        session().boxes().message({message});
    emit judged();
}

/// What came of a reply before the link was lost is shown, no more.
void CheckScreen::release(Release why, const Delivery &partial)
{
    Q_UNUSED(why)
    m_delivery = partial;
    end();
}

void CheckScreen::end()
{
    m_timer1.stop();
    m_timerBarra.stop();
    m_isReading = false;
    rebuild();
    checkEnded();
}

void CheckScreen::TimerBarra_Timer()
{
    m_progress = qMin(m_progress + kProgressStep, kProgressLimit);
    showState();
}

void CheckScreen::forget()
{
    m_delivery = {};
    forgetStray();
    m_isJudged = false;
    m_isRefused = false;
    rebuild();
}

void CheckScreen::btComparador_Click()
{
    m_showsRecording = !m_showsRecording;
    showState();
}

/// The recording holds the command line as the phone echoed it; the reply is shown without.
QMap<QString, Field> CheckScreen::comparatorState() const
{
    const auto &kept = m_delivery.recording;
    const bool isChanged = kept && kept->integrity == Integrity::Changed;
    const QString note = isChanged             ? caption(u"Gravação alterada fora do programa")
                         : m_isJudged && !kept ? caption(u"Sem gravação para comparar")
                                               : QString();
    return {
        {u"FrameComparador"_s, {.visible = m_showsRecording}},
        {u"txtComparador"_s, {.text = kept ? QString(kept->recording.dados).remove(m_delivery.command) : QString()}},
        {u"lbIntegridade"_s, {.text = note, .visible = !note.isEmpty()}},
        {u"btComparador"_s, {.checked = m_showsRecording}}};
}

void CheckScreen::openGuide(const QString &fileName)
{
    const QString home = QFileInfo(session().store().path()).absolutePath();
    const Result<QString> path = guide(home, fileName);
    if (path)
        session().openDocument(*path);
    else
        session().boxes().message(path.trouble());
}

QMap<QString, Field> CheckScreen::waitState() const
{
    return {{u"lbAguarde"_s, {.text = m_notice, .visible = !m_notice.isEmpty()}},
            {u"FrameVCore"_s, {.visible = m_isReading}},
            {u"Barra"_s, {.value = m_progress}}};
}

void CheckScreen::rebuild()
{
    show(makeReading(), state());
}
