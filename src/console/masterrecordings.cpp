// The part of the console screen that writes recordings, notes, descriptions and masks.

#include "masking.h"
#include "masks.h"
#include "masterscreen.h"
#include "recordingtext.h"

#include <algorithm>

using namespace Qt::StringLiterals;

void MasterScreen::ask(QStringView titleKey, const QString &text, const std::function<void()> &onYes)
{
    session().boxes().ask({caption(titleKey), text}, [onYes](Answer answer) {
        if (answer == Answer::Yes)
            onYes();
    });
}

bool MasterScreen::mayChangeRecording()
{
    if (session().isReady() && session().isModelKnown())
        return true;
    const bool isBusy = session().isConnected() && !session().isReady();
    session().refuse({isBusy                    ? u"REFUSED_BUSY"_s
                      : session().isConnected() ? u"REFUSED_NO_MODEL"_s
                                                : u"REFUSED_NOT_CONNECTED"_s});
    return false;
}

/// A recording is what others are measured by: it is whole, and of the phone that is connected.
bool MasterScreen::mayRecord()
{
    if (!mayChangeRecording())
        return false;
    const bool isReply = m_isFresh && !m_txtConsole.isEmpty() && (isReplyBound() || m_boundCommand.isEmpty());
    if (!isReply)
        session().refuse({u"REFUSED_NO_READING"_s});
    else if (m_cut)
        session().boxes().message({{u"NOT_RECORDED_CUT"_s}});
    return isReply && !m_cut && mayBeStored(m_replyCommand);
}

/// An apostrophe parts texts in the queries of other programs that share the store.
bool MasterScreen::mayBeStored(const QString &command)
{
    if (!command.contains(u'\''))
        return true;
    session().refuse({u"COMMAND_APOSTROPHE"_s});
    return false;
}

void MasterScreen::refuseTyping()
{
    if (!m_boundCommand.isEmpty())
        session().refuse({u"RECORDING_TOO_LONG"_s});
}

/// The store is looked at once more: what is recorded there is never replaced unasked.
void MasterScreen::btSalvar_Click()
{
    if (!mayRecord())
        return;
    m_boundCommand = m_replyCommand;
    rebind([this] {
        if (m_txtComparador.isEmpty())
            return storeReply();
        ask(u"Dados", caption(u"Deseja substituir os dados gravados do lado comparador?"), [this] { storeReply(); });
    });
}

void MasterScreen::storeReply()
{
    Recording recording = m_recording ? m_recording->recording : Recording{session().model(), m_boundCommand, {}};
    recording.dados = m_txtConsole;
    withStore<Done>(
        Store::Access::Write, [recording](Store &store) { return saveRecording(store, recording); },
        [this](const Done &) { rebind([this] { emit recordingSaved(); }); });
}

Recording MasterScreen::recordingWith(const MasterEdits &edits) const
{
    Recording recording = m_recording ? m_recording->recording : Recording{session().model(), m_boundCommand, {}};
    if (edits.recording)
        recording.dados = edited(m_txtComparador, *edits.recording);
    recording.info = edits.notes[0];
    recording.info2 = edits.notes[1];
    recording.info3 = edits.notes[2];
    return recording;
}

static bool holdsAnything(const Recording &recording)
{
    const std::array texts = {recording.dados, recording.info, recording.info2, recording.info3};
    return std::ranges::any_of(texts, [](const QString &text) { return !text.isEmpty(); });
}

void MasterScreen::btSalvarAtualizacoes_Click(const MasterEdits &edits)
{
    if (!mayChangeRecording())
        return;
    if (m_maintains)
        return saveEdits(edits);
    ask(u"Salvar", caption(u"Deseja salvar as alterações?"), [this, edits] { saveEdits(edits); });
}

void MasterScreen::saveEdits(const MasterEdits &edits, const std::function<void()> &then)
{
    if (!mayChangeRecording())
        return;
    const Recording recording = recordingWith(edits);
    const bool writesRecording = !m_boundCommand.isEmpty() && (m_recording || holdsAnything(recording));
    if (writesRecording && !m_recording && !mayBeStored(m_boundCommand))
        return;
    std::optional<CommandRow> row;
    if (const CommandRow *known = rowOf(edits.described))
        row = CommandRow{known->comando, edits.descriptions};
    const auto write = [=](Store &store) -> Result<Done> {
        Result<Transaction> transaction = Transaction::begin(store);
        if (!transaction)
            return transaction.trouble();
        if (writesRecording)
            if (const auto saved = saveRecording(store, *transaction, recording); !saved)
                return saved;
        if (row)
            if (const auto saved = writeDescriptions(store, *row); !saved)
                return saved;
        return transaction->commit();
    };
    withStore<Done>(Store::Access::Write, write, [this, then](const Done &) {
        emit editsSaved();
        loadCommands();
        rebind(then);
    });
}

void MasterScreen::btExcluir_Click()
{
    if (!mayChangeRecording() || m_txtComparador.isEmpty())
        return;
    ask(u"Excluir", caption(u"Deseja excluir os dados gravados?"), [this] {
        const RecordingKey key{session().model(), m_boundCommand};
        withStore<Done>(
            Store::Access::Write, [key](Store &store) { return deleteRecording(store, key); },
            [this](const Done &) { rebind(); });
    });
}

void MasterScreen::Command1_Click(MasterEdits edits)
{
    const QString shown = edits.recording ? edited(m_txtComparador, *edits.recording) : m_txtComparador;
    withStore<QStringList>(Store::Access::Read, maskTexts, [this, edits, shown](const QStringList &stored) {
        MasterEdits maskedEdits = edits;
        maskedEdits.recording = editable(masked(shown, withoutMarkers(stored)));
        btSalvarAtualizacoes_Click(maskedEdits);
    });
}

void MasterScreen::Command2_Click()
{
    session().boxes().input({u"m"_s, caption(u"Digite a m.")}, {}, [this](const QString &typed) {
        if (!typed.isEmpty())
            withStore<Done>(Store::Access::Write, [typed](Store &store) { return addMask(store, typed); }, {});
    });
}
