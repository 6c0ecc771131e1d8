#include "session.h"

#include "catalogue.h"
#include "railrows.h"
#include "replycodes.h"
#include "settingkeys.h"
#include "settings.h"

#include <QDir>

#include <utility>

using namespace Qt::StringLiterals;

static constexpr auto kHelpVideo = "help-video"_L1;

Session::Session(SessionParts parts, QObject *parent)
    : QObject(parent),
      m_parts(std::move(parts)),
      m_st1(u"Desconectado"_s),
      m_code(kMainWindowCode),
      m_speedSetting(u"1"_s)
{
    using Tick = void (Session::*)();
    static constexpr std::array<Tick, 6> kTicks = {&Session::Timer1_Timer,
                                                   &Session::Timer2_Timer,
                                                   &Session::TimerValidaPorta_Timer,
                                                   &Session::TimerVersao_Timer,
                                                   &Session::TimerVerificaVersao_Timer,
                                                   &Session::TimerFecha_Timer};
    for (std::size_t i = 0; i < kTicks.size(); ++i)
        connect(&m_timers[i], &QTimer::timeout, this, kTicks[i]);
    m_timerValidaPorta.setInterval(m_parts.intervals.validaPorta);
    m_timerVersao.setInterval(m_parts.intervals.versao);
    m_timerVerificaVersao.setInterval(m_parts.intervals.verificaVersao);
    m_timerFecha.setInterval(m_parts.intervals.fecha);
    applySpeed(m_speedSetting);
    connect(&m_parts.port, &Port::lost, this, &Session::lose);
}

void Session::keep(std::function<Result<Done>(Store &)> work, std::function<void(const Done &)> done)
{
    if (m_parts.keeping == Keeping::Everything)
        withStore<Done>(Store::Access::Write, std::move(work), this, std::move(done));
}

void Session::load()
{
    withStore<Language>(
        Store::Access::Read, [](Store &store) { return ::language(store); }, this,
        [this](Language stored) {
            m_language = stored;
            emit languageChanged();
        });
    withStore<QString>(
        Store::Access::Read, [](Store &store) { return combo(store, Combo::LinkSpeed); }, this,
        [this](const QString &stored) { applySpeed(stored == "G2"_L1 ? u"2"_s : u"1"_s); });
    withStore<QString>(
        Store::Access::Read, [](Store &store) { return lastModel(store); }, this,
        [this](const QString &stored) {
            m_model = stored;
            emit modelChanged();
        });
    clearStoredReadings();
}

void Session::adopt(const QString &device, const QString &model)
{
    if (!m_parts.port.open(device))
        return;
    m_isSavedReply = true;
    m_accepted = true;
    enter(u'1', u"Conectado"_s);
    setModel(model, true);
}

Lamp Session::lamp() const
{
    if (m_status == u'0')
        return Lamp::Branco;
    return m_accepted ? Lamp::Verde : Lamp::Amarelo;
}

QString Session::St1() const
{
    return m_st1 == "..."_L1 ? m_st1 : caption(m_st1, m_language);
}

QString Session::connectCaption() const
{
    static constexpr std::array<QStringView, 3> kCaptions = {u"Conectar", u"Conectando", u"Desconectar"};
    return caption(kCaptions.at(static_cast<std::size_t>(lamp())), m_language);
}

QString Session::windowCaption() const
{
    return isInFlight() ? caption(u"Comunicando", m_language) + "..."_L1 : u"Tavimo Prelt"_s;
}

void Session::connectOrDisconnect(const QString &port)
{
    if (m_status == u'1')
        disconnectNow();
    else if (m_status == u'0')
        reconnect(port, Asked::ByPerson);
    else
        refuse({u"REFUSED_BUSY"_s});
}

void Session::reconnect(const QString &port, Asked asked)
{
    if (m_status != u'0')
        return;
    m_asked = asked;
    connectTo(portAddress(m_portText = port));
}

void Session::tellUnconnected(const Trouble &trouble)
{
    if (m_asked == Asked::ByPerson)
        m_parts.boxes.message(trouble);
    else
        refuse(trouble.what);
}

void Session::connectTo(const PortAddress &address)
{
    switch (address.kind) {
    case PortAddress::Kind::None:
        m_parts.boxes.message({{u"SEM_PORTA"_s}});
        emit connectFailed();
        return;
    case PortAddress::Kind::NumberTooHigh:
        offerHelpVideo();
        emit connectFailed();
        return;
    default:
        openPort(address);
    }
}

