#include "masterscreen.h"

#include "autocomparison.h"
#include "masking.h"
#include "masks.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

static constexpr auto kCode = "1"_L1;
static constexpr auto kButtonTest = "BUTTONCNT --DQE"_L1;
static constexpr auto kEndOfButtonTest = "/q"_L1;
/// What the console keeps of replies that are not erased, the newest.
static constexpr qsizetype kMostConsole = 12 << 20;

MasterScreen::MasterScreen(Session &session, QObject *parent) : Screen(session, u"Master"_s, {kCode}, parent)
{
    connect(&session, &Session::consoleAppended, this, &MasterScreen::watchConsole);
    connect(&session, &Session::statusChanged, this, &MasterScreen::rebuild);
    connect(&session, &Session::languageChanged, this, &MasterScreen::rebuild);
    connect(&session, &Session::portOpened, this, &MasterScreen::clearReadings);
    connect(&session, &Session::modelChanged, this, [this] {
        rebuild();
        if (!m_boundCommand.isEmpty())
            rebind();
    });
    connect(&m_comparison, &ReplyComparison::compared, this, [this] {
        rebuild();
        emit differenceChanged();
        emit readingEnded();
    });
}

void MasterScreen::open()
{
    loadCommands();
    loadMaintenance();
    rebuild();
}

void MasterScreen::setCommand(const QString &text)
{
    m_txtComandos = text;
    rebuild();
}

bool MasterScreen::isSending() const
{
    return session().activeCode() == kCode && session().Status() == "3"_L1;
}

void MasterScreen::Pesquisa(const std::optional<MasterEdits> &unsaved)
{
    if (!unsaved)
        return send();
    session().boxes().ask({caption(u"Salvar"), caption(u"Deseja salvar as alterações?")}, [=, this](Answer answer) {
        if (answer == Answer::Yes)
            saveEdits(*unsaved, [this] { send(); });
        else
            send();
    });
}

void MasterScreen::send()
{
    static constexpr std::array kLongReplies = {"TESTMEMORY --1MB"_L1, "HELP"_L1};
    const QString command = m_txtComandos;
    if (command.trimmed().isEmpty())
        return session().refuse({u"REFUSED_NO_COMMAND"_s});
    if (!transmit(command))
        return;
    m_history.add(command);
    m_longReply = std::ranges::find(kLongReplies, command.toUpper()) != kLongReplies.end();
    rebuild();
    if (command.toUpper() == kButtonTest)
        askToEndButtonTest();
}

bool MasterScreen::transmit(const QString &command, Way way)
{
    if (!(session().*way)(kCode, command))
        return false;
    forgetStray();
    expectReply(command);
    return true;
}

/// From here on nothing on screen is a reply that was compared, and no recording of another command stands beside it.
void MasterScreen::expectReply(const QString &command)
{
    if (!command.isEmpty() && m_boundCommand.compare(command, Qt::CaseInsensitive) != 0)
        bind({}, {});
    forgetReply();
}

void MasterScreen::forgetReply()
{
    m_isStreaming = false;
    m_isFresh = false;
    m_cut = false;
    m_isStopped = false;
    m_reply.clear();
    unjudge();
}

void MasterScreen::unjudge()
{
    m_mark = false;
    m_comparison.forget();
    rebuild();
    emit differenceChanged();
}

/// Another phone may be connected. The recording stays: it may be in the middle of being edited.
void MasterScreen::clearReadings()
{
    forgetStray();
    forgetReply();
    if (m_erases)
        m_txtConsole.clear();
    emit consoleReplaced();
}

/// The phone shows the test on its own screen and answers nothing more until it is told to end it.
void MasterScreen::askToEndButtonTest()
{
    const QString text = caption(u"Resultado do teste estão sendo exibidos na tela do dispositio") + "\r\n"_L1 +
                         caption(u"Clique em OK para finalizar");
    const Question box{caption(u"Teste de Funcionamento de Botões"), text, Question::Choices::Ok};
    session().boxes().ask(box, [this](Answer) { transmit(kEndOfButtonTest, &Session::requestInstead); });
}

void MasterScreen::btParar_Click()
{
    m_isStopped = isSending();
    session().stop(kCode);
}

