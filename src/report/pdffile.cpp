#include "pdffile.h"

#include "busdrawing.h"
#include "wholefile.h"

#include <QBuffer>
#include <QFontDatabase>
#include <QPageSize>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

using namespace Qt::StringLiterals;

namespace {

constexpr double kPoints = 10;
constexpr double kCellPadding = 3;
constexpr int kFirstColumn = 48; ///< per cent of a table's width

void layOut(QTextTable &table)
{
    QTextTableFormat format = table.format();
    format.setBorder(0.5);
    format.setBorderCollapse(true);
    format.setBorderBrush(Qt::lightGray);
    format.setCellPadding(kCellPadding);
    format.setHeaderRowCount(1); // also on the next page
    format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    if (table.columns() == 2)
        format.setColumnWidthConstraints({QTextLength(QTextLength::PercentageLength, kFirstColumn),
                                          QTextLength(QTextLength::PercentageLength, 100 - kFirstColumn)});
    table.setFormat(format);
}

void layOutTables(const QTextDocument &document)
{
    const QList<QTextFrame *> frames = document.rootFrame()->childFrames();
    for (QTextFrame *frame : frames)
        if (auto *table = qobject_cast<QTextTable *>(frame))
            layOut(*table);
}

/// Every chapter but the first begins a page.
void partChapters(const QTextDocument &document)
{
    for (QTextBlock block = document.begin().next(); block.isValid(); block = block.next()) {
        QTextBlockFormat format = block.blockFormat();
        if (format.headingLevel() != 1)
            continue;
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        QTextCursor(block).setBlockFormat(format);
    }
}

} // namespace

Result<Done> writePdf(const QString &markdown, const QString &title, const QString &path)
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    BusDrawing maps; // outlives the document
    QTextDocument document;
    QFont face = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    face.setPointSizeF(kPoints);
    document.setDefaultFont(face);
    document.setMarkdown(markdown);
    layOutTables(document);
    partChapters(document);
    maps.addTo(document);
    {
        QPdfWriter writer(&bytes);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setTitle(title);
        writer.setCreator(u"Tavimo Prelt"_s);
        document.print(&writer);
    }
    return writeWhole(bytes.data(), path);
}
