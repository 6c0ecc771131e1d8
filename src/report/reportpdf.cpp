#include "reportpdf.h"

#include "catalogue.h"
#include "paging.h"
#include "reportmarks.h"
#include "reporttext.h"
#include "wholefile.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QTextDocument>

#include <deque>

using namespace Qt::StringLiterals;

namespace {

constexpr int kDotsPerInch = 1200;
constexpr double kPointsPerInch = 72;
constexpr double kPoint = kDotsPerInch / kPointsPerInch;
constexpr double kMarginMillimetres = 15;
constexpr double kFooterPoints = 18;
constexpr double kFooterTextPoints = 7.5;
constexpr double kHairlinePoints = 0.5;
constexpr QColor kHairline{0xc3, 0xca, 0xd2};
constexpr QColor kDim{0x5a, 0x67, 0x73};

void setUp(QPdfWriter &writer, const QString &title)
{
    writer.setResolution(kDotsPerInch);
    writer.setPageSize(QPageSize(QPageSize::A4));
    const QMarginsF margins(kMarginMillimetres, kMarginMillimetres, kMarginMillimetres, kMarginMillimetres);
    writer.setPageMargins(margins, QPageLayout::Millimeter);
    writer.setTitle(title);
    writer.setCreator(u"Tavimo Prelt"_s);
}

/// A part of a report with what draws its marks.
struct Part
{
    explicit Part(QPdfWriter &writer)
    {
        document.setUndoRedoEnabled(false);
        document.setDocumentMargin(0);
        document.documentLayout()->setPaintDevice(&writer);
        document.setTextWidth(writer.width());
    }

    QTextDocument document;
    ReportMarks marks{document};
};

/// The ink is that of paper, whatever the theme of the window.
void draw(QPainter &painter, const Slice &slice)
{
    const double width = painter.device()->width();
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, Qt::black);
    context.clip = QRectF(0, slice.from, width, slice.height);
    painter.save();
    painter.translate(0, slice.top - slice.from);
    painter.setClipRect(context.clip);
    slice.part->documentLayout()->draw(&painter, context);
    painter.restore();
}

/// Under every row, not under the head of the report, which is the first part.
void drawHairline(QPainter &painter, const Slice &slice)
{
    const double bottom = slice.top + slice.height - kHairlinePoints * kPoint;
    painter.fillRect(QRectF(0, bottom, painter.device()->width(), kHairlinePoints * kPoint), kHairline);
}

void drawFooter(QPainter &painter, const QString &pageNumber)
{
    QFont font = painter.font();
    font.setPointSizeF(kFooterTextPoints);
    painter.setFont(font);
    painter.setPen(kDim);
    const QRect area(0, 0, painter.device()->width(), painter.device()->height());
    painter.drawText(area, Qt::AlignBottom | Qt::AlignLeft | Qt::TextSingleLine, u"Tavimo Prelt"_s);
    painter.drawText(area, Qt::AlignBottom | Qt::AlignRight | Qt::TextSingleLine, pageNumber);
}

void drawPages(QPdfWriter &writer, const Paging &paging, Language language)
{
    QPainter painter(&writer);
    int drawn = -1;
    for (const Slice &slice : paging.slices()) {
        if (slice.page != drawn) {
            if (drawn >= 0)
                writer.newPage();
            drawn = slice.page;
            drawFooter(painter, caption(u"Página %1 de %2", language).arg(drawn + 1).arg(paging.pages()));
        }
        draw(painter, slice);
        if (slice.part != paging.slices().first().part)
            drawHairline(painter, slice);
    }
}

QByteArray pdfOf(const ReportDocument &report)
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter writer(&bytes);
    setUp(writer, onPaper(report.title));
    std::deque<Part> parts; // they stay where they are
    Paging paging(QSizeF(writer.width(), writer.height() - kFooterPoints * kPoint));
    layOutHead(parts.emplace_back(writer).document, report);
    paging.place(parts.back().document);
    if (!report.findings.isEmpty()) {
        layOutColumns(parts.emplace_back(writer).document, report.language);
        paging.placeOnEveryPage(parts.back().document);
    }
    for (const ReportFinding &finding : report.findings) {
        layOutFinding(parts.emplace_back(writer).document, finding, report.language);
        paging.place(parts.back().document);
    }
    drawPages(writer, paging, report.language);
    return bytes.data();
}

} // namespace

Result<Done> writeReport(const ReportDocument &report, const QString &path)
{
    return writeWhole(pdfOf(report), path);
}

std::optional<Notice> logoTrouble(const QString &file)
{
    if (file.isEmpty() || !logoPicture(file).isNull())
        return {};
    return Notice{u"LOGO_NOT_READ"_s, {file}};
}