void MasterScreen::watchConsole(const QString &text)
{
    if (!isSending())
        return;
    if (!std::exchange(m_isStreaming, true))
        emit consoleStarted();
    emit consoleAppended(text);
}

void MasterScreen::take(const Delivery &delivery)
{
    m_longReply = false;
    m_isFresh = !delivery.reply.isEmpty();
    if (!m_isFresh)
        session().refuse({u"IGNORED_EMPTY_REPLY"_s});
    else if (delivery.cut)
        session().refuse({u"REPLY_CUT"_s});
    showReply(delivery);
    bind(delivery.isBound ? delivery.command : QString(), delivery.recording);
    rebuild(); // also where the store then fails
    judgeReply();
}

void MasterScreen::release(Release why, const Delivery &partial)
{
    Q_UNUSED(why)
    m_longReply = false;
    expectReply(partial.command);
    if (partial.reply.isEmpty() && partial.stray.isEmpty())
        emit consoleReplaced();
    else
        showReply(partial);
    compare();
}

/// What is no answer is shown too, but compared with nothing.
void MasterScreen::showReply(const Delivery &delivery)
{
    const auto withoutCommand = [&](QString text) {
        return delivery.command.isEmpty() ? text : text.remove(delivery.command);
    };
    m_cut = delivery.cut;
    m_replyCommand = delivery.command;
    m_reply = withoutCommand(delivery.reply);
    const QString shown = delivery.reply + delivery.stray;
    m_txtConsole = m_erases ? withoutCommand(shown) : withoutCommand(m_txtConsole) + "\r\n"_L1 + shown;
    m_txtConsole = m_txtConsole.right(kMostConsole);
    if (m_showsHistory && delivery.stray.isEmpty() && delivery.command.startsWith("HELP"_L1, Qt::CaseInsensitive)) {
        m_txtHelpAux = m_reply;
        emit helpAuxReplaced();
    }
    emit consoleReplaced();
}

void MasterScreen::bind(const QString &command, const std::optional<KeptRecording> &row)
{
    m_boundCommand = command;
    m_recording = row;
    m_txtComparador = row ? row->recording.dados : QString();
    if (!command.isEmpty())
        m_txtComparador.remove(command);
    emit comparatorReplaced();
}

static bool same(const std::optional<KeptRecording> &one, const std::optional<KeptRecording> &other)
{
    return one.has_value() == other.has_value() && (!one || one->recording == other->recording);
}

/// Looks again for the recording. One that is in view already stays there, and so does what is typed beside it.
void MasterScreen::rebind(const std::function<void()> &then)
{
    const RecordingKey key{session().knownModel(), m_boundCommand};
    const bool mark = m_mark;
    unjudge(); // a look-up that fails leaves nothing judged
    withStore<std::optional<KeptRecording>>(
        Store::Access::Read, [key](Store &store) { return recordingFor(store, key.model, key.command); },
        [this, key, then, mark](const std::optional<KeptRecording> &row) {
            if (key.model != session().knownModel() || key.command != m_boundCommand)
                return;
            if (same(row, m_recording))
                m_mark = mark; // it is about the recording that is in view
            else
                bind(key.command, row);
            compare();
            if (then)
                then();
        });
}

void MasterScreen::judgeReply()
{
    withStore<QStringList>(Store::Access::Read, maskTexts, [this](const QStringList &stored) {
        if (isSending()) // it was waited for, and the next reply is on its way
            return;
        m_masks = withoutMarkers(stored);
        AutoComparador();
        compare();
    });
}

void MasterScreen::AutoComparador()
{
    if (m_longReply)
        return;
    m_mark = !m_cut && standsInRecording(m_txtConsole, m_txtComparador, m_masks);
    rebuild();
}

void MasterScreen::setTolerance(double percent)
{
    m_tolerance = percent;
    compare();
}

void MasterScreen::compare()
{
    m_comparison.compare({isReplyBound() ? m_reply : QString(), m_txtComparador, m_masks, m_tolerance, m_cut});
    if (m_comparison.isRunning())
        rebuild();
}

void MasterScreen::btLimpar_Click()
{
    m_txtConsole.clear();
    m_reply.clear();
    m_mark = false;
    emit consoleReplaced();
    compare();
}
