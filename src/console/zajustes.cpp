#include "zajustes.h"

#include "plainlabel.h"
#include "plaintext.h"
#include "readingform.h"
#include "textpane.h"
#include "theme.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>

#include <algorithm>

using namespace Qt::StringLiterals;

static constexpr int kCommandLetters = 20;

namespace {

/// The names of what a side holds.
struct PaneNames
{
    QLatin1StringView owner;
    QLatin1StringView text;
    QLatin1StringView mask;
    QLatin1StringView copy;
};

constexpr std::array kPanes = {PaneNames{"Label1"_L1, "txtConsole"_L1, "Command1"_L1, "Command4"_L1},
                               PaneNames{"Label2"_L1, "txtComparador"_L1, "Command3"_L1, "Command5"_L1}};
constexpr int kHalf = 10000;
constexpr int kModelWidth = 120;

} // namespace

zAjustes::zAjustes(Session &session, QWidget *parent)
    : ScreenForm(std::make_unique<AjustesScreen>(session), parent), m_ajustes(static_cast<AjustesScreen &>(screen()))
{
    auto *panes = new QSplitter;
    panes->setChildrenCollapsible(false);
    for (const Side side : {Side::Base, Side::Plus})
        panes->addWidget(paneFor(side));
    panes->setSizes({kHalf, kHalf});
    auto *layout = pageColumn(this);
    layout->addWidget(choiceRow());
    layout->addWidget(panes, 1);
    connectButtons();
    connect(&m_ajustes, &AjustesScreen::recordingsReplaced, this, &zAjustes::showRecordings);
    connect(&m_ajustes, &AjustesScreen::commandsLoaded, this, [this] {
        const QSignalBlocker quiet(m_txtComandos);
        m_txtComandos->clear();
        m_txtComandos->addItems(m_ajustes.commands());
        m_txtComandos->setEditText(m_ajustes.command());
    });
    showRecordings();
}

QWidget *zAjustes::choiceRow()
{
    m_lbModelo = named(new PlainLabel, u"lbModeloBase"_s);
    m_lbComando = named(new PlainLabel, u"lbComando"_s);
    m_comboAparelhos = named(new QComboBox, u"ComboAparelhos"_s);
    m_comboAparelhos->addItems(AjustesScreen::baseModels());
    m_comboAparelhos->setCurrentText(m_ajustes.model());
    m_comboAparelhos->setMinimumWidth(kModelWidth);
    m_txtComandos = named(new QComboBox, u"txtComandos"_s);
    m_txtComandos->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_txtComandos->setMinimumContentsLength(kCommandLetters);
    m_txtComandos->setEditable(true);
    m_txtComandos->setInsertPolicy(QComboBox::NoInsert);
    m_btAtualizar = named(new QPushButton, u"btAtualizar"_s);
    m_btAtualizar->setProperty("primary", true);
    m_command2 = named(new QPushButton, u"Command2"_s);
    auto *widget = new QWidget;
    auto *row = controlRow(widget);
    row->addWidget(m_lbModelo);
    row->addWidget(m_comboAparelhos);
    row->addSpacing(Spacing::group);
    row->addWidget(m_lbComando);
    row->addWidget(m_txtComandos, 1);
    row->addWidget(named(new PlainLabel, u"lbSalvo"_s));
    row->addWidget(m_command2);
    row->addWidget(m_btAtualizar);
    return widget;
}

