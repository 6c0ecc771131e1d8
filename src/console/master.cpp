#include "master.h"

#include "commandbar.h"
#include "comparatorpane.h"
#include "comparisonhead.h"
#include "consolepane.h"
#include "differenceview.h"
#include "findbar.h"
#include "fmhelp.h"
#include "historypane.h"
#include "plainlabel.h"
#include "plaintext.h"
#include "readingform.h"
#include "savedialog.h"
#include "textpane.h"
#include "theme.h"
#include "wholefile.h"

#include <QAbstractButton>
#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>

using namespace Qt::StringLiterals;

/// Both sides begin alike; the splitter shares what there is.
static constexpr int kHalf = 10000;

Master::Master(Session &session, QWidget *parent)
    : ScreenForm(std::make_unique<MasterScreen>(session), parent),
      m_master(static_cast<MasterScreen &>(screen())),
      m_head(new ComparisonHead),
      m_command(new CommandBar(m_master))
{
    auto *page = pageColumn(this);
    page->addWidget(m_head);
    page->addWidget(m_command);
    page->addWidget(panes(), 1);
    page->addWidget(footRow());
    connectCommand();
    connectComparator();
    connectDifferences();
    connectKeys();
}

void Master::showEvent(QShowEvent *event)
{
    ScreenForm::showEvent(event);
    m_command->focusCommandLine();
}

QWidget *Master::panes()
{
    m_console = new ConsolePane(m_master);
    m_comparator = new ComparatorPane(m_master);
    m_history = new HistoryPane(m_master);
    auto *right = new QWidget;
    auto *rightLayout = controlRow(right);
    rightLayout->addWidget(m_comparator);
    rightLayout->addWidget(m_history);
    m_hScroll1 = named(new QSplitter, u"HScroll1"_s);
    m_hScroll1->setChildrenCollapsible(false);
    m_hScroll1->addWidget(m_console);
    m_hScroll1->addWidget(right);
    for (const int side : {0, 1})
        m_hScroll1->setStretchFactor(side, 1);
    m_hScroll1->setSizes({kHalf, kHalf});
    m_differences = new DifferenceView;
    m_views = new QStackedWidget;
    m_views->addWidget(m_hScroll1);
    m_views->addWidget(m_differences);
    return m_views;
}

QWidget *Master::footRow()
{
    m_findBar = new FindBar(u"Texto"_s);
    m_findBar->setPane(m_console->console());
    m_lbVar = named(new PlainLabel, u"lbVar"_s);
    m_lbVar->setFont(textFont(TextSize::Small));
    m_lbVar->setMinimumWidth(1);
    auto *widget = new QWidget;
    auto *row = controlRow(widget);
    row->addWidget(m_lbVar, 1);
    row->addWidget(m_findBar);
    return widget;
}

void Master::connectCommand()
{
    connect(m_command, &CommandBar::sendWanted, this, &Master::send);
    connect(m_command, &CommandBar::keepingAsked, this, &ScreenForm::keepingAsked);
    connect(m_console, &ConsolePane::cleared, m_command, &CommandBar::focusCommandLine);
    connect(&m_master, &MasterScreen::helpWanted, this, &Master::showHelp);
}

void Master::connectComparator()
{
    connect(m_comparator, &ComparatorPane::keepingAsked, this, &ScreenForm::keepingAsked);
    connect(m_comparator, &ComparatorPane::saveWanted, this, [this] { m_master.btSalvarAtualizacoes_Click(edits()); });
    connect(m_comparator, &ComparatorPane::maskWanted, this, [this] { m_master.Command1_Click(edits()); });
    connect(&m_master, &MasterScreen::editsSaved, m_comparator, &ComparatorPane::setSaved);
    connect(&m_master, &MasterScreen::editsSaved, m_command, &CommandBar::setSaved);
}

void Master::connectDifferences()
{
    connect(m_head, &ComparisonHead::toleranceChosen, &m_master, &MasterScreen::setTolerance);
    connect(m_head, &ComparisonHead::differencesToggled, this, &Master::showDifferences);
    connect(m_head, &ComparisonHead::nextWanted, m_differences, &DifferenceView::next);
    connect(m_head, &ComparisonHead::previousWanted, m_differences, &DifferenceView::previous);
    connect(&m_master, &MasterScreen::differenceChanged, this,
            [this] { m_differences->showDifference(m_master.difference()); });
    connect(m_differences, &DifferenceView::exportFailed, this, &Master::tellUnwritten);
}

