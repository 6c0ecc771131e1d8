#pragma once

#include "commandhistory.h"
#include "commands.h"
#include "replycomparison.h"
#include "screen.h"

/// What a person has typed beside the replies and not saved yet.
struct MasterEdits
{
    std::optional<QString> recording = {}; ///< as the editor holds it; nothing when it was left alone
    std::array<QString, 3> notes = {};
    QString described = {}; ///< the command that the descriptions are about; empty when they were left alone
    std::array<QString, 3> descriptions = {};
};

/// Any command line, its reply, and what a known-good phone of this model answered to it.
class MasterScreen : public Screen
{
    Q_OBJECT

public:
    explicit MasterScreen(Session &session, QObject *parent = nullptr);

    void open() override;
    void read() override { Pesquisa(); }
    bool hasReading() const override { return m_isFresh; }

    /// The command line as it is typed.
    void setCommand(const QString &text);
    const QString &txtComandos() const { return m_txtComandos; }
    void setErasing(bool erases) { m_erases = erases; } ///< `ckLimpar`
    void setTolerance(double percent);

    /// The console and the recording as the phone sent them, less the command line.
    const QString &txtConsole() const { return m_txtConsole; }
    const QString &txtComparador() const { return m_txtComparador; }
    const QString &txtHelpAux() const { return m_txtHelpAux; }
    const std::optional<KeptRecording> &recording() const { return m_recording; }
    /// The command that the recorded view is bound to; empty before the first reply.
    const QString &boundCommand() const { return m_boundCommand; }
    const QList<CommandRow> &commands() const { return m_commands; }
    /// The row of a command line, or none.
    const CommandRow *rowOf(const QString &command) const;
    const ReplyDifference &difference() const { return m_comparison.found(); }
    bool isComparing() const { return m_comparison.isRunning(); }
    bool autoComparador() const { return m_mark; }
    bool isCut() const { return m_cut; }
    /// What the difference comes to, in words.
    QString summary() const;

    /// Sends the command line; edits that are not saved are asked for first.
    void Pesquisa(const std::optional<MasterEdits> &unsaved = {});
    void btSend_Click(const std::optional<MasterEdits> &unsaved = {}) { Pesquisa(unsaved); }
    void btParar_Click();
    void btLimpar_Click();
    /// Up and Down in the command line.
    void older();
    void newer();

    void btRecent_Click();
    void btRecent_RightClick();
    void btCloseHistorico_Click();
    void ListCmd_Click(int place);
    void lbHelp_Click();
    /// The list of commands has changed.
    void loadCommands();
    void btHelp_Click();
    void btHelpPdf_Click();
    void btNovo_Click();
    void btApagar_Click();
    void btDesligar_Click();
    void btReiniciar_Click();

    void btSalvar_Click();
    void btSalvarAtualizacoes_Click(const MasterEdits &edits);
    void btExcluir_Click();
    void Command1_Click(MasterEdits edits);
    void Command2_Click();

    /// Something was typed into a recording that is only shown: why that is so.
    void refuseTyping();

    /// Shows or hides the mark of a reply that stands in the recording.
    void AutoComparador();

    void take(const Delivery &delivery) override;
    void resume() override {}
    void release(Release why, const Delivery &partial) override;

signals:
    /// The command line is to show this.
    void commandChosen(const QString &text);
    void commandsLoaded();
    /// A reply begins to arrive; what it grows by follows, until the console is replaced.
    void consoleStarted();
    void consoleAppended(const QString &text);
    void consoleReplaced();
    void comparatorReplaced();
    void helpAuxReplaced();
    void differenceChanged();
    /// What was typed beside the replies is in the store.
    void editsSaved();
    /// The row is in the store and was read back.
    void recordingSaved();
    /// The help window is to show this text.
    void helpWanted(const QString &text);

private:
    /// How a command goes out: behind the one before, or in its place.
    using Way = bool (Session::*)(const QString &code, const QString &command);

    void send();
    bool transmit(const QString &command, Way way = &Session::request);
    void expectReply(const QString &command);
    void forgetReply();
    void unjudge();
    void clearReadings();
    void askToEndButtonTest();
    void watchConsole(const QString &text);
    void showReply(const Delivery &delivery);
    void bind(const QString &command, const std::optional<KeptRecording> &row);
    void rebind(const std::function<void()> &then = {});
    bool isReplyBound() const { return m_boundCommand == m_replyCommand; }
    void judgeReply();
    void compare();
    void rebuild();
    QMap<QString, Field> state() const;
    QMap<QString, Field> historyState() const;
    QMap<QString, Field> warningState() const;
    QMap<QString, Field> languageState() const;
    bool isSending() const;

    void loadMaintenance();
    bool mayChangeList();
    void sendAfter(QStringView key, const QString &command);

    bool mayChangeRecording();
    bool mayRecord();
    bool mayBeStored(const QString &command);
    void storeReply();
    void saveEdits(const MasterEdits &edits, const std::function<void()> &then = {});
    Recording recordingWith(const MasterEdits &edits) const;
    void ask(QStringView titleKey, const QString &text, const std::function<void()> &onYes);

    QString m_txtComandos;
    CommandHistory m_history;
    QList<CommandRow> m_commands;
    bool m_erases = true;
    bool m_maintains = false;

    QString m_txtConsole;
    QString m_reply; ///< the last one alone
    QString m_replyCommand;
    bool m_cut = false;
    bool m_isStopped = false; ///< by the person, before its end
    bool m_isFresh = false;   ///< of the phone that is connected now
    bool m_longReply = false;
    bool m_isStreaming = false;

    QString m_boundCommand;
    std::optional<KeptRecording> m_recording;
    QString m_txtComparador;
    QStringList m_masks;
    bool m_mark = false;
    double m_tolerance = 0;
    ReplyComparison m_comparison;

    bool m_showsHistory = false;
    bool m_showsHelpAux = false;
    QString m_txtHelpAux;
};
