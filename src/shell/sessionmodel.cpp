// The part of the session that tells the phone's model: the handshake's record and the repeated query.

#include "session.h"

#include "catalogue.h"
#include "ownecho.h"
#include "railrows.h"
#include "replycodes.h"
#include "settings.h"

#include <utility>

using namespace Qt::StringLiterals;

static constexpr int kHandshakeTicks = 10;
static constexpr int kShortestModelReply = 41;
static constexpr int kModelTicks = 15;

void Session::TimerValidaPorta_Timer()
{
    if (m_status != u'1')
        return;
    if (++m_handshakeTicks > kHandshakeTicks)
        return refuseHandshake();
    if (m_txtConsole.size() >= kShortestModelReply)
        acceptHandshake();
}

void Session::refuseHandshake()
{
    m_timerValidaPorta.stop();
    tellUnconnected({{u"MSG_PORTA_NAO_RESPONDE"_s}});
    if (m_asked == Asked::ByPerson)
        m_parts.boxes.message({{u"MSG_PORTA"_s}});
    disconnectNow();
    emit portsWanted();
    emit connectFailed();
}

void Session::acceptHandshake()
{
    m_timerValidaPorta.stop();
    m_accepted = true;
    enter(u'1', u"Conectado"_s);
    learnEcho();
    readModelRecord();
}

/// A phone that does not echo could never answer: of its replies none is asked for.
void Session::learnEcho()
{
    m_echoes = ownEcho(m_txtConsole, QString(kModelQuery)).isFound;
    if (!m_echoes)
        refuse({u"PHONE_WITHOUT_ECHO"_s});
}

void Session::readModelRecord()
{
    const ModelReply reply = modelReply(m_txtConsole);
    if (takeModelReply(reply))
        return;
    if (reply.kind == ModelReply::Kind::NoRecord)
        return settleWithoutRecord();
    m_mayRepeatQuery = true;
    m_mayHint = true;
    m_modelTicks = 0;
    if (m_modelKnown) // picked by hand meanwhile: the query is not repeated, its reply is only watched
        m_timerVersao.start();
    else
        sendModelQuery(m_timerVerificaVersao);
}

void Session::sendModelQuery(QTimer &watch)
{
    m_code = kMainWindowCode;
    m_txtComandos = kModelQuery;
    EnviaComando();
    if (!isInFlight())
        return;
    enter(m_status, u"..."_s);
    watch.start();
}

bool Session::requestModel(const QString &code)
{
    if (!maySend(kModelQuery))
        return false;
    m_origin = code;
    m_modelTicks = 0;
    m_mayRepeatQuery = false;
    m_mayHint = true;
    sendModelQuery(m_timerVersao);
    return isInFlight();
}

bool Session::isAskingModel() const
{
    return m_timerVersao.isActive() || m_timerVerificaVersao.isActive();
}

void Session::TimerVersao_Timer()
{
    watchModelReply();
}

void Session::TimerVerificaVersao_Timer()
{
    watchModelReply();
}

void Session::watchModelReply()
{
    if (m_status != u'1')
        return;
    if (m_modelKnown && !m_origin.isEmpty()) // picked by hand while the query was on its way
        return resumeOrigin();
    ++m_modelTicks;
    hintAtCommand();
    if (takeModelReply(modelReply(m_txtConsole)))
        return;
    if (m_txtConsole.contains("Not Found"_L1))
        return giveUpModel({});
    const bool repeat = m_mayRepeatQuery && !m_modelKnown && !m_txtConsole.contains("Command"_L1);
    if (std::exchange(m_mayRepeatQuery, false) && repeat)
        return sendModelQuery(m_timerVerificaVersao);
    if (m_modelTicks < kModelTicks)
        return;
    if (!m_origin.isEmpty())
        return giveUpModel({});
    endModelWatch();
    settleWithoutRecord();
}

/// A phone whose shell does not know the query even when it is asked again often does the next time.
void Session::hintAtCommand()
{
    if (std::exchange(m_mayHint, false) && !m_modelKnown && m_txtConsole.contains("Command"_L1))
        AdicionaDadosConsole(caption(u"Msg_Command", m_language));
}

void Session::tellModelMissing()
{
    emit modelMissing();
    if (m_txtConsole.contains("Command"_L1))
        refuse({u"MODEL_QUERY_UNKNOWN"_s});
}

/// A model that was picked by hand stands; without one the technician is to choose.
void Session::settleWithoutRecord()
{
    if (!m_modelKnown)
        tellModelMissing();
    emit connectionSettled();
}

bool Session::takeModelReply(const ModelReply &reply)
{
    switch (reply.kind) {
    case ModelReply::Kind::Identified:
        identify(reply.model);
        return true;
    case ModelReply::Kind::DriverMissing:
        giveUpModel({});
        return true;
    case ModelReply::Kind::UnknownNumber:
        giveUpModel(u'*' + reply.record + u'*');
        return true;
    default:
        return false;
    }
}

void Session::endModelWatch()
{
    m_timerVersao.stop();
    m_timerVerificaVersao.stop();
}

Receiver *Session::takeOrigin()
{
    endModelWatch();
    return m_receivers.value(std::exchange(m_origin, {}));
}

void Session::resumeOrigin()
{
    if (Receiver *waiting = takeOrigin())
        waiting->resume();
}

void Session::identify(const QString &model)
{
    m_txtComandos.clear();
    m_txtConsole.clear();
    m_lbModelo = model;
    endModelWatch();
    setModel(model, true);
    remember(model);
    emit connectionSettled();
    resumeOrigin();
}

void Session::giveUpModel(const QString &shown)
{
    m_lbModelo = shown;
    Receiver *waiting = takeOrigin();
    m_parts.boxes.message({{u"MSG_ERRO_NAND"_s}});
    m_parts.boxes.message({{u"MSG_SELECIONE_MODELO"_s}});
    emit modelChanged();
    tellModelMissing();
    emit connectionSettled();
    if (waiting)
        waiting->release(Release::ModelUnknown, {{}, {}, true});
}

void Session::chooseModel(const QString &model)
{
    if (model.isEmpty() || (m_modelKnown && model == m_model))
        return;
    setModel(model, true);
    remember(model);
    if (!isInFlight())
        resumeOrigin();
}

void Session::setModel(const QString &model, bool known)
{
    const bool changed = model != m_model;
    m_model = model;
    m_modelKnown = known;
    if (changed)
        clearStoredReadings();
    emit modelChanged();
}

void Session::clearStoredReadings()
{
    keep([](Store &store) { return clearReadings(store); });
    emit readingsCleared();
}

void Session::remember(const QString &model)
{
    keep([model](Store &store) { return rememberModel(store, model); });
}
