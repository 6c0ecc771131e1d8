#include "comparatorpane.h"

#include "catalogue.h"
#include "icons.h"
#include "masterscreen.h"
#include "plainlabel.h"
#include "plaintext.h"
#include "readingform.h"
#include "textpane.h"
#include "theme.h"

#include <QColor>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

using namespace Qt::StringLiterals;

static constexpr int kNotesHeight = 60;
static constexpr int kMarkSide = 20;

ComparatorPane::ComparatorPane(MasterScreen &screen, QWidget *parent)
    : QWidget(parent), m_screen(screen), m_txtComparador(new TextPane(u"txtComparador"_s))
{
    auto *layout = controlColumn(this);
    layout->addWidget(head());
    layout->addWidget(m_txtComparador, 1);
    layout->addWidget(m_lbInfDados = named(new PlainLabel, u"lbInfDados"_s));
    layout->addWidget(notes());
    layout->addWidget(buttons());
    connectButtons();
    connect(&screen, &MasterScreen::comparatorReplaced, this, &ComparatorPane::showRecording);
    showRecording();
}

QWidget *ComparatorPane::head()
{
    m_ldDispComparador = named(new PlainLabel, u"ldDispComparador"_s);
    m_lbLinhas = named(new PlainLabel, u"lbLinhasComparador"_s);
    m_lbAutoComparador = named(new QWidget, u"lbAutoComparador"_s);
    m_lbAutoComparadorX = named(new PlainLabel, u"lbAutoComparadorX"_s);
    auto *mark = controlRow(m_lbAutoComparador);
    mark->addWidget(m_picture = new PlainLabel);
    mark->addWidget(m_lbAutoComparadorX);
    auto *widget = new QWidget;
    auto *row = controlRow(widget);
    row->addWidget(m_ldDispComparador);
    row->addStretch();
    m_lbLinhas->setMinimumWidth(1);
    row->addWidget(m_lbLinhas);
    row->addWidget(m_lbAutoComparador);
    widget->setMinimumHeight(kHeadHeight); // the mark comes and goes without moving the text
    return widget;
}

QWidget *ComparatorPane::notes()
{
    auto *widget = new QWidget;
    auto *row = controlRow(widget);
    static constexpr std::array kNames = {"txtInfoDados"_L1, "txtInfoDados2"_L1, "txtInfoDados3"_L1};
    for (std::size_t i = 0; i < kNames.size(); ++i) {
        m_txtInfoDados[i] = named(new QPlainTextEdit, kNames[i]);
        m_txtInfoDados[i]->setTabChangesFocus(true);
        row->addWidget(m_txtInfoDados[i]);
    }
    widget->setFixedHeight(kNotesHeight);
    return widget;
}

QWidget *ComparatorPane::buttons()
{
    m_btSalvar = named(new QPushButton, u"btSalvar"_s);
    m_btSalvarAtualizacoes = named(new QPushButton, u"btSalvarAtualizacoes"_s);
    m_btExcluir = named(new QPushButton, u"btExcluir"_s);
    m_command1 = named(new QPushButton, u"Command1"_s);
    m_command2 = named(new QPushButton, u"Command2"_s);
    auto *widget = new QWidget;
    auto *row = controlRow(widget);
    for (QPushButton *button : {m_btSalvar, m_btSalvarAtualizacoes, m_btExcluir, m_command1, m_command2})
        row->addWidget(button);
    row->addStretch();
    return widget;
}

void ComparatorPane::connectButtons()
{
    for (QPushButton *writer : {m_btSalvar, m_btSalvarAtualizacoes, m_btExcluir, m_command1, m_command2})
        connect(writer, &QPushButton::clicked, this, &ComparatorPane::keepingAsked);
    connect(m_btSalvar, &QPushButton::clicked, &m_screen, &MasterScreen::btSalvar_Click);
    connect(m_btSalvarAtualizacoes, &QPushButton::clicked, this, &ComparatorPane::saveWanted);
    connect(m_btExcluir, &QPushButton::clicked, &m_screen, &MasterScreen::btExcluir_Click);
    connect(m_command1, &QPushButton::clicked, this, &ComparatorPane::maskWanted);
    connect(m_txtComparador, &TextPane::typedInVain, &m_screen, &MasterScreen::refuseTyping);
    connect(m_command2, &QPushButton::clicked, &m_screen, &MasterScreen::Command2_Click);
}

