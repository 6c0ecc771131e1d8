#include "differenceview.h"

#include "emptytext.h"
#include "theme.h"

#include <QHeaderView>

#include <algorithm>

using namespace Qt::StringLiterals;

static constexpr int kRowHeight = 5 * Spacing::unit;
static constexpr int kSignWidth = 28;
static constexpr int kChangeWidth = 260;

DifferenceView::DifferenceView(QWidget *parent) : QTableView(parent)
{
    setObjectName(u"ListaDiferencas"_s);
    setModel(&m_model);
    setFont(tabularFont());
    setSelectionBehavior(SelectRows);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setVerticalScrollMode(ScrollPerItem);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(kRowHeight);
    verticalHeader()->setDefaultSectionSize(kRowHeight);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setMinimumSectionSize(kSignWidth);
    for (const auto column : {DifferenceModel::Live, DifferenceModel::Recorded})
        horizontalHeader()->setSectionResizeMode(column, QHeaderView::Stretch);
    setColumnWidth(DifferenceModel::Sign, kSignWidth);
    setColumnWidth(DifferenceModel::Change, kChangeWidth);
    connect(&m_export, &TableExport::exportFailed, this, &DifferenceView::exportFailed);
}

void DifferenceView::showDifference(const ReplyDifference &difference)
{
    m_model.show(difference);
    goTo(difference.first());
}

void DifferenceView::setLanguage(Language language)
{
    m_model.setLanguage(language);
    m_export.setLanguage(language);
}

void DifferenceView::setEmptyText(const QString &text)
{
    m_emptyText = text;
    viewport()->update();
}

void DifferenceView::next()
{
    goTo(m_model.difference().next(currentIndex().row()));
}

void DifferenceView::previous()
{
    goTo(m_model.difference().previous(currentIndex().isValid() ? currentIndex().row() : 0));
}

void DifferenceView::goTo(std::optional<qsizetype> row)
{
    if (!row)
        return;
    const QModelIndex place = m_model.index(static_cast<int>(*row), DifferenceModel::Live);
    setCurrentIndex(place);
    scrollTo(place, PositionAtCenter);
}

static QString lineOf(const DifferenceRow &row)
{
    return QStringList{row.live, row.recorded, row.change}.join(u'\t');
}

QString DifferenceView::copyText() const
{
    const QModelIndexList chosen = selectionModel()->selectedRows();
    const QList<DifferenceRow> &rows = m_model.difference().rows;
    QList<int> places;
    for (const QModelIndex &index : chosen)
        places.append(index.row());
    std::ranges::sort(places);
    QStringList lines;
    for (const int place : places)
        lines.append(lineOf(rows.at(place)));
    if (places.isEmpty())
        for (const DifferenceRow &row : rows)
            if (row.differs())
                lines.append(lineOf(row));
    return lines.join(u'\n');
}

void DifferenceView::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (m_model.rowCount() == 0)
        paintEmptyText(*this, m_emptyText);
}

/// A difference that was gone to before the view was shown, or larger, stays in sight.
void DifferenceView::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    if (currentIndex().isValid())
        scrollTo(currentIndex(), PositionAtCenter);
}
