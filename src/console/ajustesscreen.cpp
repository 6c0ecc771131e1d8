#include "ajustesscreen.h"

#include "commands.h"
#include "masking.h"
#include "masks.h"
#include "recordingtext.h"

using namespace Qt::StringLiterals;

using Side = AjustesScreen::Side;

AjustesScreen::AjustesScreen(Session &session, QObject *parent)
    : Screen(session, u"zAjustes"_s, {}, parent), m_model(u"IP 7"_s), m_command(u"help"_s)
{
    connect(&session, &Session::languageChanged, this, &AjustesScreen::rebuild);
}

const QStringList &AjustesScreen::baseModels()
{
    static const QStringList kModels = {u"IP 6"_s, u"IP 6s"_s, u"IP 7"_s, u"IP 8"_s, u"IP X"_s};
    return kModels;
}

void AjustesScreen::open()
{
    withStore<QList<CommandRow>>(Store::Access::Read, commandRows, [this](const QList<CommandRow> &rows) {
        m_commands.clear();
        for (const CommandRow &row : rows)
            m_commands.append(row.comando);
        emit commandsLoaded();
    });
    load();
}

RecordingKey AjustesScreen::keyOf(Side side) const
{
    return {side == Side::Base ? m_model : m_model + " Plus"_L1, m_command};
}

QString AjustesScreen::recording(Side side) const
{
    return row(side) ? row(side)->recording.dados : QString();
}

void AjustesScreen::select(const QString &model, const QString &command, const std::optional<Edits> &unsaved)
{
    const auto go = [this, model, command] {
        m_model = model;
        m_command = command;
        m_saved = false;
        load();
    };
    if (!unsaved)
        return go();
    const Question box{caption(u"Salvar"), caption(u"Deseja salvar as alterações?")};
    session().boxes().ask(box, [this, go, edits = *unsaved](Answer answer) {
        if (answer == Answer::Yes)
            save(edits, go);
        else
            go();
    });
}

void AjustesScreen::load(const std::function<void()> &then)
{
    using Rows = std::array<std::optional<KeptRecording>, 2>;
    const std::array keys = {keyOf(Side::Base), keyOf(Side::Plus)};
    const auto read = [keys](Store &store) -> Result<Rows> {
        Rows rows;
        for (std::size_t i = 0; i < keys.size(); ++i) {
            const auto row = recordingFor(store, keys[i].model, keys[i].command);
            if (!row)
                return row.trouble();
            rows[i] = *row;
        }
        return rows;
    };
    withStore<Rows>(Store::Access::Read, read, [this, keys, then](const Rows &rows) {
        if (keys[0].model != m_model || keys[0].command != m_command)
            return;
        m_rows = rows;
        rebuild();
        emit recordingsReplaced();
        if (then)
            then();
    });
}

Recording AjustesScreen::changed(Side side, const QString &text) const
{
    Recording recording = row(side)->recording;
    recording.dados = edited(recording.dados, text);
    return recording;
}

/// Only rows that are there are written; an editor without a row takes no text.
void AjustesScreen::save(const Edits &edits, const std::function<void()> &then)
{
    QList<Recording> recordings;
    for (const Side side : {Side::Base, Side::Plus})
        if (const auto &text = edits[static_cast<std::size_t>(side)]; text && row(side))
            recordings.append(changed(side, *text));
    const auto write = [recordings](Store &store) -> Result<Done> {
        Result<Transaction> transaction = Transaction::begin(store);
        if (!transaction)
            return transaction.trouble();
        for (const Recording &recording : recordings)
            if (const auto saved = saveRecording(store, *transaction, recording); !saved)
                return saved;
        return transaction->commit();
    };
    withStore<Done>(Store::Access::Write, write, [then](const Done &) { then(); });
}

void AjustesScreen::btAtualizar_Click(const Edits &edits)
{
    const auto tellSaved = [this] { // behind the texts, for what they change is no edit
        m_saved = true;
        rebuild();
    };
    save(edits, [this, tellSaved] { load(tellSaved); });
}

void AjustesScreen::maskAndSave(Side side, const Edits &edits)
{
    if (!row(side))
        return;
    withStore<QStringList>(Store::Access::Read, maskTexts, [this, side, edits](const QStringList &masks) {
        Edits withMasks = edits;
        std::optional<QString> &text = withMasks[static_cast<std::size_t>(side)];
        text = text ? masked(*text, masks) : editable(masked(recording(side), masks));
        btAtualizar_Click(withMasks);
    });
}

void AjustesScreen::Command2_Click()
{
    session().boxes().input({u"m"_s, caption(u"Digite a m.")}, {}, [this](const QString &typed) {
        if (!typed.isEmpty())
            withStore<Done>(Store::Access::Write, [typed](Store &store) { return addMask(store, typed); }, {});
    });
}

void AjustesScreen::setEdited()
{
    if (std::exchange(m_saved, false))
        rebuild();
}

void AjustesScreen::refuseTyping(Side side)
{
    if (row(side))
        session().refuse({u"RECORDING_TOO_LONG"_s});
}

void AjustesScreen::rebuild()
{
    Panel panel;
    panel.screen = name();
    panel.title = caption(u"Administração de comandos");
    const auto owner = [this](Side side) {
        return row(side) ? row(side)->recording.aparelho
                         : u"%1: %2"_s.arg(keyOf(side).model, caption(u"Dados não localizados"));
    };
    const auto enabled = [this](Side side) { return Field{.enabled = row(side).has_value()}; };
    show(panel, {{u"Label1"_s, {.text = owner(Side::Base)}},
                 {u"Label2"_s, {.text = owner(Side::Plus)}},
                 {u"Command1"_s, enabled(Side::Base)},
                 {u"Command4"_s, enabled(Side::Base)},
                 {u"Command3"_s, enabled(Side::Plus)},
                 {u"Command5"_s, enabled(Side::Plus)},
                 {u"lbSalvo"_s, {.text = m_saved ? caption(u"Salvo ") : QString()}}});
}
