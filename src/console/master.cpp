#include "master.h"

#include "commandline.h"
#include "comparatorpane.h"
#include "differenceview.h"
#include "findbar.h"
#include "fmhelp.h"
#include "historypane.h"
#include "icons.h"
#include "readingform.h"
#include "textpane.h"
#include "theme.h"
#include "verdictbadge.h"

#include <QApplication>
#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSaveFile>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// A small button of the command row: its name, picture, caption and what it does.
struct Tool
{
    QStringView name;
    QStringView icon;
    QStringView key;
    void (MasterScreen::*clicked)();
};

constexpr std::array kTools = {
    Tool{u"btRecent", u"log", u"Visualizar todos os comandos", &MasterScreen::btRecent_Click},
    Tool{u"btHelp", u"help", u"Ajuda", &MasterScreen::btHelp_Click},
    Tool{u"btHelpPdf", u"about", u"Help PDF", &MasterScreen::btHelpPdf_Click},
    Tool{u"btNovo", u"save", u"Adicionar Comando", &MasterScreen::btNovo_Click},
    Tool{u"btApagar", u"delete", u"Excluir Comando", &MasterScreen::btApagar_Click},
    Tool{u"btDesligar", u"disconnect", u"Desligar Dispositivo", &MasterScreen::btDesligar_Click},
    Tool{u"btReiniciar", u"refresh", u"Reiniciar Dispositivo", &MasterScreen::btReiniciar_Click},
};

constexpr double kMostTolerance = 50;
/// Both sides begin alike; the splitter shares what there is.
constexpr int kHalf = 10000;

} // namespace

Master::Master(Session &session, QWidget *parent)
    : ScreenForm(std::make_unique<MasterScreen>(session), parent), m_master(static_cast<MasterScreen &>(screen()))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Spacing::control, Spacing::control, Spacing::control, Spacing::control);
    layout->setSpacing(Spacing::control);
    layout->addWidget(headRow());
    layout->addWidget(commandRow());
    layout->addWidget(descriptionRow());
    layout->addWidget(panes(), 1);
    layout->addWidget(footRow());
    connectCommand();
    connectButtons();
    connectPanes();
    connectKeys();
    showDifferences(false);
}

void Master::showEvent(QShowEvent *event)
{
    ScreenForm::showEvent(event);
    m_txtComandos->setFocus();
}

QWidget *Master::headRow()
{
    m_badge = named(new VerdictBadge, u"Veredito"_s);
    m_btDiferencas = named(new QPushButton, u"btDiferencas"_s);
    m_btDiferencas->setCheckable(true);
    m_btAnteriorDif = named(new QToolButton, u"btAnteriorDif"_s);
    m_btProximaDif = named(new QToolButton, u"btProximaDif"_s);
    m_btAnteriorDif->setArrowType(Qt::UpArrow);
    m_btProximaDif->setArrowType(Qt::DownArrow);
    m_lbTolerancia = named(new QLabel, u"lbTolerancia"_s);
    m_tolerancia = named(new QDoubleSpinBox, u"Tolerancia"_s);
    m_tolerancia->setRange(0, kMostTolerance);
    m_tolerancia->setDecimals(1);
    m_tolerancia->setSuffix(u" %"_s);
    auto *summary = named(new QLabel, u"lbResumo"_s);
    summary->setTextFormat(Qt::PlainText);
    summary->setMinimumWidth(1); // a long one is cut, it does not widen the window
    auto *lines = new QVBoxLayout;
    lines->setSpacing(Spacing::unit);
    lines->addWidget(named(new QLabel, u"lbDispositivo"_s));
    lines->addWidget(summary);
    auto *widget = new QWidget;
    auto *row = controlRow(widget);
    row->setSpacing(Spacing::group);
    row->addWidget(m_badge);
    row->addLayout(lines, 1);
    for (QWidget *part : {static_cast<QWidget *>(m_lbTolerancia), static_cast<QWidget *>(m_tolerancia),
                          static_cast<QWidget *>(m_btAnteriorDif), static_cast<QWidget *>(m_btProximaDif),
                          static_cast<QWidget *>(m_btDiferencas)})
        row->addWidget(part);
    return widget;
}

