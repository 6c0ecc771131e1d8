// The part of the session that sends a command, gathers its reply and hands it to the screen that asked.

#include "session.h"

#include "commandguard.h"
#include "linebytes.h"
#include "ownecho.h"
#include "replycodes.h"

#include <utility>

using namespace Qt::StringLiterals;

/// What the console keeps of one reply, its beginning; the exchange log has all of it.
static constexpr qsizetype kMostConsole = 12 << 20;
/// What every reply begins with.
static constexpr auto kConsoleStart = "\r\n"_L1;

bool Session::maySend(const QString &command)
{
    if (!leavesPhoneAsItIs(command)) {
        m_parts.boxes.message({{u"MSG_SYSCFG"_s}});
        return false;
    }
    if (const Result<QByteArray> line = lineBytes(command); !line) {
        refuse(line.trouble().what);
        return false;
    }
    if (!isReady())
        refuse({isConnected() ? u"REFUSED_BUSY"_s : u"REFUSED_NOT_CONNECTED"_s});
    return isReady();
}

bool Session::requestInstead(const QString &code, const QString &command)
{
    if (isInFlight() && m_code == code && leavesPhoneAsItIs(command)) {
        stopPolling();
        enter(u'1', m_st1);
    }
    return request(code, command);
}

void Session::stop(const QString &code)
{
    if (!isInFlight() || m_fetching || m_code != code)
        return;
    if (m_timer1.isActive())
        startConsole();
    stopPolling();
    AdicionaDadosConsole(QString::fromLatin1(m_parts.port.read()));
    m_cut = true;
    BuscaDadosGravados();
}

void Session::stopPolling()
{
    m_timer1.stop();
    m_timer2.stop();
    m_fetching.reset();
}

bool Session::request(const QString &code, const QString &command)
{
    if (!maySend(command))
        return false;
    m_code = code;
    m_txtComandos = command;
    EnviaComando();
    return isInFlight();
}

void Session::EnviaComando()
{
    if (m_txtComandos.isEmpty())
        return;
    if (!m_parts.port.isOpen())
        return refuse({u"REFUSED_NOT_CONNECTED"_s});
    if (isInFlight())
        return refuse({u"REFUSED_BUSY"_s});
    const Result<QByteArray> line = lineBytes(m_txtComandos);
    if (!line)
        return refuse(line.trouble().what);
    m_parts.port.discardInput();
    m_timer1.start();
    enter(u'3', u"Comunicando"_s);
    m_parts.port.write(*line);
}

/// In one go: replacing them moves the rest of a flood again and again.
static QString withReturns(const QString &chunk)
{
    QString text(chunk.size() + chunk.count(u'\n'), Qt::Uninitialized);
    QChar *to = text.data();
    for (const QChar c : chunk) {
        if (c == u'\n')
            *to++ = u'\r';
        *to++ = c;
    }
    return text;
}

void Session::AdicionaDadosConsole(const QString &chunk)
{
    m_anyByte = m_anyByte || !chunk.isEmpty();
    const QString text = withReturns(chunk);
    const qsizetype room = kMostConsole - m_txtConsole.size();
    m_cut = m_cut || text.size() > room;
    m_txtConsole += QStringView(text).first(std::min(room, text.size()));
    emit consoleAppended(text);
}

EndOfReply Session::endOfReply() const
{
    if (const ReplyCode *row = replyCode(m_code); row && row->endsBySilence)
        return EndOfReply::Silence;
    const bool atOnce = m_speedSetting == u'1' && m_txtComandos != kModelQuery;
    return atOnce ? EndOfReply::PromptAtOnce : EndOfReply::Prompt;
}

void Session::startConsole()
{
    m_timer1.stop();
    m_anyByte = false;
    m_cut = false;
    m_txtConsole = kConsoleStart;
}

void Session::Timer1_Timer()
{
    startConsole();
    advance(firstPoll(m_parts.port.read(), endOfReply()));
}

void Session::Timer2_Timer()
{
    advance(followUpPoll(m_gathering, m_parts.port.read(), endOfReply(), m_speed.replyLimit));
}

void Session::advance(const Gathering &next)
{
    m_gathering = next;
    AdicionaDadosConsole(QString::fromLatin1(next.chunk));
    if (!next.complete) {
        if (!m_timer2.isActive())
            m_timer2.start();
        return;
    }
    m_timer2.stop();
    BuscaDadosGravados();
}

/// What came, from the phone's echo on where one is owed.
Delivery Session::delivery() const
{
    static constexpr auto kWhole = OwnEcho{true, kConsoleStart.size()};
    const bool owesEcho = m_echoes && !m_isSavedReply;
    const OwnEcho echo = owesEcho ? ownEcho(m_txtConsole, m_txtComandos) : kWhole;
    if (!m_anyByte || !echo.isFound)
        return {.command = m_txtComandos, .cut = true, .stray = m_anyByte ? m_txtConsole : QString()};
    const QString answer = kConsoleStart + m_txtConsole.sliced(echo.begin);
    const bool cut = m_cut || !answer.contains(QLatin1StringView(kPrompt));
    return {.command = m_txtComandos, .reply = replyForCode(m_code, answer, m_txtComandos), .cut = cut};
}

void Session::BuscaDadosGravados()
{
    const ReplyCode *row = replyCode(m_code);
    if (row && row->rebindsRecordings)
        fetchRecording();
    else
        deliver(delivery());
}

/// A store that is busy keeps the command in flight. One that fails is told, and the reply comes without a recording.
void Session::fetchRecording()
{
    using Row = std::optional<KeptRecording>;
    m_fetching = std::make_unique<QObject>();
    const RecordingKey key{knownModel(), m_txtComandos};
    m_parts.store.run<Row>(
        Store::Access::Read, [key](Store &store) { return recordingFor(store, key.model, key.command); },
        m_fetching.get(),
        [this](const Result<Row> &row) {
            Delivery finished = delivery();
            m_fetching.reset();
            finished.isBound = bool(row);
            if (row)
                finished.recording = *row;
            else
                emit storeFailed(row.trouble());
            deliver(finished);
        });
}

void Session::deliver(const Delivery &finished)
{
    const QString code = std::exchange(m_code, kMainWindowCode);
    enter(u'1', m_accepted ? u"Conectado"_s : m_st1);
    Receiver *receiver = m_receivers.value(code);
    if (receiver && finished.stray.isEmpty())
        receiver->take(finished);
    else if (receiver)
        receiver->takeStray(finished);
}
