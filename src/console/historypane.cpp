#include "historypane.h"

#include "catalogue.h"
#include "masterscreen.h"
#include "plainlabel.h"
#include "readingform.h"
#include "textpane.h"
#include "theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QToolButton>

using namespace Qt::StringLiterals;

HistoryPane::HistoryPane(MasterScreen &screen, QWidget *parent)
    : QWidget(parent),
      m_screen(screen),
      m_lbHistComandos(named(new PlainLabel, u"lbHistComandos"_s)),
      m_lbHelp(named(new QToolButton, u"lbHelp"_s)),
      m_btCloseHistorico(named(new QPushButton, u"btCloseHistorico"_s)),
      m_listCmd(named(new QListWidget, u"ListCmd"_s)),
      m_txtHelpAux(new TextPane(u"txtHelpAux"_s))
{
    setObjectName(u"FrameHistorico"_s);
    m_lbHelp->setCheckable(true);
    m_listCmd->setFont(tabularFont());
    auto *head = controlRow();
    head->addWidget(m_lbHistComandos);
    head->addStretch();
    head->addWidget(m_lbHelp);
    head->addWidget(m_btCloseHistorico);
    auto *layout = controlColumn(this);
    layout->addLayout(head);
    layout->addWidget(m_listCmd, 1);
    layout->addWidget(m_txtHelpAux, 1);
    connect(m_btCloseHistorico, &QPushButton::clicked, &screen, &MasterScreen::btCloseHistorico_Click);
    connect(m_lbHelp, &QToolButton::clicked, this, [this] {
        m_screen.lbHelp_Click();
        m_listCmd->setFocus();
    });
    const auto choose = [this](QListWidgetItem *item) { m_screen.ListCmd_Click(m_listCmd->row(item)); };
    connect(m_listCmd, &QListWidget::itemClicked, this, choose);
    connect(m_listCmd, &QListWidget::itemActivated, this, choose);
    connect(&screen, &MasterScreen::helpAuxReplaced, this,
            [this] { m_txtHelpAux->replaceWith(m_screen.txtHelpAux()); });
}

void HistoryPane::Traducao_Form()
{
    const auto text = [this](QStringView key) { return caption(key, m_screen.session().language()); };
    m_lbHistComandos->setText(text(u"Histórico de Comandos"));
    m_listCmd->setAccessibleName(text(u"Histórico de Comandos"));
    m_lbHelp->setText(text(u"HELP"));
    m_txtHelpAux->setAccessibleName(text(u"HELP"));
    m_btCloseHistorico->setText(text(u"Fechar"));
}

void HistoryPane::showCommands(const QStringList &commands)
{
    if (m_listCmd->count() == commands.size())
        return;
    m_listCmd->clear();
    m_listCmd->addItems(commands);
}