QWidget *Master::commandRow()
{
    m_txtComandos = new CommandLine(u"txtComandos"_s);
    m_btSend = named(new QPushButton, u"btSend"_s);
    m_btSend->setProperty("primary", true);
    m_btParar = named(new QPushButton, u"btParar"_s);
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

QWidget *Master::descriptionRow()
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

QWidget *Master::consolePane()
{
    m_ldDispConect = named(new QLabel, u"ldDispConect"_s);
    m_lbLinhas = named(new QLabel, u"lbLinhas"_s);
    m_txtConsole = new TextPane(u"txtConsole"_s);
    m_ckLimpar = named(new QCheckBox, u"ckLimpar"_s);
    m_ckLimpar->setChecked(true);
    m_btLimpar = named(new QPushButton, u"btLimpar"_s);
    auto *top = new QWidget;
    top->setMinimumHeight(ComparatorPane::kHeadHeight);
    auto *head = controlRow(top);
    head->addWidget(m_ldDispConect);
    head->addStretch();
    head->addWidget(m_lbLinhas);
    auto *foot = controlRow();
    foot->addWidget(m_ckLimpar);
    foot->addWidget(m_btLimpar);
    foot->addStretch();
    auto *widget = new QWidget;
    auto *layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Spacing::unit);
    layout->addWidget(top);
    layout->addWidget(m_txtConsole, 1);
    layout->addLayout(foot);
    return widget;
}

QWidget *Master::panes()
{
    m_comparator = new ComparatorPane(m_master);
    m_history = new HistoryPane(m_master);
    auto *right = new QWidget;
    auto *rightLayout = controlRow(right);
    rightLayout->addWidget(m_comparator);
    rightLayout->addWidget(m_history);
    m_hScroll1 = named(new QSplitter, u"HScroll1"_s);
    m_hScroll1->setChildrenCollapsible(false);
    m_hScroll1->addWidget(consolePane());
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
    m_findBar->setPane(m_txtConsole);
    m_lbVar = named(new QLabel, u"lbVar"_s);
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
    connect(m_txtComandos, &QComboBox::editTextChanged, this, [this](const QString &text) {
        m_master.setCommand(text);
        showDescription();
    });
    connect(m_txtComandos, &CommandLine::olderWanted, &m_master, &MasterScreen::older);
    connect(m_txtComandos, &CommandLine::newerWanted, &m_master, &MasterScreen::newer);
    connect(m_txtComandos, &CommandLine::sendWanted, this, &Master::send);
    connect(m_btSend, &QPushButton::clicked, this, &Master::send);
    connect(m_btParar, &QPushButton::clicked, &m_master, &MasterScreen::btParar_Click);
    connect(&m_master, &MasterScreen::commandChosen, this, &Master::showCommandLine);
    connect(&m_master, &MasterScreen::commandsLoaded, this, &Master::showCommands);
    connect(&m_master, &MasterScreen::helpWanted, this, &Master::showHelp);
}

void Master::connectButtons()
{
    for (std::size_t i = 0; i < kTools.size(); ++i)
        connect(m_tools[i], &QToolButton::clicked, &m_master, kTools[i].clicked);
    m_tools[0]->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_tools[0], &QToolButton::customContextMenuRequested, &m_master, &MasterScreen::btRecent_RightClick);
    for (QWidget *writer : {static_cast<QWidget *>(m_tools[3]), static_cast<QWidget *>(m_tools[4])})
        connect(static_cast<QToolButton *>(writer), &QToolButton::clicked, this, &ScreenForm::keepingAsked);
    for (const auto &name : {u"btSalvar"_s, u"btSalvarAtualizacoes"_s, u"btExcluir"_s, u"Command1"_s, u"Command2"_s})
        connect(m_comparator->findChild<QPushButton *>(name), &QPushButton::clicked, this, &ScreenForm::keepingAsked);
    connect(m_comparator, &ComparatorPane::saveWanted, this, [this] { m_master.btSalvarAtualizacoes_Click(edits()); });
    connect(m_comparator, &ComparatorPane::maskWanted, this, [this] { m_master.Command1_Click(edits()); });
    connect(m_ckLimpar, &QCheckBox::toggled, &m_master, &MasterScreen::setErasing);
    connect(m_btLimpar, &QPushButton::clicked, this, [this] {
        m_master.btLimpar_Click();
        m_txtComandos->setFocus();
    });
    connect(m_tolerancia, &QDoubleSpinBox::valueChanged, &m_master, &MasterScreen::setTolerance);
    connect(m_btDiferencas, &QPushButton::toggled, this, &Master::showDifferences);
    connect(m_btProximaDif, &QToolButton::clicked, m_differences, &DifferenceView::next);
    connect(m_btAnteriorDif, &QToolButton::clicked, m_differences, &DifferenceView::previous);
}

