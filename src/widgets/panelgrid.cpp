#include "panelgrid.h"

#include "catalogue.h"
#include "emptytext.h"
#include "griddelegate.h"
#include "gridtext.h"
#include "icons.h"
#include "panelmodel.h"
#include "theme.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QSaveFile>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

/// Close rows: a whole board is to be seen at once, and nobody has to hit a row with a finger.
static constexpr int kRowHeight = 5 * Spacing::unit;

static constexpr int kLeastColumn = 48;
static constexpr int kCaptionPadding = 14;

PanelGrid::PanelGrid(PanelModel &rows, QWidget *parent) : QTableView(parent), m_rows(rows)
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
    connect(&rows, &PanelModel::modelReset, this, &PanelGrid::narrowColumns);
    connect(&rows, &PanelModel::shown, this, &PanelGrid::fitColumns);
}

void PanelGrid::setLanguage(Language language)
{
    m_language = language;
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

static QString lineOf(const QStringList &cells)
{
    return cells.join(u'\t');
}

QString PanelGrid::copyText() const
{
    const QModelIndexList chosen = selectedIndexes();
    if (!chosen.isEmpty())
        return copiedText(chosen);
    QStringList lines;
    for (const QStringList &cells : tableText(m_rows))
        lines.append(lineOf(cells));
    return lines.join(u'\n');
}

QByteArray PanelGrid::csv() const
{
    return csvFile(tableText(m_rows));
}

void PanelGrid::copy()
{
    QGuiApplication::clipboard()->setText(copyText());
}

void PanelGrid::exportCsv()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    auto *const dialog = new QFileDialog(this, caption(u"Exportar CSV", m_language), folder, u"CSV (*.csv)"_s);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(u"csv"_s);
    dialog->selectFile(m_exportName + u".csv"_s);
    connect(dialog, &QFileDialog::fileSelected, this, &PanelGrid::writeCsv);
    dialog->open();
}

void PanelGrid::writeCsv(const QString &path)
{
    QSaveFile file(path);
    const QByteArray bytes = csv();
    const bool written = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    if (written)
        emit exported(path);
    else
        emit exportFailed(path, file.errorString());
}

void PanelGrid::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (m_rows.rowCount() == 0)
        paintEmptyText(*this, m_emptyText);
}

void PanelGrid::contextMenuEvent(QContextMenuEvent *event)
{
    auto *const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction *const copying = menu->addAction(lineIcon(u"copy"), caption(u"Copiar", m_language), this, &PanelGrid::copy);
    copying->setShortcut(QKeySequence::Copy);
    menu->addAction(lineIcon(u"export"), caption(u"Exportar CSV", m_language), this, &PanelGrid::exportCsv);
    menu->popup(event->globalPos());
}

void PanelGrid::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy))
        copy();
    else
        QTableView::keyPressEvent(event);
}