/// A text too long to be edited fluently is shown only.
void ComparatorPane::showRecording()
{
    const bool isBound = !m_screen.boundCommand().isEmpty();
    m_txtComparador->setEditable(isBound && m_screen.txtComparador().count(u'\n') < TextPane::kLinesShown);
    m_txtComparador->replaceWith(m_screen.txtComparador());
    const auto &row = m_screen.recording();
    const std::array notes = {row ? row->recording.info : QString(), row ? row->recording.info2 : QString(),
                              row ? row->recording.info3 : QString()};
    for (std::size_t i = 0; i < notes.size(); ++i) {
        m_txtInfoDados[i]->setPlainText(notes[i]);
        m_txtInfoDados[i]->setEnabled(isBound);
    }
    setSaved();
    tellShownLines();
}

void ComparatorPane::tellShownLines()
{
    const auto text = [this](QStringView key) { return caption(key, m_screen.session().language()); };
    m_lbLinhas->setVisible(!m_txtComparador->showsAll());
    m_lbLinhas->setText(text(u"%1 de %2 linhas mostradas, sem edição; “%3” guarda todas")
                            .arg(TextPane::kLinesShown)
                            .arg(m_txtComparador->linesOfText())
                            .arg(text(u"Salvar texto")));
}

bool ComparatorPane::isEdited() const
{
    return m_txtComparador->document()->isModified() ||
           std::ranges::any_of(m_txtInfoDados, [](const auto *box) { return box->document()->isModified(); });
}

void ComparatorPane::addEdits(MasterEdits &edits) const
{
    if (m_txtComparador->document()->isModified())
        edits.recording = m_txtComparador->toPlainText();
    for (std::size_t i = 0; i < m_txtInfoDados.size(); ++i)
        edits.notes[i] = m_txtInfoDados[i]->toPlainText();
}

void ComparatorPane::setSaved()
{
    m_txtComparador->document()->setModified(false);
    for (QPlainTextEdit *box : m_txtInfoDados)
        box->document()->setModified(false);
}

void ComparatorPane::Traducao_Form()
{
    const auto text = [this](QStringView key) { return caption(key, m_screen.session().language()); };
    m_ldDispComparador->setText(text(u"Comparador: (Dispositivos Gravados)"));
    m_txtComparador->setAccessibleName(text(u"Comparador"));
    m_lbAutoComparadorX->setText(text(u"Auto Comparador TOOL"));
    m_lbAutoComparador->setToolTip(plainToolTip(text(u"Auto Comparador OK")));
    m_picture->setPixmap(lineIcon(u"findings", &Theme::passInk).pixmap(kMarkSide));
    tellShownLines();
    m_lbInfDados->setText(text(u"Informações sobre os dados:"));
    for (QPlainTextEdit *box : m_txtInfoDados)
        box->setAccessibleName(text(u"Informações sobre os dados:"));
    struct Caption
    {
        QPushButton *button;
        QStringView key;
        QStringView tip;
    };
    for (const auto &[button, key, tip] :
         {Caption{m_btSalvar, u"Copiar Dados", u"Copiar Dados para o lado Comparador"},
          Caption{m_btSalvarAtualizacoes, u"Salvar", u"Salvar Alterações"},
          Caption{m_btExcluir, u"Excluir", u"Excluir Dados Comparador"}, Caption{m_command1, u"Tira Marca", u""},
          Caption{m_command2, u"Add Marca", u""}}) {
        button->setText(text(key));
        button->setToolTip(plainToolTip(text(tip)));
    }
}
