// The part of the console screen that keeps the command list, the history and the help.

#include "guides.h"
#include "helpprefix.h"
#include "masterscreen.h"
#include "settings.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

void MasterScreen::loadCommands()
{
    withStore<QList<CommandRow>>(Store::Access::Read, commandRows, [this](const QList<CommandRow> &rows) {
        m_commands = rows;
        rebuild();
        emit commandsLoaded();
    });
}

void MasterScreen::loadMaintenance()
{
    withStore<QString>(
        Store::Access::Read, [](Store &store) { return setting(store, u"maintenance"_s); },
        [this](const QString &value) {
            m_maintains = value == "on"_L1;
            rebuild();
        });
}

const CommandRow *MasterScreen::rowOf(const QString &command) const
{
    const auto row = std::ranges::find_if(m_commands, [&command](const CommandRow &known) {
        return known.comando.compare(command, Qt::CaseInsensitive) == 0;
    });
    return row == m_commands.end() ? nullptr : &*row;
}

void MasterScreen::older()
{
    emit commandChosen(m_history.older(m_txtComandos));
}

void MasterScreen::newer()
{
    emit commandChosen(m_history.newer(m_txtComandos));
}

void MasterScreen::ListCmd_Click(int place)
{
    if (place >= 0 && place < m_history.sent().size())
        emit commandChosen(m_history.sent()[place]);
}

void MasterScreen::btRecent_Click()
{
    m_showsHistory = !m_showsHistory;
    rebuild();
}

void MasterScreen::btCloseHistorico_Click()
{
    m_showsHistory = false;
    rebuild();
}

void MasterScreen::btRecent_RightClick()
{
    emit commandChosen(helpToggled(m_txtComandos));
}

void MasterScreen::lbHelp_Click()
{
    m_showsHelpAux = !m_showsHelpAux;
    rebuild();
}

/// What was recorded is there at once; a phone that is connected is asked by the help window itself.
void MasterScreen::btHelp_Click()
{
    emit commandChosen(u"Help"_s);
    m_mark = false;
    m_boundCommand = u"Help"_s;
    m_recording.reset();
    m_txtComparador.clear();
    rebind([this] { emit helpWanted(m_txtComparador); });
}

void MasterScreen::btHelpPdf_Click()
{
    const QString home = QFileInfo(session().store().path()).path();
    const Result<QString> path = guide(home, commandReference(session().language()));
    if (path)
        session().openDocument(*path);
    else
        session().boxes().message(path.trouble());
}

/// While the connected phone's model is asked for, nothing is changed.
bool MasterScreen::mayChangeList()
{
    if (!session().isConnected() || session().isModelKnown())
        return true;
    session().refuse({u"REFUSED_NO_MODEL"_s});
    return false;
}

void MasterScreen::btNovo_Click()
{
    if (!mayChangeList())
        return;
    const Question box{caption(u"Novo Comando"), caption(u"Digite o comando a ser gravado:")};
    session().boxes().input(box, m_txtComandos, [this](const QString &typed) {
        if (typed.isEmpty())
            return;
        if (typed.contains(u'\''))
            return session().refuse({u"COMMAND_APOSTROPHE"_s});
        withStore<Done>(
            Store::Access::Write, [typed](Store &store) { return addCommand(store, typed); },
            [this, typed](const Done &) {
                loadCommands();
                emit commandChosen(typed);
            });
    });
}

void MasterScreen::btApagar_Click()
{
    const QString command = m_txtComandos;
    if (command.isEmpty() || !mayChangeList())
        return;
    const QString text = caption(u"Deseja excluir o comando ") + command + "  ?"_L1;
    ask(u"Excluir Comando", text, [this, command] {
        withStore<Done>(
            Store::Access::Write, [command](Store &store) { return deleteCommand(store, command); },
            [this](const Done &) { loadCommands(); });
    });
}

void MasterScreen::sendAfter(QStringView key, const QString &command)
{
    session().boxes().ask({caption(key), caption(key)}, [this, command](Answer answer) {
        if (answer != Answer::No)
            transmit(command);
    });
}

void MasterScreen::btDesligar_Click()
{
    sendAfter(u"Desligar Dispositivo", u"Shutdown"_s);
}

void MasterScreen::btReiniciar_Click()
{
    sendAfter(u"Reiniciar Dispositivo", u"Reset"_s);
}
