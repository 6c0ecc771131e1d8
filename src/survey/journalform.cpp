#include "journalform.h"

#include "icons.h"
#include "journalpages.h"
#include "journalpanel.h"
#include "panelgrid.h"
#include "plainlabel.h"
#include "readingform.h"
#include "savedialog.h"
#include "theme.h"
#include "verdictbadge.h"
#include "wholefile.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array kSurveyColumns = {
    GridColumn{u"Hora", u"Hora", ColumnKind::Name},
    GridColumn{u"Modelo", u"Modelo"},
    GridColumn{u"Serie", u"Número de série"},
    GridColumn{u"Resultado", u"Resultado"},
    GridColumn{u"Falhas", u"Falhas", ColumnKind::Number},
    GridColumn{u"Nota", u"Observação"},
};

constexpr int kListShare = 2;
constexpr int kDetailsShare = 3;

} // namespace

Journal::Journal(Session &session, QWidget *parent)
    : ScreenForm(std::make_unique<JournalScreen>(session), parent),
      m_journal(static_cast<JournalScreen &>(screen())),
      m_documents(session),
      m_surveyRows(kSurveyColumns),
      m_list(named(new PanelGrid(m_surveyRows), u"DBGrid1"_s)),
      m_pages(new JournalPages(m_journal))
{
    auto *const split = new QSplitter(Qt::Vertical);
    split->setChildrenCollapsible(false);
    split->addWidget(list());
    split->addWidget(details());
    split->setStretchFactor(0, kListShare);
    split->setStretchFactor(1, kDetailsShare);
    pageColumn(this)->addWidget(split);
    connectButtons();
    connectEdits();
}

QWidget *Journal::list()
{
    m_search = named(new QLineEdit, u"txtBusca"_s);
    m_search->setClearButtonEnabled(true);
    auto *const row = controlRow();
    row->addWidget(m_search, 1);
    row->addWidget(named(new PlainLabel, u"lbContagem"_s));
    auto *const widget = new QWidget;
    auto *const column = controlColumn(widget);
    column->addLayout(row);
    column->addWidget(m_list, 1);
    return widget;
}

QWidget *Journal::details()
{
    m_lbNota = new PlainLabel;
    m_note = named(new QLineEdit, u"txtNota"_s);
    m_lbNota->setBuddy(m_note);
    auto *const note = controlRow();
    note->addWidget(m_lbNota);
    note->addWidget(m_note, 1);
    auto *const widget = new QWidget;
    auto *const column = controlColumn(widget);
    column->addWidget(head());
    column->addWidget(buttons());
    column->addWidget(m_pages, 1);
    column->addLayout(note);
    return widget;
}

static QLabel *wrappedLabel(const QString &name)
{
    auto *const label = named(new PlainLabel, name);
    label->setWordWrap(true); // rather two lines than a window that must grow
    return label;
}

QWidget *Journal::head()
{
    m_badge = named(new VerdictBadge, u"Veredito"_s);
    auto *const texts = new QWidget;
    auto *const column = controlColumn(texts);
    column->addWidget(wrappedLabel(u"lbTitulo"_s));
    column->addWidget(wrappedLabel(u"lbResumo"_s));
    auto *const widget = new QWidget;
    auto *const row = controlRow(widget);
    row->addWidget(m_badge);
    row->addWidget(texts, 1);
    return widget;
}

QWidget *Journal::buttons()
{
    m_btComparar = named(new QPushButton, u"btComparar"_s);
    m_btTroca = named(new QPushButton, u"btTroca"_s);
    for (QPushButton *held : {m_btComparar, m_btTroca})
        held->setCheckable(true);
    m_btImprimir = named(new QPushButton, u"btImprimir"_s);
    m_btCsv = named(new QPushButton, u"btCSV"_s);
    m_btJson = named(new QPushButton, u"btJSON"_s);
    m_btExcluir = named(new QPushButton, u"btExcluir"_s);
    auto *const widget = new QWidget;
    auto *const row = controlRow(widget);
    row->addWidget(m_btComparar);
    row->addWidget(m_btTroca);
    row->addStretch();
    for (QPushButton *button : {m_btImprimir, m_btCsv, m_btJson, m_btExcluir})
        row->addWidget(button);
    return widget;
}

