#include "survey.h"

#include "findingcolumns.h"
#include "icons.h"
#include "panelgrid.h"
#include "plainlabel.h"
#include "savedialog.h"
#include "surveyscreen.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

Survey::Survey(Session &session, QWidget *parent)
    : ReadingForm(std::make_unique<SurveyScreen>(session), parent),
      m_survey(static_cast<SurveyScreen &>(screen())),
      m_documents(session),
      m_rows(kFindingColumns),
      m_grid(named(new PanelGrid(m_rows), u"DBGrid1"_s)),
      m_syscfg(named(new QCheckBox, u"OpSyscfg"_s)),
      m_memory(named(new QCheckBox, u"OpMemoria"_s)),
      m_faults(named(new QCheckBox, u"OpFalhas"_s)),
      m_lbNota(new PlainLabel),
      m_nota(named(new QLineEdit, u"txtNota"_s)),
      m_btPdf(named(new QPushButton, u"btPDF"_s)),
      m_btCancelar(named(new QPushButton, u"btCancelar"_s)),
      m_btIniciar(readButton(u"btIniciar"_s))
{
    layOut({.note = u"lbProgresso"_s,
            .buttons = {m_btPdf, m_btCancelar, m_btIniciar},
            .choices = {m_syscfg, m_memory, m_faults, nullptr, named(new PlainLabel, u"lbSerie"_s)},
            .body = body()});
    painter().setRows(&m_rows);
    connectControls();
}

QWidget *Survey::body()
{
    auto *frame = new QWidget;
    auto *column = controlColumn(frame);
    auto *note = controlRow();
    m_lbNota->setBuddy(m_nota);
    note->addWidget(m_lbNota);
    note->addWidget(m_nota, 1);
    column->addWidget(m_grid, 1);
    column->addLayout(note);
    return frame;
}

void Survey::connectControls()
{
    connect(m_btIniciar, &QPushButton::clicked, &m_survey, &SurveyScreen::btIniciar_Click);
    connect(m_btCancelar, &QPushButton::clicked, &m_survey, &SurveyScreen::btCancelar_Click);
    connect(m_btPdf, &QPushButton::clicked, this, &Survey::btPDF_Click);
    connect(m_syscfg, &QCheckBox::clicked, &m_survey,
            [this](bool on) { m_survey.chooseExtra(SurveyExtra::Syscfg, on); });
    connect(m_memory, &QCheckBox::clicked, &m_survey,
            [this](bool on) { m_survey.chooseExtra(SurveyExtra::Memory, on); });
    connect(m_faults, &QCheckBox::clicked, &m_survey,
            [this](bool on) { m_survey.chooseFilter(on ? SurveyScreen::Filter::Faults : SurveyScreen::Filter::All); });
    connect(m_nota, &QLineEdit::textEdited, &m_survey, &SurveyScreen::chooseNote);
    connect(m_nota, &QLineEdit::editingFinished, &m_survey, &SurveyScreen::keepNote);
    connect(&m_survey, &SurveyScreen::noteForgotten, m_nota, &QLineEdit::clear);
    connect(m_grid, &PanelGrid::doubleClicked, &m_survey,
            [this](const QModelIndex &place) { m_survey.DBGrid1_Click(place.row()); });
    connect(m_grid, &PanelGrid::exportFailed, this, &Survey::tellUnwritten);
    connect(&m_documents, &DocumentMaker::busyChanged, &m_survey,
            [this] { m_survey.showDocumentWork(m_documents.isBusy()); });
    connect(&m_survey, &SurveyScreen::journalFailed, this,
            [this](const Trouble &why) { m_survey.session().refuse(why.what); });
}

void Survey::btPDF_Click()
{
    const QString name = u"%1 %2"_s.arg(text(u"Vistoria"), m_survey.run().model);
    askForFile(this, {text(u"Salvar PDF"), name, FileKind::Pdf}, [this](const QString &path) {
        m_documents.make(m_survey.report(), path, DocumentMaker::Afterwards::Tell);
    });
}

void Survey::goTo(const QString &what)
{
    for (int place = 0; place < m_rows.rowCount(); ++place)
        if (m_rows.row(place).cell(u"Achado") == what)
            return m_grid->selectRow(place);
}

void Survey::Traducao_Form()
{
    ReadingForm::Traducao_Form();
    m_btIniciar->setAccessibleName(text(u"Iniciar vistoria"));
    m_btPdf->setText(text(u"Salvar PDF"));
    m_btPdf->setIcon(lineIcon(u"export"));
    m_syscfg->setText(text(u"syscfg"));
    m_memory->setText(text(u"MEM RAM Teste"));
    m_faults->setText(text(u"Só o que não está bom"));
    m_lbNota->setText(text(u"Observação"));
    m_nota->setAccessibleName(text(u"Observação"));
    m_nota->setPlaceholderText(text(u"DICA_NOTA"));
    findChild<QLabel *>(u"lbProgresso"_s)->setAccessibleName(text(u"Vistoria"));
    m_grid->setLanguage(language());
    m_grid->setEmptyText(text(u"DICA_VISTORIA_VAZIA"));
}

void Survey::paintPanel()
{
    ReadingForm::paintPanel();
    m_grid->setExportName(u"%1 %2"_s.arg(text(u"Vistoria"), m_survey.run().model));
    m_grid->setAccessibleName(screen().panel().title);
}
