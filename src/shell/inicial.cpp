#include "inicial.h"

#include "catalogue.h"
#include "connectionbar.h"
#include "findingspanel.h"
#include "icons.h"
#include "modulerail.h"
#include "moduletable.h"
#include "plannedform.h"
#include "sobre.h"
#include "xidioma.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

using namespace Qt::StringLiterals;

/// Narrower windows keep the findings folded to a count.
static constexpr int kFindingsFrom = 1600;
static constexpr int kFindingsWidth = 300;

Inicial::Inicial(Session &session, std::function<QList<PortEntry>()> ports, QWidget *parent)
    : QMainWindow(parent),
      m_session(session),
      m_ports(std::move(ports)),
      m_connectionBar(new ConnectionBar(session)),
      m_rail(new ModuleRail),
      m_tabs(new QTabWidget),
      m_emptyHint(new QLabel),
      m_findings(new FindingsPanel),
      m_findingsButton(new QToolButton),
      m_menuButton(new QToolButton),
      m_menu(new QMenu(this)),
      m_notice(new QLabel),
      m_progress(new QProgressBar)
{
    setObjectName(u"Inicial"_s);
    setWindowIcon(programIcon());
    setCentralWidget(content());
    fillStatusBar();
    connectSession();
    connectWindow();
    Traducao_Form_Inicial();
    listPorts();
    resize(1280, 800);
}

QWidget *Inicial::topRow()
{
    auto *top = new QWidget;
    auto *row = new QHBoxLayout(top);
    row->setContentsMargins(0, 0, Spacing::control, 0);
    m_menuButton->setObjectName(u"btMenu"_s);
    m_menuButton->setPopupMode(QToolButton::InstantPopup);
    m_menuButton->setMenu(m_menu);
    m_findingsButton->setObjectName(u"btAchados"_s);
    m_findingsButton->setCheckable(true);
    m_findingsButton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    row->addWidget(m_connectionBar, 1);
    row->addWidget(m_findingsButton);
    row->addWidget(m_menuButton);
    return top;
}

QWidget *Inicial::content()
{
    m_tabs->setObjectName(u"Abas"_s);
    m_tabs->setTabsClosable(true);
    m_tabs->setMovable(true);
    m_tabs->setDocumentMode(true);
    m_emptyHint->setAlignment(Qt::AlignCenter);
    m_findings->setFixedWidth(kFindingsWidth);
    auto *middle = new QHBoxLayout;
    middle->setSpacing(0);
    middle->addWidget(m_rail);
    middle->addWidget(m_emptyHint, 1);
    middle->addWidget(m_tabs, 1);
    middle->addWidget(m_findings);
    auto *frame = new QWidget;
    auto *layout = new QVBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(topRow());
    layout->addLayout(middle, 1);
    return frame;
}

void Inicial::fillStatusBar()
{
    m_notice->setObjectName(u"St2"_s);
    m_notice->setTextFormat(Qt::PlainText);
    m_progress->setObjectName(u"St3"_s);
    m_progress->setRange(0, 0);
    m_progress->setMaximumWidth(160);
    m_progress->setTextVisible(false);
    m_progress->hide();
    statusBar()->addWidget(m_notice, 1);
    statusBar()->addPermanentWidget(m_progress);
}

void Inicial::connectSession()
{
    connect(&m_session, &Session::statusChanged, this, &Inicial::paintStatus);
    connect(&m_session, &Session::modelChanged, this, &Inicial::paintTabs);
    connect(&m_session, &Session::languageChanged, this, &Inicial::Traducao_Form_Inicial);
    connect(&m_session, &Session::portsWanted, this, &Inicial::listPorts);
    connect(&m_session, &Session::refused, this, [this](const Notice &why) { showNotice({why}); });
    connect(&m_session, &Session::storeFailed, this, &Inicial::showNotice);
    connect(&m_session, &Session::linkLost, this, [this] { showNotice({{u"LINK_LOST"_s}}); });
    connect(&m_session, &Session::connectionSettled, this, [this] { m_notice->clear(); });
    connect(&m_session, &Session::modelMissing, this, [this] {
        showNotice({{u"REFUSED_NO_MODEL"_s}});
        m_connectionBar->focusModel();
    });
}

void Inicial::connectWindow()
{
    connect(m_connectionBar, &ConnectionBar::portsWanted, this, &Inicial::listPorts);
    connect(m_connectionBar, &ConnectionBar::connectPressed, this, [this] { Botoes_Click(1); });
    connect(m_rail, &ModuleRail::screenPressed, this, &Inicial::openScreen);
    connect(m_tabs, &QTabWidget::currentChanged, this, &Inicial::paintTabs);
    connect(m_tabs, &QTabWidget::tabCloseRequested, this, &Inicial::closeTab);
    connect(m_findings, &FindingsPanel::countChanged, this, &Inicial::paintFindings);
    connect(m_findings, &FindingsPanel::findingChosen, this, [this](const QString &screen) { openScreen(screen); });
    connect(m_findingsButton, &QToolButton::toggled, this, [this](bool opened) {
        m_findingsOpened = opened;
        foldFindings();
    });
}