QWidget *zAjustes::paneFor(Side side)
{
    const PaneNames &names = kPanes.at(static_cast<std::size_t>(side));
    const Pane pane{named(new PlainLabel, names.owner), new TextPane(names.text), named(new QPushButton, names.mask),
                    named(new QPushButton, names.copy)};
    m_panes[static_cast<std::size_t>(side)] = pane;
    auto *foot = controlRow();
    foot->addWidget(pane.mask);
    foot->addWidget(pane.copy);
    foot->addStretch();
    auto *widget = new QWidget;
    auto *layout = controlColumn(widget);
    layout->addWidget(pane.owner);
    layout->addWidget(pane.text, 1);
    layout->addLayout(foot);
    connect(pane.text->document(), &QTextDocument::modificationChanged, &m_ajustes, [this](bool isEdited) {
        if (isEdited)
            m_ajustes.setEdited();
    });
    connect(pane.text, &TextPane::typedInVain, &m_ajustes, [this, side] { m_ajustes.refuseTyping(side); });
    connect(pane.copy, &QPushButton::clicked, this, [this, side] { copy(side); });
    return widget;
}

void zAjustes::connectButtons()
{
    connect(m_comboAparelhos, &QComboBox::textActivated, this, &zAjustes::select);
    connect(m_txtComandos, &QComboBox::textActivated, this, &zAjustes::select);
    connect(m_txtComandos->lineEdit(), &QLineEdit::editingFinished, this, &zAjustes::select);
    for (QPushButton *writer : {m_btAtualizar, m_command2, m_panes[0].mask, m_panes[1].mask})
        connect(writer, &QPushButton::clicked, this, &ScreenForm::keepingAsked);
    connect(m_btAtualizar, &QPushButton::clicked, this, [this] { m_ajustes.btAtualizar_Click(edits()); });
    connect(m_panes[0].mask, &QPushButton::clicked, this, [this] { m_ajustes.Command1_Click(edits()); });
    connect(m_panes[1].mask, &QPushButton::clicked, this, [this] { m_ajustes.Command3_Click(edits()); });
    connect(m_command2, &QPushButton::clicked, &m_ajustes, &AjustesScreen::Command2_Click);
}

void zAjustes::select()
{
    const QString model = m_comboAparelhos->currentText();
    const QString command = m_txtComandos->currentText();
    if (model != m_ajustes.model() || command != m_ajustes.command())
        m_ajustes.select(model, command, unsaved());
}

/// A side without a row takes no text: there is nothing to write it to.
void zAjustes::showRecordings()
{
    for (const Side side : {Side::Base, Side::Plus}) {
        const Pane &pane = m_panes[static_cast<std::size_t>(side)];
        const QString recording = m_ajustes.recording(side);
        pane.text->setEditable(m_ajustes.row(side) && recording.count(u'\n') < TextPane::kLinesShown);
        pane.text->replaceWith(recording);
        pane.text->document()->setModified(false);
    }
}

AjustesScreen::Edits zAjustes::edits() const
{
    AjustesScreen::Edits edits;
    for (std::size_t i = 0; i < m_panes.size(); ++i)
        if (m_panes[i].text->document()->isModified())
            edits[i] = m_panes[i].text->toPlainText();
    return edits;
}

std::optional<AjustesScreen::Edits> zAjustes::unsaved() const
{
    const AjustesScreen::Edits now = edits();
    return now[0] || now[1] ? std::optional(now) : std::nullopt;
}

void zAjustes::copy(Side side)
{
    TextPane *pane = m_panes[static_cast<std::size_t>(side)].text;
    if (!pane->textCursor().hasSelection())
        pane->selectAll();
    pane->copy();
}

void zAjustes::Traducao_Form()
{
    m_lbModelo->setText(text(u"Modelo"));
    m_comboAparelhos->setAccessibleName(text(u"Modelo"));
    m_lbComando->setText(text(u"Comandos"));
    m_txtComandos->setAccessibleName(text(u"Comandos"));
    m_btAtualizar->setText(text(u"Salvar"));
    m_btAtualizar->setToolTip(plainToolTip(text(u"Salvar Alterações")));
    m_command2->setText(text(u"Add Marca"));
    for (const Pane &pane : m_panes) {
        pane.mask->setText(text(u"Tira Marca"));
        pane.copy->setText(text(u"Copiar"));
        pane.text->setAccessibleName(text(u"Gravação"));
    }
}
