#include "reporttext.h"

#include "catalogue.h"
#include "reportmarks.h"
#include "sourcetext.h"
#include "visibletext.h"

#include <QFileInfo>
#include <QImageReader>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr double kTitlePoints = 15;
constexpr double kShopPoints = 11;
constexpr double kPoints = 9;
constexpr double kSmallPoints = 7;
constexpr double kCellPadding = 3;
constexpr QColor kDim{0x5a, 0x67, 0x73};
constexpr QColor kHead{0xee, 0xf1, 0xf4};
constexpr QSize kLogo{160, 60}; ///< the largest

enum class Weight
{
    Plain,
    Bold
};

QTextCharFormat face(double points, Weight weight = Weight::Plain, const QColor &colour = Qt::black)
{
    QTextCharFormat format;
    format.setFontPointSize(points);
    format.setFontWeight(weight == Weight::Bold ? QFont::Bold : QFont::Normal);
    format.setForeground(colour);
    return format;
}

QTextLength percent(double share)
{
    return QTextLength(QTextLength::PercentageLength, share);
}

QTextBlockFormat spaced(double above)
{
    QTextBlockFormat format;
    format.setTopMargin(above);
    return format;
}

void insertLogo(QTextCursor &cursor, const QString &file)
{
    if (const QImage picture = logoPicture(file); !picture.isNull()) {
        QTextImageFormat format;
        const QSize size = picture.size().scaled(kLogo, Qt::KeepAspectRatio).boundedTo(picture.size());
        format.setName(u"logo"_s);
        format.setWidth(size.width());
        format.setHeight(size.height());
        cursor.document()->addResource(QTextDocument::ImageResource, QUrl(u"logo"_s), picture);
        cursor.insertImage(format);
        cursor.insertBlock();
    }
}

/// "Model: IP 6s   Date: …": what is empty is left out.
void insertFacts(QTextCursor &cursor, const ReportDocument &report)
{
    const std::array<std::pair<QStringView, QString>, 4> facts = {{{u"Modelo", report.model},
                                                                   {u"Número de série", report.serial},
                                                                   {u"Data", report.date},
                                                                   {u"Observação", report.note}}};
    double above = 6;
    for (const auto &[key, text] : facts) {
        if (text.isEmpty())
            continue;
        cursor.insertBlock(spaced(std::exchange(above, 1)));
        cursor.insertText(caption(key, report.language) + ": "_L1, face(kPoints, Weight::Plain, kDim));
        cursor.insertText(onPaper(text), face(kPoints, Weight::Bold));
    }
}

void insertTitle(QTextCursor &cursor, const ReportDocument &report)
{
    if (!report.shop.isEmpty()) {
        cursor.insertText(onPaper(report.shop), face(kShopPoints, Weight::Bold));
        cursor.insertBlock();
    }
    cursor.insertText(onPaper(report.title), face(kTitlePoints, Weight::Bold));
}

constexpr std::array kByWeight = {FindingVerdict::Fail, FindingVerdict::Marginal, FindingVerdict::NotMeasured,
                                  FindingVerdict::Pass, FindingVerdict::NotJudged};

void insertCounts(QTextCursor &cursor, const ReportDocument &report)
{
    QTextBlockFormat counts = spaced(8);
    counts.setBottomMargin(8);
    cursor.insertBlock(counts);
    if (report.findings.isEmpty())
        return cursor.insertText(caption(u"Nada foi lido nem julgado.", report.language), face(kPoints));
    for (const FindingVerdict verdict : kByWeight) {
        const auto count = std::ranges::count(report.findings, verdict, &ReportFinding::verdict);
        if (count == 0)
            continue;
        ReportMarks::insertShape(cursor, verdict);
        cursor.insertText(u" %1: %2      "_s.arg(findingCaption(verdict, report.language)).arg(count),
                          face(kPoints, Weight::Bold, findingInk(verdict)));
    }
}

void insertUnder(QTextCursor &cursor, const QString &text)
{
    if (text.isEmpty())
        return;
    cursor.insertBlock();
    cursor.insertText(onPaper(text), face(kSmallPoints, Weight::Plain, kDim));
}

bool isTrouble(FindingVerdict verdict)
{
    return verdict != FindingVerdict::Pass && verdict != FindingVerdict::NotJudged;
}

void fillVerdict(QTextCursor cursor, const ReportFinding &finding, Language language)
{
    ReportMarks::insertShape(cursor, finding.verdict);
    cursor.insertText(u' ' + findingCaption(finding.verdict, language),
                      face(kPoints, Weight::Bold, findingInk(finding.verdict)));
}

