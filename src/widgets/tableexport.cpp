#include "tableexport.h"

#include "catalogue.h"
#include "gridtext.h"
#include "icons.h"
#include "savedialog.h"
#include "wholefile.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QShortcut>

using namespace Qt::StringLiterals;

TableExport::TableExport(QWidget &view, const QAbstractItemModel &table, std::function<QString()> copied)
    : QObject(&view), m_view(view), m_table(table), m_copied(std::move(copied))
{
    view.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&view, &QWidget::customContextMenuRequested, this, &TableExport::openMenu);
    auto *const key = new QShortcut(QKeySequence::Copy, &view);
    key->setContext(Qt::WidgetWithChildrenShortcut);
    connect(key, &QShortcut::activated, this, &TableExport::copy);
}

QString TableExport::text() const
{
    QStringList lines;
    for (const QStringList &cells : tableText(m_table))
        lines.append(cells.join(u'\t'));
    return lines.join(u'\n');
}

QByteArray TableExport::csv() const
{
    return csvFile(tableText(m_table));
}

void TableExport::copy()
{
    QGuiApplication::clipboard()->setText(m_copied ? m_copied() : text());
}

void TableExport::exportCsv()
{
    const auto write = [this](const QString &path) {
        if (const Result<Done> written = writeWhole(csv(), path); !written)
            emit exportFailed(written.trouble());
    };
    askForFile(&m_view, {caption(u"Exportar CSV", m_language), m_name, FileKind::Csv}, write);
}

void TableExport::openMenu(const QPoint &place)
{
    auto *const menu = new QMenu(&m_view);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction *const copying =
        menu->addAction(lineIcon(u"copy"), caption(u"Copiar", m_language), this, &TableExport::copy);
    copying->setShortcut(QKeySequence::Copy);
    menu->addAction(lineIcon(u"export"), caption(u"Exportar CSV", m_language), this, &TableExport::exportCsv);
    menu->popup(m_view.mapToGlobal(place));
}