void Master::connectKeys()
{
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget *, const QWidget *now) { lookInFocused(now); });
    connect(m_findBar, &FindBar::saveWanted, this, &Master::saveText);
    const auto key = [this](const QKeySequence &sequence, auto *receiver, auto action) {
        auto *shortcut = new QShortcut(sequence, this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, receiver, action);
    };
    const auto click = [this, &key](const QKeySequence &sequence, const QString &button) {
        key(sequence, findChild<QAbstractButton *>(button), &QAbstractButton::click);
    };
    key(QKeySequence::Find, m_findBar, &FindBar::begin);
    click(Qt::Key_F5, u"btSend"_s);
    click(Qt::Key_Escape, u"btParar"_s);
    click(Qt::Key_F7, u"btDiferencas"_s);
    key(Qt::Key_F8, m_differences, &DifferenceView::next);
    key(Qt::SHIFT | Qt::Key_F8, m_differences, &DifferenceView::previous);
    key(Qt::CTRL | Qt::Key_L, m_command, &CommandBar::focusCommandLine);
}

/// The text that was looked at last is the one to find in.
void Master::lookInFocused(const QWidget *focused)
{
    for (TextPane *pane : {m_console->console(), m_comparator->recording(), m_history->help()})
        if (focused == pane && m_findBar->pane() != pane)
            m_findBar->setPane(pane);
}

MasterEdits Master::edits() const
{
    MasterEdits edits;
    m_comparator->addEdits(edits);
    m_command->addEdits(edits);
    return edits;
}

std::optional<MasterEdits> Master::unsaved() const
{
    const MasterEdits now = edits();
    return m_comparator->isEdited() || !now.described.isEmpty() ? std::optional(now) : std::nullopt;
}

void Master::send()
{
    m_master.btSend_Click(unsaved());
}

void Master::showHelp(const QString &text)
{
    if (!m_help) {
        m_help = new fmHelp(screen().session(), window());
        connect(m_help, &fmHelp::lineChosen, m_command, &CommandBar::showCommandLine);
        connect(m_help, &fmHelp::commandAdded, &m_master, &MasterScreen::loadCommands);
        connect(this, &QObject::destroyed, m_help, &QObject::deleteLater);
    }
    m_help->begin(text);
}

void Master::showDifferences(bool shown)
{
    m_views->setCurrentWidget(shown ? static_cast<QWidget *>(m_differences) : m_hScroll1);
    m_findBar->setEnabled(!shown);
    if (shown)
        m_differences->setFocus();
}

/// As the phone sent it: a pane shows less, and otherwise.
QString Master::textOf(const TextPane *pane) const
{
    if (pane == m_comparator->recording())
        return m_master.txtComparador();
    return pane == m_history->help() ? m_master.txtHelpAux() : m_master.txtConsole();
}

void Master::saveText()
{
    const QString reply = textOf(m_findBar->pane());
    const auto write = [this, reply](const QString &path) {
        if (const Result<Done> written = writeWhole(reply.toLatin1(), path); !written)
            tellUnwritten(written.trouble());
    };
    const QString command = m_master.boundCommand();
    askForFile(this, {text(u"Salvar texto"), command.isEmpty() ? u"console"_s : command, FileKind::Text}, write);
}

void Master::paintPanel()
{
    ScreenForm::paintPanel();
    const Panel &panel = screen().panel();
    setWindowTitle(panel.title + " - Tavimo Prelt"_L1);
    m_head->setPanel(panel);
    m_comparator->setVisible(!panel.fields.value(u"FrameHistorico"_s).visible.value_or(false));
    m_history->showCommands(panel.fields.value(u"ListCmd"_s).items.value_or(QStringList()));
    m_differences->setName(QStringList{m_master.session().model(), m_master.boundCommand()}.join(u' '));
    m_differences->setEmptyText(panel.fields.value(u"lbResumo"_s).text.value_or(QString()));
}

void Master::Traducao_Form()
{
    m_head->Traducao_Form(language());
    m_command->Traducao_Form();
    m_console->Traducao_Form();
    m_comparator->Traducao_Form();
    m_history->Traducao_Form();
    m_differences->setLanguage(language());
    m_findBar->Traducao_Form(language(), u"Salvar texto");
    m_lbVar->setText(text(u"VAR"));
    m_lbVar->setToolTip(plainToolTip(m_lbVar->text()));
}
