#include "journalpages.h"

#include "catalogue.h"
#include "findingcolumns.h"
#include "journalscreen.h"
#include "panelgrid.h"
#include "screenform.h"
#include "textpane.h"

using namespace Qt::StringLiterals;

static constexpr std::array kOutputColumns = {
    GridColumn{u"Mudanca", u"Mudança", ColumnKind::Verdict},
    GridColumn{u"Achado", u"Achado", ColumnKind::Name},
    GridColumn{u"Leitura1", u"Leitura antes", ColumnKind::Number},
    GridColumn{u"Leitura2", u"Leitura depois", ColumnKind::Number},
    GridColumn{u"REF", u"Referência", ColumnKind::Number},
    GridColumn{u"PORC1", u"Desvio antes", ColumnKind::Number},
    GridColumn{u"PORC2", u"Desvio depois", ColumnKind::Deviation},
    GridColumn{u"Veredito1", u"Veredito antes"},
    GridColumn{u"Veredito2", u"Veredito depois"},
};

JournalPages::JournalPages(const JournalScreen &journal, QWidget *parent)
    : QStackedWidget(parent),
      m_journal(journal),
      m_findingRows(kFindingColumns),
      m_outputRows(kOutputColumns),
      m_findings(named(new PanelGrid(m_findingRows), u"DBGrid2"_s)),
      m_comparison(named(new PanelGrid(m_outputRows), u"DBGrid3"_s)),
      m_exchange(new TextPane(u"txtTroca"_s))
{
    addWidget(m_exchange);
    for (PanelGrid *grid : {m_findings, m_comparison}) {
        addWidget(grid);
        connect(grid, &PanelGrid::exportFailed, this, &JournalPages::exportFailed);
    }
}

void JournalPages::Traducao_Form(Language language)
{
    m_exchange->setAccessibleName(caption(u"Comunicação bruta", language));
    m_findings->setAccessibleName(caption(u"Achados", language));
    m_comparison->setAccessibleName(caption(u"Comparar com…", language));
    for (PanelGrid *grid : {m_findings, m_comparison})
        grid->setLanguage(language);
}

void JournalPages::showChosen(Language language)
{
    const QList<Row> &rows = m_journal.panel().rows;
    m_findingRows.show(m_journal.isComparing() ? QList<Row>() : rows);
    m_outputRows.show(m_journal.isComparing() ? rows : QList<Row>());
    m_findings->setEmptyText(caption(m_journal.chosen().isEmpty() ? u"DICA_DIARIO" : u"DICA_DIARIO_DUAS", language));
    for (PanelGrid *grid : {m_findings, m_comparison})
        grid->setExportName(m_journal.fileName());
    if (!m_journal.isExchangeShown())
        return setCurrentWidget(m_journal.isComparing() ? m_comparison : m_findings);
    if (m_exchangeText != m_journal.exchange()) // it stays where it is read
        m_exchange->replaceWith(m_exchangeText = m_journal.exchange());
    setCurrentWidget(m_exchange);
}

void JournalPages::exportCsv()
{
    (m_journal.isComparing() ? m_comparison : m_findings)->exportCsv();
}