void Journal::connectButtons()
{
    connect(m_btComparar, &QPushButton::clicked, &m_journal, &JournalScreen::btComparar_Click);
    connect(m_btTroca, &QPushButton::clicked, &m_journal, &JournalScreen::btTroca_Click);
    connect(m_btImprimir, &QPushButton::clicked, this, &Journal::btImprimir_Click);
    connect(&m_documents, &DocumentMaker::busyChanged, &m_journal,
            [this] { m_journal.showDocumentWork(m_documents.isBusy()); });
    connect(m_btCsv, &QPushButton::clicked, m_pages, &JournalPages::exportCsv);
    connect(m_btJson, &QPushButton::clicked, this, &Journal::btJSON_Click);
    connect(m_btExcluir, &QPushButton::clicked, this, &ScreenForm::keepingAsked);
    connect(m_btExcluir, &QPushButton::clicked, &m_journal, &JournalScreen::btExcluir_Click);
    connect(m_list, &PanelGrid::exportFailed, this, &Journal::tellUnwritten);
    connect(m_pages, &JournalPages::exportFailed, this, &Journal::tellUnwritten);
}

void Journal::connectEdits()
{
    connect(m_search, &QLineEdit::textChanged, &m_journal, &JournalScreen::txtBusca_Change);
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { m_journal.choose(chosen()); });
    connect(m_note, &QLineEdit::textEdited, &m_journal, &JournalScreen::txtNota_Change);
    connect(m_note, &QLineEdit::editingFinished, this, &ScreenForm::keepingAsked);
    connect(m_note, &QLineEdit::editingFinished, &m_journal, &JournalScreen::keepNotes);
    connect(&m_journal, &JournalScreen::noteLoaded, this, &Journal::paintNote);
}

QStringList Journal::chosen() const
{
    QStringList ids;
    for (const QModelIndex &index : m_list->selectionModel()->selectedRows())
        ids.append(m_surveyRows.row(index.row()).cell(u"Id"));
    return ids;
}

/// Chooses in the list what the screen shows: other rows have another order, and a comparison chooses two.
void Journal::paintChoice()
{
    const QStringList wanted = m_journal.chosen();
    const QStringList now = chosen();
    if (QSet(wanted.begin(), wanted.end()) == QSet(now.begin(), now.end()))
        return;
    QItemSelection rows;
    for (int place = 0; place < m_surveyRows.rowCount(); ++place)
        if (wanted.contains(m_surveyRows.row(place).cell(u"Id")))
            rows.select(m_surveyRows.index(place, 0), m_surveyRows.index(place, m_surveyRows.columnCount() - 1));
    QItemSelectionModel *const selection = m_list->selectionModel();
    const QSignalBlocker quiet(selection);
    selection->select(rows, QItemSelectionModel::ClearAndSelect);
    if (!selection->currentIndex().isValid() && !rows.isEmpty())
        selection->setCurrentIndex(rows.indexes().constFirst(), QItemSelectionModel::NoUpdate);
    m_list->viewport()->update();
}

void Journal::paintPanel()
{
    ScreenForm::paintPanel();
    m_surveyRows.show(surveyRows(m_journal.surveys(), language()));
    m_list->setEmptyText(text(m_search->text().trimmed().isEmpty() ? u"DICA_DIARIO_VAZIO" : u"DICA_DIARIO_BUSCA"));
    m_list->setExportName(text(u"Diário de vistorias"));
    paintChoice();
    m_pages->showChosen(language());
    m_badge->setPanel(m_journal.panel());
}

void Journal::paintNote()
{
    if (m_note->text() != m_journal.note())
        m_note->setText(m_journal.note());
}

void Journal::btImprimir_Click()
{
    if (const std::optional<ReportDocument> report = m_journal.report())
        m_documents.make(*report, DocumentMaker::freePath(DocumentMaker::folder(), m_journal.fileName()),
                         DocumentMaker::Afterwards::Open);
}

void Journal::btJSON_Click()
{
    const auto write = [this](const QString &path) {
        if (const Result<Done> written = writeWhole(m_journal.json(), path); !written)
            tellUnwritten(written.trouble());
    };
    askForFile(this, {text(u"Exportar JSON"), m_journal.fileName(), FileKind::Json}, write);
}

void Journal::Traducao_Form()
{
    m_search->setPlaceholderText(text(u"DICA_BUSCA_DIARIO"));
    m_search->setAccessibleName(text(u"Buscar"));
    m_lbNota->setText(text(u"Observação"));
    m_note->setAccessibleName(text(u"Observação"));
    m_note->setPlaceholderText(text(u"DICA_NOTA"));
    m_btComparar->setText(text(u"Comparar com…"));
    m_btTroca->setText(text(u"Comunicação bruta"));
    m_btImprimir->setText(text(u"Imprimir de novo"));
    m_btCsv->setText(text(u"Exportar CSV"));
    m_btJson->setText(text(u"Exportar JSON"));
    m_btExcluir->setText(text(u"Excluir"));
    m_btExcluir->setIcon(lineIcon(u"delete"));
    for (QPushButton *exported : {m_btCsv, m_btJson})
        exported->setIcon(lineIcon(u"export"));
    m_list->setAccessibleName(text(u"Diário de vistorias"));
    m_badge->setLanguage(language());
    m_list->setLanguage(language());
    m_pages->Traducao_Form(language());
}
