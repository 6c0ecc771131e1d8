#include "inicial.h"

#include "catalogue.h"
#include "chooserguard.h"
#include "connectionbar.h"
#include "exchangedrawer.h"
#include "findingspanel.h"
#include "icons.h"
#include "modulerail.h"
#include "moduletable.h"
#include "plainlabel.h"
#include "plaintext.h"
#include "reconnector.h"
#include "screentabs.h"
#include "sobre.h"
#include "termsbanner.h"
#include "xidioma.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QStatusBar>
#include <QToolButton>

#include <algorithm>

using namespace Qt::StringLiterals;

static constexpr int kFindingsWidth = 300;
static constexpr int kProgressWidth = 160;
/// How the height is shared when the exchange log is open.
static constexpr int kScreenShare = 500;
static constexpr int kLogShare = 220;

Inicial::Inicial(const WindowParts &parts, QWidget *parent)
    : QMainWindow(parent),
      m_session(parts.session),
      m_log(parts.log),
      m_ports(parts.ports),
      m_connectionBar(new ConnectionBar(parts.session)),
      m_rail(new ModuleRail),
      m_terms(new TermsBanner(parts.session)),
      m_tabs(new ScreenTabs(parts.session)),
      m_splitter(new QSplitter(Qt::Vertical)),
      m_btLog(new QToolButton),
      m_btReconectar(new QToolButton),
      m_reconnector(new Reconnector(parts.session, portsNow, this)),
      m_middle(new QHBoxLayout),
      m_emptyHint(new PlainLabel),
      m_findings(new FindingsPanel),
      m_findingsButton(new QToolButton),
      m_menuButton(new QToolButton),
      m_menu(new QMenu(this)),
      m_notice(new PlainLabel),
      m_progress(new QProgressBar)
{
    setObjectName(u"Inicial"_s);
    setWindowIcon(programIcon());
    new ChooserGuard(this);
    setCentralWidget(content());
    fillStatusBar();
    connectSession();
    connectWindow();
    connectReconnector();
    connect(&parts.log, &ExchangeLog::notWritten, this, &Inicial::showNotice);
    connect(&parts.log, &ExchangeLog::dropped, this, &Inicial::showNotice);
    Traducao_Form_Inicial();
    listPorts();
    resize(1280, 800);
}

/// Screens settle when they are hidden and tell the window: it must still be whole then.
Inicial::~Inicial()
{
    hide();
}

QWidget *Inicial::topRow()
{
    auto *top = new QWidget;
    auto *row = new QHBoxLayout(top);
    row->setContentsMargins(0, 0, Spacing::group, 0);
    row->setSpacing(Spacing::control);
    m_menuButton->setObjectName(u"btMenu"_s);
    m_menuButton->setIcon(lineIcon(u"menu"));
    m_menuButton->setProperty("flat", true);
    m_menuButton->setPopupMode(QToolButton::InstantPopup);
    m_menuButton->setMenu(m_menu);
    m_findingsButton->setObjectName(u"btAchados"_s);
    m_findingsButton->setIcon(switchIcon(u"findings"));
    m_findingsButton->setCheckable(true);
    m_findingsButton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    for (QToolButton *button : {m_findingsButton, m_menuButton})
        button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    row->addWidget(m_connectionBar, 1);
    row->addWidget(m_findingsButton);
    row->addWidget(m_menuButton);
    return top;
}

QWidget *Inicial::content()
{
    m_emptyHint->setAlignment(Qt::AlignCenter);
    m_findings->setFixedWidth(kFindingsWidth);
    m_findings->setAutoFillBackground(true);
    m_middle->setSpacing(0);
    m_middle->addWidget(m_rail);
    m_middle->addWidget(m_emptyHint, 1);
    m_middle->addWidget(m_tabs, 1);
    m_middle->addWidget(m_findings);
    m_middle->setContentsMargins(0, 0, 0, 0);
    auto *middle = new QWidget;
    middle->setLayout(m_middle);
    m_splitter->addWidget(middle);
    m_splitter->setCollapsible(0, false);
    auto *frame = new QWidget;
    auto *layout = new QVBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(topRow());
    layout->addWidget(m_terms);
    layout->addWidget(m_splitter, 1);
    return frame;
}

void Inicial::fillStatusBar()
{
    m_notice->setObjectName(u"St2"_s);
    m_progress->setObjectName(u"St3"_s);
    m_progress->setRange(0, 100);
    m_progress->setMaximumWidth(kProgressWidth);
    m_progress->setTextVisible(false);
    m_progress->hide();
    statusBar()->setContentsMargins(Spacing::group, 0, 0, 0);
    statusBar()->addWidget(m_notice, 1);
    m_btReconectar->setObjectName(u"btReconectar"_s);
    m_btReconectar->hide();
    m_btLog->setObjectName(u"btLog"_s);
    m_btLog->setIcon(switchIcon(u"log"));
    m_btLog->setCheckable(true);
    m_btLog->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    statusBar()->addPermanentWidget(m_progress);
    statusBar()->addPermanentWidget(m_btReconectar);
    statusBar()->addPermanentWidget(m_btLog);
}

void Inicial::connectSession()
{
    connect(&m_session, &Session::statusChanged, this, &Inicial::paintStatus);
    connect(&m_session, &Session::modelChanged, this, &Inicial::paintModel);
    connect(&m_session, &Session::languageChanged, this, &Inicial::Traducao_Form_Inicial);
    connect(&m_session, &Session::portsWanted, this, &Inicial::listPorts);
    connect(&m_session, &Session::refused, this, [this](const Notice &why) { showNotice({why}); });
    connect(&m_session, &Session::storeFailed, this, &Inicial::tellStoreTrouble);
    connect(&m_session, &Session::linkLost, this, [this] { showNotice({{u"LINK_LOST"_s}}); });
    connect(&m_session, &Session::connectionSettled, this, [this] {
        if (m_session.isModelKnown())
            m_notice->clear();
    });
    connect(&m_session, &Session::modelMissing, this, [this] {
        showNotice({{u"REFUSED_NO_MODEL"_s}});
        m_connectionBar->focusModel();
    });
}