void Inicial::Botoes_Click(int index)
{
    if (index == 1)
        m_session.connectOrDisconnect(m_connectionBar->port());
    else if (index == 10)
        (new xIdioma(m_session, this))->open();
    else if (index == 12)
        (new Sobre(m_session.language(), m_session.store().path(), this))->open();
    else if (const Module *module = moduleOfButton(index))
        openScreen(QString(module->name));
}

void Inicial::openScreen(const QString &name)
{
    if (!m_tabs->findChild<QWidget *>(name))
        addForm(name);
    m_tabs->setCurrentWidget(m_tabs->findChild<QWidget *>(name));
    paintTabs();
}

void Inicial::addForm(const QString &name)
{
    const Module *module = moduleNamed(name);
    if (!module)
        return;
    ScreenForm *form = makeForm(name, m_session);
    QWidget *page = form ? static_cast<QWidget *>(form) : new PlannedForm(*module, m_session);
    m_tabs->addTab(page, text(module->caption));
    if (!form)
        return;
    form->CarregaDados();
    connect(&form->screen(), &Screen::screenRequested, this, &Inicial::openScreen);
    connect(&form->screen(), &Screen::readingEnded, this,
            [this, form] { m_findings->add(form->screen().reading().judgements); });
}

void Inicial::readScreen(const QString &name)
{
    if (auto *form = m_tabs->findChild<ScreenForm *>(name))
        form->screen().read();
}

void Inicial::closeTab(int index)
{
    QWidget *page = m_tabs->widget(index);
    m_tabs->removeTab(index);
    delete page; // at once: its screen must not take a late reply
    paintTabs();
}

void Inicial::listPorts()
{
    m_connectionBar->listPorts(m_ports());
}

QString Inicial::text(QStringView key) const
{
    return caption(key, m_session.language());
}

void Inicial::showNotice(const Trouble &trouble)
{
    QStringList lines;
    for (const Notice &notice : QList<Notice>{trouble.what} + trouble.remedies)
        if (const auto shown = message(notice, m_session.language()))
            lines += shown->lines;
    m_notice->setText(lines.join(u' ').simplified());
    m_notice->setToolTip(m_notice->text());
}

void Inicial::paintStatus()
{
    setWindowTitle(m_session.windowCaption());
    m_progress->setVisible(m_session.Status() == "3"_L1 || m_session.Status() == "2"_L1);
}

void Inicial::paintTabs()
{
    const QWidget *current = m_tabs->currentWidget();
    m_rail->mark(current ? current->objectName() : QString());
    m_rail->Traducao_Form(m_session.language(), m_session.model());
    for (int i = 0; i < m_tabs->count(); ++i) {
        const Module *module = moduleNamed(m_tabs->widget(i)->objectName());
        m_tabs->setTabText(i, text(module->caption));
        m_tabs->setTabIcon(i, lineIcon(QString(module->icon)));
    }
    m_tabs->setVisible(m_tabs->count() > 0);
    m_emptyHint->setVisible(m_tabs->count() == 0);
}

void Inicial::paintFindings()
{
    m_findingsButton->setText(u"%1: %2"_s.arg(text(u"Achados")).arg(m_findings->count()));
}

void Inicial::foldFindings()
{
    const bool wide = width() >= kFindingsFrom;
    m_findingsButton->setVisible(!wide);
    m_findings->setVisible(wide || m_findingsOpened);
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
        themes->addAction(text(key), this, [this, chosen = choice] { retheme(chosen); });
    m_menu->addSeparator();
    m_menu->addAction(lineIcon(u"about"), text(u"Sobre"), this, [this] { Botoes_Click(12); })
        ->setObjectName(u"Botoes(12)"_s);
    m_menu->addAction(text(u"Sair"), QKeySequence(QKeySequence::Quit), this, &Inicial::close);
}

void Inicial::retheme(ThemeChoice choice)
{
    applyTheme(*qApp, choice);
    emit m_session.languageChanged(); // icons and colours are made anew with the captions
}

void Inicial::Traducao_Form_Inicial()
{
    m_connectionBar->Traducao_Form();
    m_findings->Traducao_Form(m_session.language());
    m_findingsButton->setIcon(lineIcon(u"findings"));
    m_menuButton->setText(u"☰"_s);
    m_menuButton->setToolTip(text(u"Ferramentas"));
    m_menuButton->setAccessibleName(text(u"Ferramentas"));
    m_emptyHint->setText(text(u"DICA_CONECTAR") + u'\n' + text(u"DICA_TELA"));
    buildMenu();
    paintStatus();
    paintTabs();
    paintFindings();
}
