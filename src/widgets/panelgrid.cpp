#include "panelgrid.h"

#include "emptytext.h"
#include "griddelegate.h"
#include "gridtext.h"
#include "panelmodel.h"
#include "theme.h"

#include <QHeaderView>

using namespace Qt::StringLiterals;

/// Close rows: a whole board is to be seen at once, and nobody has to hit a row with a finger.
static constexpr int kRowHeight = 5 * Spacing::unit;

static constexpr int kLeastColumn = 48;
static constexpr int kCaptionPadding = 14;

PanelGrid::PanelGrid(PanelModel &rows, QWidget *parent)
    : QTableView(parent), m_rows(rows), m_export(new TableExport(*this, rows, [this] { return copyText(); }))
{
    setModel(&rows);
    setItemDelegate(new GridDelegate(rows, this));
    setSelectionBehavior(SelectRows);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(kRowHeight);
    verticalHeader()->setDefaultSectionSize(kRowHeight);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultSectionSize(kLeastColumn);
    connect(m_export, &TableExport::exportFailed, this, &PanelGrid::exportFailed);
    connect(&rows, &PanelModel::modelReset, this, &PanelGrid::narrowColumns);
    connect(&rows, &PanelModel::shown, this, &PanelGrid::fitColumns);
}

void PanelGrid::setLanguage(Language language)
{
    m_export->setLanguage(language);
    m_rows.setLanguage(language);
}

void PanelGrid::setEmptyText(const QString &text)
{
    m_emptyText = text;
    viewport()->update();
}

/// Other rails need other widths.
void PanelGrid::narrowColumns()
{
    for (int column = 0; column < m_rows.columnCount(); ++column)
        setColumnWidth(column, kLeastColumn);
}

/// A column grows with its texts and does not shrink under the user's hand while the same rails are shown.
void PanelGrid::fitColumns()
{
    for (int column = 0; column < m_rows.columnCount(); ++column) {
        const QString above = m_rows.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        const int caption = horizontalHeader()->fontMetrics().horizontalAdvance(above) + kCaptionPadding;
        const int wanted = std::max(sizeHintForColumn(column), caption);
        if (wanted > columnWidth(column))
            setColumnWidth(column, wanted);
    }
}

QString PanelGrid::copyText() const
{
    const QModelIndexList chosen = selectedIndexes();
    return chosen.isEmpty() ? m_export->text() : copiedText(chosen);
}

void PanelGrid::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (m_rows.rowCount() == 0)
        paintEmptyText(*this, m_emptyText);
}
