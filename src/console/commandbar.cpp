#include "commandbar.h"

#include "catalogue.h"
#include "commandline.h"
#include "icons.h"
#include "masterscreen.h"
#include "plaintext.h"
#include "readingform.h"
#include "theme.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Whether a button writes into the store.
enum class Writes
{
    No,
    Yes
};

/// A small button of the command row: its name, picture, caption and what it does.
struct Tool
{
    QStringView name;
    QStringView icon;
    QStringView key;
    void (MasterScreen::*clicked)();
    Writes writes = Writes::No;
    void (MasterScreen::*rightClicked)() = nullptr;
};

constexpr std::array kTools = {
    Tool{u"btRecent", u"log", u"Visualizar todos os comandos", &MasterScreen::btRecent_Click, Writes::No,
         &MasterScreen::btRecent_RightClick},
    Tool{u"btHelp", u"help", u"Ajuda", &MasterScreen::btHelp_Click},
    Tool{u"btHelpPdf", u"about", u"Help PDF", &MasterScreen::btHelpPdf_Click},
    Tool{u"btNovo", u"save", u"Adicionar Comando", &MasterScreen::btNovo_Click, Writes::Yes},
    Tool{u"btApagar", u"delete", u"Excluir Comando", &MasterScreen::btApagar_Click, Writes::Yes},
    Tool{u"btDesligar", u"disconnect", u"Desligar Dispositivo", &MasterScreen::btDesligar_Click},
    Tool{u"btReiniciar", u"refresh", u"Reiniciar Dispositivo", &MasterScreen::btReiniciar_Click},
};

} // namespace

CommandBar::CommandBar(MasterScreen &screen, QWidget *parent)
    : QWidget(parent),
      m_screen(screen),
      m_txtComandos(new CommandLine(u"txtComandos"_s)),
      m_btSend(named(new QPushButton, u"btSend"_s)),
      m_btParar(named(new QPushButton, u"btParar"_s))
{
    m_btSend->setProperty("primary", true);
    auto *column = controlColumn(this);
    column->setSpacing(Spacing::control);
    column->addWidget(commandRow());
    column->addWidget(descriptionRow());
    connect(m_txtComandos, &QComboBox::editTextChanged, this, [this](const QString &text) {
        m_screen.setCommand(text);
        showDescription();
    });
    connect(m_txtComandos, &CommandLine::olderWanted, &screen, &MasterScreen::older);
    connect(m_txtComandos, &CommandLine::newerWanted, &screen, &MasterScreen::newer);
    connect(m_txtComandos, &CommandLine::sendWanted, this, &CommandBar::sendWanted);
    connect(&screen, &MasterScreen::commandChosen, this, &CommandBar::showCommandLine);
    connect(&screen, &MasterScreen::commandsLoaded, this, &CommandBar::showCommands);
    connectButtons();
}

QWidget *CommandBar::commandRow()
{
    auto *widget = new QWidget;
    auto *row = controlRow(widget);
    row->addWidget(m_txtComandos, 1);
    row->addWidget(m_btSend);
    row->addWidget(m_btParar);
    for (std::size_t i = 0; i < kTools.size(); ++i) {
        m_tools[i] = named(new QToolButton, kTools[i].name.toString());
        row->addWidget(m_tools[i]);
    }
    return widget;
}

QWidget *CommandBar::descriptionRow()
{
    static constexpr std::array kNames = {"txtInfoComandos"_L1, "txtInfoComandos2"_L1, "txtInfoComandos3"_L1};
    auto *widget = new QWidget;
    auto *row = controlRow(widget);
    for (std::size_t i = 0; i < kNames.size(); ++i) {
        m_txtInfoComandos[i] = named(new QLineEdit, kNames[i]);
        row->addWidget(m_txtInfoComandos[i]);
    }
    return widget;
}

void CommandBar::connectButtons()
{
    connect(m_btSend, &QPushButton::clicked, this, &CommandBar::sendWanted);
    connect(m_btParar, &QPushButton::clicked, &m_screen, &MasterScreen::btParar_Click);
    for (std::size_t i = 0; i < kTools.size(); ++i) {
        if (kTools[i].writes == Writes::Yes)
            connect(m_tools[i], &QToolButton::clicked, this, &CommandBar::keepingAsked);
        connect(m_tools[i], &QToolButton::clicked, &m_screen, kTools[i].clicked);
        if (!kTools[i].rightClicked)
            continue;
        m_tools[i]->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(m_tools[i], &QToolButton::customContextMenuRequested, &m_screen, kTools[i].rightClicked);
    }
}

void CommandBar::showCommandLine(const QString &text)
{
    m_txtComandos->setEditText(text);
    m_txtComandos->setFocus();
}

void CommandBar::focusCommandLine()
{
    m_txtComandos->setFocus();
}

void CommandBar::showCommands()
{
    m_txtComandos->setCommands(m_screen.commands(), m_screen.session().language());
    showDescription();
}

bool CommandBar::isEdited() const
{
    return std::ranges::any_of(m_txtInfoComandos, &QLineEdit::isModified);
}

/// What is typed into a description stays until it is saved, whatever command is typed meanwhile.
void CommandBar::showDescription()
{
    if (isEdited())
        return;
    const CommandRow *row = m_screen.rowOf(m_screen.txtComandos());
    m_described = row ? row->comando : QString();
    for (std::size_t i = 0; i < m_txtInfoComandos.size(); ++i) {
        m_txtInfoComandos[i]->setText(row ? row->info[i] : QString());
        m_txtInfoComandos[i]->setEnabled(row != nullptr);
    }
}

void CommandBar::addEdits(MasterEdits &edits) const
{
    if (isEdited())
        edits.described = m_described;
    for (std::size_t i = 0; i < m_txtInfoComandos.size(); ++i)
        edits.descriptions[i] = m_txtInfoComandos[i]->text();
}

void CommandBar::setSaved()
{
    for (QLineEdit *box : m_txtInfoComandos)
        box->setModified(false);
}

void CommandBar::Traducao_Form()
{
    const auto text = [this](QStringView key) { return caption(key, m_screen.session().language()); };
    m_txtComandos->setAccessibleName(text(u"Comandos"));
    m_txtComandos->lineEdit()->setPlaceholderText(text(u"Digite ou seleciona na lista suspença o comando desejado"));
    m_btSend->setText(text(u"Executar"));
    m_btSend->setToolTip(plainToolTip(text(u"Executar Comando") + "  (F5)"_L1));
    m_btParar->setText(text(u"Parar"));
    m_btParar->setToolTip(plainToolTip(text(u"Parar") + "  (Esc)"_L1));
    for (std::size_t i = 0; i < kTools.size(); ++i) {
        m_tools[i]->setIcon(lineIcon(kTools[i].icon));
        m_tools[i]->setToolTip(plainToolTip(text(kTools[i].key)));
        m_tools[i]->setAccessibleName(text(kTools[i].key));
    }
    for (QLineEdit *box : m_txtInfoComandos) {
        box->setPlaceholderText(text(u"Descrição do comando"));
        box->setAccessibleName(text(u"Descrição do comando"));
    }
    if (!m_screen.commands().isEmpty())
        showCommands();
}
