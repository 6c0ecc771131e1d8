// What the main window shows of its state: status line, model, findings, menu, captions.

#include "inicial.h"

#include "catalogue.h"
#include "connectionbar.h"
#include "exchangedrawer.h"
#include "findingspanel.h"
#include "icons.h"
#include "modulerail.h"
#include "plaintext.h"
#include "reportdialog.h"
#include "screentabs.h"
#include "termsbanner.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QToolButton>

using namespace Qt::StringLiterals;

/// Narrower windows keep the findings folded to a count.
static constexpr int kFindingsFrom = 1600;

void Inicial::paintStatus()
{
    setWindowTitle(m_session.windowCaption());
    if (m_session.Status() == "3"_L1)
        m_notice->clear(); // what was refused before is settled by what is sent now
    m_emptyHint->setText(m_session.isConnected() ? text(u"DICA_TELA")
                                                 : text(u"DICA_CONECTAR") + u'\n' + text(u"DICA_TELA"));
    paintProgress();
}

/// How far the screen in front is, while a command is in flight.
void Inicial::paintProgress()
{
    const ScreenForm *form = m_tabs->frontForm();
    const Field bar = form ? form->screen().panel().fields.value(u"Barra"_s) : Field();
    m_progress->setValue(bar.value.value_or(0));
    m_progress->setVisible(m_session.Status() == "3"_L1 && bar.value);
}

/// Another phone's faults are no findings on this one.
void Inicial::paintModel()
{
    if (m_session.isModelKnown() && m_session.model() != m_foundOn) {
        m_foundOn = m_session.model();
        m_notice->clear();
        m_findings->clear();
    }
    paintTabs();
}

void Inicial::paintTabs()
{
    m_rail->mark(m_tabs->frontName());
    m_rail->Traducao_Form(m_session.language(), m_session.model());
    m_tabs->Traducao_Form();
    m_tabs->setVisible(m_tabs->count() > 0);
    m_emptyHint->setVisible(m_tabs->count() == 0);
    paintProgress();
}

void Inicial::paintFindings()
{
    const QString shown = u"%1: %2"_s.arg(text(u"Achados")).arg(m_findings->count());
    m_findingsButton->setText(shown);
    m_findingsButton->setToolTip(plainToolTip(shown + "  (F3)"_L1));
}

/// In a small window the list lies over the screen, which keeps its width.
void Inicial::layFindingsOver()
{
    m_middle->removeWidget(m_findings);
    const QSize room = m_findings->parentWidget()->size();
    const int width = m_findings->minimumWidth();
    m_findings->setGeometry(room.width() - width, 0, width, room.height());
    m_findings->raise();
}

void Inicial::foldFindings()
{
    const bool wide = width() >= kFindingsFrom;
    m_findingsButton->setVisible(!wide);
    m_findings->setVisible(wide || m_findingsOpened);
    if (wide)
        m_middle->addWidget(m_findings);
    else
        layFindingsOver();
}

void Inicial::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    foldFindings();
}

void Inicial::buildMenu()
{
    static constexpr std::array<std::pair<ThemeChoice, QStringView>, 3> kThemes = {
        {{ThemeChoice::Desktop, u"Tema do sistema"}, {ThemeChoice::Light, u"Claro"}, {ThemeChoice::Dark, u"Escuro"}}};
    m_menu->clear();
    m_menu->addAction(lineIcon(u"language"), text(u"Idioma"), this, [this] { Botoes_Click(10); })
        ->setObjectName(u"Botoes(10)"_s);
    QMenu *themes = m_menu->addMenu(lineIcon(u"theme"), text(u"Tema"));
    for (const auto &[choice, key] : kThemes)
        themes->addAction(text(key), this, [this, chosen = choice] { retheme(chosen); })
            ->setObjectName(u"Tema(%1)"_s.arg(static_cast<int>(choice)));
    m_menu
        ->addAction(lineIcon(u"pdf"), text(u"Relatórios"), this,
                    [this] { (new ReportDialog(m_session, this))->open(); })
        ->setObjectName(u"btRelatorios"_s);
    m_menu->addSeparator();
    m_menu->addAction(lineIcon(u"about"), text(u"Sobre"), this, [this] { Botoes_Click(12); })
        ->setObjectName(u"Botoes(12)"_s);
    m_menu->addAction(text(u"Sair"), QKeySequence(QKeySequence::Quit), this, &Inicial::close);
}

void Inicial::retheme(ThemeChoice choice)
{
    applyTheme(choice);
    applyStyleSheet(*qApp);
    m_tabs->paintAgain();
    m_theme = choice;
    emit themeChosen();
}

void Inicial::Traducao_Form_Inicial()
{
    m_connectionBar->Traducao_Form();
    m_terms->Traducao_Form();
    m_findings->Traducao_Form(m_session.language());
    m_menuButton->setToolTip(plainToolTip(text(u"Ferramentas")));
    m_menuButton->setAccessibleName(text(u"Ferramentas"));
    if (m_drawer)
        m_drawer->Traducao_Form(m_session.language());
    m_btReconectar->setText(text(u"Reconectar"));
    m_btLog->setText(text(u"Registro da comunicação"));
    m_btLog->setToolTip(plainToolTip(text(u"Registro da comunicação") + "  (F12)"_L1));
    buildMenu();
    paintStatus();
    paintTabs();
    paintFindings();
}