void Master::connectPanes()
{
    connect(&m_master, &MasterScreen::consoleReplaced, this, &Master::showConsole);
    connect(&m_master, &MasterScreen::consoleStarted, this, [this] {
        if (m_ckLimpar->isChecked())
            m_txtConsole->replaceWith({});
    });
    connect(&m_master, &MasterScreen::consoleAppended, m_txtConsole, &TextPane::addSoon);
    connect(&m_master, &MasterScreen::differenceChanged, this,
            [this] { m_differences->showDifference(m_master.difference()); });
    connect(&m_master, &MasterScreen::editsSaved, this, [this] {
        m_comparator->setSaved();
        for (QLineEdit *box : m_txtInfoComandos)
            box->setModified(false);
    });
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget *, const QWidget *now) { lookInFocused(now); });
    connect(m_findBar, &FindBar::saveWanted, this, &Master::saveText);
}

void Master::connectKeys()
{
    const auto key = [this](const QKeySequence &sequence, auto *receiver, auto action) {
        auto *shortcut = new QShortcut(sequence, this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, receiver, action);
    };
    key(QKeySequence::Find, m_findBar, &FindBar::begin);
    key(Qt::Key_F5, m_btSend, &QPushButton::click);
    key(Qt::Key_Escape, m_btParar, &QPushButton::click);
    key(Qt::Key_F7, m_btDiferencas, &QPushButton::click);
    key(Qt::Key_F8, m_differences, &DifferenceView::next);
    key(Qt::SHIFT | Qt::Key_F8, m_differences, &DifferenceView::previous);
    key(Qt::CTRL | Qt::Key_L, m_txtComandos, qOverload<>(&QWidget::setFocus));
}

/// The text that was looked at last is the one to find in.
void Master::lookInFocused(const QWidget *focused)
{
    for (TextPane *pane : {m_txtConsole, m_comparator->recording(), m_history->help()})
        if (focused == pane && m_findBar->pane() != pane)
            m_findBar->setPane(pane);
}