/// What is wrong is told with the line of the reply that says so; what is good needs no proof.
void fillWhat(QTextCursor cursor, const ReportFinding &finding, Language)
{
    cursor.insertText(onPaper(finding.what), face(kPoints, Weight::Bold));
    insertUnder(cursor, finding.screen);
    insertUnder(cursor, finding.hint);
    if (isTrouble(finding.verdict))
        insertUnder(cursor, finding.line);
}

void fillReading(QTextCursor cursor, const ReportFinding &finding, Language)
{
    cursor.insertText(onPaper(finding.reading), face(kPoints));
}

void fillReference(QTextCursor cursor, const ReportFinding &finding, Language language)
{
    cursor.insertText(onPaper(finding.reference), face(kPoints));
    insertUnder(cursor, sourceText(finding.source, language));
}

void fillDeviation(QTextCursor cursor, const ReportFinding &finding, Language)
{
    cursor.insertText(onPaper(finding.deviationText), face(kPoints));
    if (!finding.deviation)
        return;
    cursor.insertBlock();
    ReportMarks::insertBar(cursor, {*finding.deviation, finding.tolerance.value_or(0), finding.verdict});
}

struct Column
{
    QStringView caption;
    double share; ///< per cent of the width
    void (*fill)(QTextCursor, const ReportFinding &, Language);
};

constexpr std::array kColumns = {
    Column{u"Veredito", 20, fillVerdict},     Column{u"Malha", 31, fillWhat},       Column{u"Leitura", 15, fillReading},
    Column{u"Referência", 18, fillReference}, Column{u"Desvio", 16, fillDeviation},
};

QTextTableFormat rowFormat()
{
    QTextTableFormat format;
    format.setBorder(0);
    format.setCellSpacing(0);
    format.setCellPadding(kCellPadding);
    format.setWidth(percent(100));
    QList<QTextLength> widths;
    for (const Column &column : kColumns)
        widths.append(percent(column.share));
    format.setColumnWidthConstraints(widths);
    return format;
}

void tint(QTextTableCell cell, const QColor &colour)
{
    QTextCharFormat format = cell.format();
    format.setBackground(colour);
    cell.setFormat(format);
}

/// The line that stands behind a table in every document takes no room here.
void flatten(QTextCursor cursor)
{
    constexpr double kNothing = 0.01;
    cursor.movePosition(QTextCursor::End);
    QTextBlockFormat format;
    format.setLineHeight(kNothing, QTextBlockFormat::FixedHeight);
    cursor.setBlockFormat(format);
}

/// Fills an empty document with one row; `fill` is called for each column.
template <typename Fill>
QTextTable &insertRow(QTextDocument &document, const Fill &fill)
{
    QTextCursor cursor(&document);
    QTextTable &row = *cursor.insertTable(1, static_cast<int>(kColumns.size()), rowFormat());
    flatten(cursor);
    for (int column = 0; column < row.columns(); ++column)
        fill(row.cellAt(0, column).firstCursorPosition(), kColumns[static_cast<std::size_t>(column)]);
    return row;
}

} // namespace

QImage logoPicture(const QString &file)
{
    constexpr qint64 kLargest = 16 << 20;
    constexpr int kMostDots = 40'000'000;
    const QFileInfo info(file);
    if (!info.isFile() || info.size() > kLargest) // a pipe would be waited for
        return {};
    QImageReader reader(file);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const bool isPlain = reader.format() == "png" || reader.format() == "jpeg"; // others open further files
    const QSize size = reader.size();
    return isPlain && size.width() <= kMostDots / std::max(1, size.height()) ? reader.read() : QImage();
}

/// The mark of an object in a text would be taken for one of the drawn ones.
QString onPaper(const QString &text)
{
    return visibleText(text).replace(QChar::ObjectReplacementCharacter, R"(\uFFFC)"_L1);
}

void layOutHead(QTextDocument &document, const ReportDocument &report)
{
    QTextCursor cursor(&document);
    insertLogo(cursor, report.logoFile);
    insertTitle(cursor, report);
    insertFacts(cursor, report);
    insertCounts(cursor, report);
}

void layOutColumns(QTextDocument &document, Language language)
{
    const QTextTable &row = insertRow(document, [language](QTextCursor cursor, const Column &column) {
        cursor.insertText(caption(column.caption, language), face(kPoints, Weight::Bold));
    });
    for (int column = 0; column < row.columns(); ++column)
        tint(row.cellAt(0, column), kHead);
}

void layOutFinding(QTextDocument &document, const ReportFinding &finding, Language language)
{
    const QTextTable &row = insertRow(document, [&finding, language](const QTextCursor &cursor, const Column &column) {
        column.fill(cursor, finding, language);
    });
    tint(row.cellAt(0, 0), findingField(finding.verdict));
}