void Inicial::connectWindow()
{
    connect(m_connectionBar, &ConnectionBar::portsWanted, this, &Inicial::listPorts);
    connect(m_connectionBar, &ConnectionBar::connectPressed, this, [this] { Botoes_Click(1); });
    connect(m_terms, &TermsBanner::declined, this, &Inicial::close);
    m_rail->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_rail, &ModuleRail::customContextMenuRequested, this,
            [this](const QPoint &place) { m_menu->popup(m_rail->mapToGlobal(place)); });
    connect(m_rail, &ModuleRail::screenPressed, m_tabs, &ScreenTabs::open);
    connect(m_tabs, &ScreenTabs::changed, this, &Inicial::paintTabs);
    connect(m_tabs, &ScreenTabs::changed, this, &Inicial::screensChanged);
    connect(m_tabs, &ScreenTabs::formOpened, this, &Inicial::connectForm);
    connect(new QShortcut(Qt::Key_F3, this), &QShortcut::activated, m_findingsButton, &QToolButton::click);
    connect(m_findings, &FindingsPanel::countChanged, this, &Inicial::paintFindings);
    connect(m_findings, &FindingsPanel::findingChosen, m_tabs, &ScreenTabs::goTo);
    connect(m_btLog, &QToolButton::toggled, this, &Inicial::showLog);
    connect(new QShortcut(Qt::Key_F12, this), &QShortcut::activated, m_btLog, &QToolButton::click);
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
        openAbout();
    else if (const Module *module = moduleOfButton(index))
        openScreen(QString(module->name));
}

void Inicial::openAbout()
{
    auto *about = new Sobre(m_session.language(), m_session.store().path(), this);
    connect(about, &Sobre::importWanted, this, &Inicial::importWanted);
    about->open();
}

void Inicial::connectReconnector()
{
    connect(m_btReconectar, &QToolButton::clicked, m_reconnector, &Reconnector::reconnect);
    connect(m_reconnector, &Reconnector::withdrawn, m_btReconectar, &QToolButton::hide);
    connect(m_reconnector, &Reconnector::offered, this, [this](const QString &device) {
        m_btReconectar->setToolTip(plainToolTip(device));
        m_btReconectar->show();
    });
}

void Inicial::showLog(bool open)
{
    m_btLog->setChecked(open);
    if (open && !m_drawer)
        addDrawer();
    if (m_drawer)
        m_drawer->setVisible(open);
}

/// Made when it is first wanted: most days nobody looks at it, and the start does not wait for it.
void Inicial::addDrawer()
{
    m_drawer = new ExchangeDrawer(m_log);
    m_drawer->Traducao_Form(m_session.language());
    connect(m_drawer, &ExchangeDrawer::saveFailed, this,
            [this](const Trouble &trouble) { m_session.boxes().message(trouble); });
    m_splitter->addWidget(m_drawer);
    m_splitter->setSizes({kScreenShare, kLogShare});
}

void Inicial::askForTerms()
{
    m_terms->showUnlessAccepted();
}

void Inicial::openScreen(const QString &name)
{
    m_tabs->open(name);
}

void Inicial::readScreen(const QString &name)
{
    if (ScreenForm *form = m_tabs->form(name))
        form->screen().read();
}

void Inicial::connectForm(ScreenForm *form)
{
    connect(&form->screen(), &Screen::screenRequested, m_tabs, &ScreenTabs::goTo);
    connect(&form->screen(), &Screen::judged, this, [this, form] { m_findings->add(form->screen().judgements()); });
    connect(&form->screen(), &Screen::panelChanged, this, &Inicial::paintProgress);
    connect(form, &ScreenForm::keepingAsked, this, [this] {
        m_toldTrouble.reset();
        m_notice->clear(); // what failed before says nothing of this try
    });
}

WindowState Inicial::state() const
{
    return {saveGeometry(), m_tabs->names(), m_tabs->frontName(), m_connectionBar->port(), m_theme};
}

/// Moved and cut to where it is seen whole: the screen may be another one than at the last end.
static QRect within(const QRect &room, const QRect &wanted)
{
    const QSize size = wanted.size().boundedTo(room.size());
    const QPoint last = room.topLeft() + QPoint(room.width() - size.width(), room.height() - size.height());
    return {QPoint(std::clamp(wanted.x(), room.x(), last.x()), std::clamp(wanted.y(), room.y(), last.y())), size};
}

void Inicial::keepOnScreen()
{
    if (isMaximized() || isFullScreen())
        return;
    const QRect place = within(screen()->availableGeometry(), {pos(), size()});
    resize(place.size());
    move(place.topLeft()); // of the frame: its title must be in reach
}

void Inicial::restore(const WindowState &state)
{
    m_theme = state.theme;
    restoreGeometry(state.geometry);
    keepOnScreen();
    if (!state.port.isEmpty())
        m_connectionBar->setPort(state.port);
    for (const QString &screen : state.screens)
        openScreen(screen);
    if (!state.front.isEmpty())
        openScreen(state.front);
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
    m_notice->setToolTip(plainToolTip(m_notice->text()));
}

/// Every failure gets the line; a box only the first of its kind, or one that the user's own doing met.
void Inicial::tellStoreTrouble(const Trouble &trouble)
{
    showNotice(trouble);
    if (m_toldTrouble == trouble.what)
        return;
    m_toldTrouble = trouble.what;
    m_session.boxes().message(trouble);
}