MasterEdits Master::edits() const
{
    MasterEdits edits;
    m_comparator->addEdits(edits);
    const bool described = std::ranges::any_of(m_txtInfoComandos, &QLineEdit::isModified);
    if (described)
        edits.described = m_described;
    for (std::size_t i = 0; i < m_txtInfoComandos.size(); ++i)
        edits.descriptions[i] = m_txtInfoComandos[i]->text();
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

void Master::showCommandLine(const QString &text)
{
    m_txtComandos->setEditText(text);
    m_txtComandos->setFocus();
}

void Master::showCommands()
{
    m_txtComandos->setCommands(m_master.commands(), language());
    showDescription();
}

/// What is typed into a description stays until it is saved, whatever command is typed meanwhile.
void Master::showDescription()
{
    if (std::ranges::any_of(m_txtInfoComandos, &QLineEdit::isModified))
        return;
    const CommandRow *row = m_master.rowOf(m_master.txtComandos());
    m_described = row ? row->comando : QString();
    for (std::size_t i = 0; i < m_txtInfoComandos.size(); ++i) {
        m_txtInfoComandos[i]->setText(row ? row->info[i] : QString());
        m_txtInfoComandos[i]->setEnabled(row != nullptr);
    }
}

void Master::showConsole()
{
    m_txtConsole->replaceWith(m_master.txtConsole());
    tellShownLines();
}

void Master::tellShownLines()
{
    const QString shown = text(u"%1 de %2 linhas mostradas; Salvar guarda todas");
    m_lbLinhas->setVisible(!m_txtConsole->showsAll());
    m_lbLinhas->setText(shown.arg(TextPane::kLinesShown).arg(m_txtConsole->linesOfText()));
}

void Master::showHelp(const QString &text)
{
    if (!m_help) {
        m_help = new fmHelp(screen().session(), window());
        connect(m_help, &fmHelp::lineChosen, this, &Master::showCommandLine);
        connect(m_help, &fmHelp::commandAdded, &m_master, &MasterScreen::loadCommands);
        connect(this, &QObject::destroyed, m_help, &QObject::deleteLater);
    }
    m_help->begin(text);
}

void Master::showDifferences(bool shown)
{
    m_views->setCurrentWidget(shown ? static_cast<QWidget *>(m_differences) : m_hScroll1);
    m_findBar->setEnabled(!shown);
    for (QWidget *part : {static_cast<QWidget *>(m_lbTolerancia), static_cast<QWidget *>(m_tolerancia),
                          static_cast<QWidget *>(m_btAnteriorDif), static_cast<QWidget *>(m_btProximaDif)})
        part->setVisible(shown);
    if (shown)
        m_differences->setFocus();
}

void Master::saveText()
{
    const QString reply = m_findBar->pane() == m_txtConsole ? m_master.txtConsole() : m_master.txtComparador();
    auto *dialog = new QFileDialog(this, text(u"Salvar texto"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(u"txt"_s);
    dialog->selectFile(u"%1.txt"_s.arg(m_master.boundCommand().isEmpty() ? u"console"_s : m_master.boundCommand()));
    connect(dialog, &QFileDialog::fileSelected, this, [this, reply](const QString &path) {
        QSaveFile file(path);
        const QByteArray bytes = reply.toLatin1();
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
            screen().session().boxes().message({{u"TEXT_NOT_SAVED"_s, {path, file.errorString()}}});
    });
    dialog->open();
}

void Master::paintPanel()
{
    ScreenForm::paintPanel();
    const Panel &panel = screen().panel();
    setWindowTitle(panel.title + " - Tavimo Prelt"_L1);
    m_badge->setPanel(panel);
    m_comparator->setVisible(!panel.fields.value(u"FrameHistorico"_s).visible.value_or(false));
    m_history->showCommands(panel.fields.value(u"ListCmd"_s).items.value_or(QStringList()));
    m_differences->setEmptyText(panel.fields.value(u"lbResumo"_s).text.value_or(QString()));
}

void Master::Traducao_Form()
{
    m_comparator->Traducao_Form();
    m_history->Traducao_Form();
    m_badge->setLanguage(language());
    m_differences->setLanguage(language());
    m_findBar->Traducao_Form(language(), u"Salvar texto");
    m_txtComandos->setAccessibleName(text(u"Comandos"));
    m_txtComandos->lineEdit()->setPlaceholderText(text(u"Digite ou seleciona na lista suspença o comando desejado"));
    m_btSend->setText(text(u"Executar"));
    m_btSend->setToolTip(text(u"Executar Comando") + "  (F5)"_L1);
    m_btParar->setText(text(u"Parar"));
    m_btParar->setToolTip(text(u"Parar") + "  (Esc)"_L1);
    for (std::size_t i = 0; i < kTools.size(); ++i) {
        m_tools[i]->setIcon(lineIcon(kTools[i].icon));
        m_tools[i]->setToolTip(text(kTools[i].key));
        m_tools[i]->setAccessibleName(text(kTools[i].key));
    }
    for (QLineEdit *box : m_txtInfoComandos) {
        box->setPlaceholderText(text(u"Descrição do comando"));
        box->setAccessibleName(text(u"Descrição do comando"));
    }
    m_ldDispConect->setText(text(u"Leitura do dispositivo conectado:"));
    m_txtConsole->setAccessibleName(text(u"Leitura do dispositivo conectado:"));
    m_ckLimpar->setText(text(u"Limpar dados após comando"));
    m_btLimpar->setText(text(u"Limpar"));
    m_lbTolerancia->setText(text(u"Tolerância"));
    m_tolerancia->setAccessibleName(text(u"Tolerância"));
    m_btDiferencas->setText(text(u"Diferenças"));
    m_btDiferencas->setToolTip(text(u"Diferenças") + "  (F7)"_L1);
    m_btProximaDif->setToolTip(text(u"Próxima diferença") + "  (F8)"_L1);
    m_btProximaDif->setAccessibleName(text(u"Próxima diferença"));
    m_btAnteriorDif->setToolTip(text(u"Diferença anterior") + "  (Shift+F8)"_L1);
    m_btAnteriorDif->setAccessibleName(text(u"Diferença anterior"));
    m_lbVar->setText(text(u"VAR"));
    m_lbVar->setToolTip(m_lbVar->text());
    if (!m_master.commands().isEmpty())
        showCommands();
    tellShownLines();
}