void Session::offerHelpVideo()
{
    const Question question{caption(u"Porta Serial COM", m_language), caption(u"Porta 16", m_language),
                            Question::Choices::YesNoCancel};
    m_parts.boxes.ask(question, [this](Answer answer) {
        if (answer != Answer::Yes)
            return;
        withStore<QString>(
            Store::Access::Read, [](Store &store) { return checkedSetting(store, kHelpVideo); }, this,
            [this](const QString &address) {
                if (!address.isEmpty())
                    openAddress(address);
            });
    });
}

void Session::openDocument(const QString &path) const
{
    openAddress(QDir::toNativeSeparators(path));
}

void Session::openAddress(const QString &address) const
{
    if (m_parts.open)
        m_parts.open(address);
}

void Session::openPort(const PortAddress &address)
{
    const Result<QString> device = m_parts.deviceFor(address);
    const Result<Done> opened = device ? m_parts.port.open(*device) : Result<Done>(device.trouble());
    if (!opened) {
        tellUnconnected(opened.trouble());
        emit connectFailed();
        return;
    }
    emit portOpened(*device);
    m_timerFecha.stop();
    m_accepted = false;
    m_handshakeTicks = 0;
    m_lbModelo.clear();
    setModel(m_model, false);
    clearStoredReadings(); // what is on screen was another phone's, for all we know
    m_code = kMainWindowCode;
    m_txtComandos = kModelQuery;
    EnviaComando();
    if (!m_parts.port.isOpen())
        return;
    m_timerValidaPorta.start();
    enter(u'2', u"Conectando"_s);
}

void Session::disconnectNow()
{
    m_parts.port.close();
    leaveLink(Release::Disconnected);
}

void Session::showDisconnected()
{
    m_accepted = false;
    m_handshakeTicks = 0;
    m_timerValidaPorta.stop();
    m_lbModelo.clear();
    enter(u'0', u"Desconectado"_s);
}

void Session::enter(QChar status, const QString &st1)
{
    m_status = status;
    m_st1 = st1;
    emit statusChanged();
}

bool Session::isInFlight() const
{
    return m_timer1.isActive() || m_timer2.isActive() || m_fetching;
}

void Session::chooseLanguage(Language chosen)
{
    m_language = chosen;
    keep([chosen](Store &store) { return setLanguage(store, chosen); });
    emit languageChanged();
}

void Session::chooseSpeed(const QString &chosen)
{
    applySpeed(chosen);
    const QString stored = u'G' + chosen;
    keep([stored](Store &store) { return setCombo(store, Combo::LinkSpeed, stored); });
}

void Session::applySpeed(const QString &chosen)
{
    m_speedSetting = chosen;
    m_speed = speedFor(chosen, m_speed);
    const auto interval = m_parts.intervals.poll.value_or(m_speed.interval);
    m_timer1.setInterval(interval);
    m_timer2.setInterval(interval);
    emit speedChanged();
}

void Session::detach(const Receiver *receiver)
{
    if (m_receivers.value(m_code) == receiver) // another that opens under this code must not get the late reply
        m_code = kMainWindowCode;
    if (m_receivers.value(m_origin) == receiver)
        m_origin.clear();
    m_receivers.removeIf([receiver](const auto &entry) { return entry.value() == receiver; });
}

void Session::leaveLink(Release why)
{
    const bool inFlight = isInFlight();
    Delivery partial = inFlight ? delivery() : Delivery{};
    partial.cut = true; // even with a prompt in it: the line died before the reply was done
    const QString code = std::exchange(m_code, kMainWindowCode);
    stopPolling();
    showDisconnected();
    Receiver *waiting = takeOrigin();
    if (waiting)
        return waiting->release(why, {{}, {}, true});
    if (Receiver *asking = inFlight ? m_receivers.value(code) : nullptr)
        asking->release(why, partial);
}

void Session::lose()
{
    if (m_status == u'0')
        return;
    if (m_timer1.isActive()) { // nothing was polled yet: the console still holds the reply before
        startConsole();
        m_timer2.start();
    }
    if (isInFlight())
        AdicionaDadosConsole(QString::fromLatin1(m_parts.port.read()));
    leaveLink(Release::LinkLost);
    m_timerFecha.start();
    emit linkLost();
}

void Session::TimerFecha_Timer()
{
    m_timerFecha.stop();
    m_parts.port.close();
    emit portsWanted();
}
