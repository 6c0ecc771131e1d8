#include "griddelegate.h"

#include "deviationbar.h"
#include "driftdrawing.h"
#include "glyph.h"
#include "panelmodel.h"
#include "theme.h"

#include <QApplication>
#include <QPainter>
#include <QtMath>

#include <cmath>

static constexpr int kInset = 4;
static constexpr int kGlyphWidth = 14;
static constexpr int kBarWidth = 61;
static constexpr int kBarHeight = 10;
static constexpr int kDriftWidth = 48;
static constexpr int kDriftHeight = 14;

GridDelegate::GridDelegate(const PanelModel &rows, QObject *parent) : QStyledItemDelegate(parent), m_rows(rows) {}

/// Faults and gaps colour their whole row; what passed stays calm.
static bool isField(Verdict verdict)
{
    return verdict == Verdict::Fail || verdict == Verdict::Incomplete;
}

static bool isTabular(ColumnKind kind)
{
    return kind == ColumnKind::Number || kind == ColumnKind::Deviation || kind == ColumnKind::Drift;
}

/// The drawing or the shape stands left of the text.
static int indentOf(ColumnKind kind)
{
    switch (kind) {
    case ColumnKind::Deviation:
        return kBarWidth;
    case ColumnKind::Drift:
        return kDriftWidth;
    case ColumnKind::Verdict:
        return kGlyphWidth;
    default:
        return 0;
    }
}

static void colourField(QStyleOptionViewItem &option, Verdict verdict)
{
    const Theme &theme = currentTheme();
    const QColor field = fieldColour(verdict, theme);
    option.backgroundBrush = field;
    option.palette.setColor(QPalette::Text, theme.onField);
    option.palette.setColor(QPalette::Highlight, field.darker(125));
    option.palette.setColor(QPalette::HighlightedText, theme.onField);
}

void GridDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const ColumnKind kind = m_rows.column(index.column()).kind;
    if (isTabular(kind))
        option->font = tabularFont();
    option->fontMetrics = QFontMetrics(option->font);
    const Verdict verdict = m_rows.row(index.row()).verdict;
    if (isField(verdict))
        colourField(*option, verdict);
    if (const int indent = indentOf(kind); indent > 0) {
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->decorationSize = {indent + Spacing::unit, kBarHeight};
    }
    // The frame around the one current cell says nothing where whole rows are chosen.
    option->state &= ~QStyle::State_HasFocus;
}

static QColor ink(const QStyleOptionViewItem &option)
{
    const bool chosen = option.state & QStyle::State_Selected;
    return option.palette.color(chosen ? QPalette::HighlightedText : QPalette::Text);
}

static void paintBar(QPainter &painter, const QStyleOptionViewItem &option, const Row &row)
{
    const QRect area(option.rect.left() + Spacing::control, option.rect.center().y() - kBarHeight / 2 + 1, kBarWidth,
                     kBarHeight);
    const bool chosen = option.state & QStyle::State_Selected;
    const QColor line = ink(option);
    paintDeviation(painter, area, *row.deviation, row.rule,
                   {.bar = chosen || isField(row.verdict) ? line : inkColour(row.verdict, currentTheme()),
                    .line = line,
                    .behind = chosen ? option.palette.color(QPalette::Highlight) : option.backgroundBrush.color()});
}

static void paintDrift(QPainter &painter, const QStyleOptionViewItem &option, const Row &row)
{
    const QRect area(option.rect.left() + Spacing::control, option.rect.center().y() - kDriftHeight / 2 + 1,
                     kDriftWidth, kDriftHeight);
    paintDrift(painter, area, row.drift, ink(option));
}

static void paintVerdict(QPainter &painter, const QStyleOptionViewItem &option, Verdict verdict)
{
    const QRect area(option.rect.left() + Spacing::control, option.rect.top(), kGlyphWidth, option.rect.height());
    const bool plain = isField(verdict) || (option.state & QStyle::State_Selected);
    paintGlyph(painter, area.adjusted(1, 0, -1, 0), glyphOf(verdict),
               plain ? ink(option) : inkColour(verdict, currentTheme()));
}

/// The texts of a board are few and come again with every painting.
const QStaticText &GridDelegate::shaped(const QString &text, ColumnKind kind, const QFont &font) const
{
    constexpr qsizetype kMany = 4096;
    QHash<QString, QStaticText> &known = m_shaped[isTabular(kind) ? 1 : 0];
    if (known.size() > kMany)
        known.clear();
    auto found = known.find(text);
    if (found == known.end()) {
        found = known.insert(text, QStaticText(text));
        found->setTextFormat(Qt::PlainText);
        found->prepare({}, font);
    }
    return *found;
}

static int textMargin()
{
    return QApplication::style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
}

void GridDelegate::paintText(QPainter &painter, const QStyleOptionViewItem &option, ColumnKind kind) const
{
    const int margin = kInset + textMargin();
    const int indent = indentOf(kind) > 0 ? indentOf(kind) + Spacing::unit + textMargin() : 0;
    const QRect area = option.rect.adjusted(margin + indent, 0, -margin, 0);
    const QStaticText *text = &shaped(option.text, kind, option.font);
    if (text->size().width() > area.width())
        text = &shaped(option.fontMetrics.elidedText(option.text, Qt::ElideRight, area.width()), kind, option.font);
    const bool right = option.displayAlignment & Qt::AlignRight;
    const double left = right ? area.right() + 1 - text->size().width() : area.left();
    painter.setFont(option.font);
    painter.setPen(ink(option));
    painter.drawStaticText(QPointF(left, area.top() + std::round((area.height() - text->size().height()) / 2)), *text);
}

void GridDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem shown(option);
    initStyleOption(&shown, index);
    const Row &row = m_rows.row(index.row());
    const ColumnKind kind = m_rows.column(index.column()).kind;
    painter->save();
    if (isField(row.verdict) || (shown.state & QStyle::State_Selected)) // the row itself is there already
        QApplication::style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &shown, painter, option.widget);
    paintText(*painter, shown, kind);
    if (kind == ColumnKind::Deviation && row.deviation)
        paintBar(*painter, shown, row);
    if (kind == ColumnKind::Drift && row.largestDrift())
        paintDrift(*painter, shown, row);
    if (kind == ColumnKind::Verdict && row.verdict != Verdict::None)
        paintVerdict(*painter, shown, row.verdict);
    painter->restore();
}

QSize GridDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const ColumnKind kind = m_rows.column(index.column()).kind;
    const QStaticText &text = shaped(index.data().toString(), kind, isTabular(kind) ? tabularFont() : option.font);
    const int indent = indentOf(kind) > 0 ? indentOf(kind) + Spacing::unit + textMargin() : 0;
    const int width = qCeil(text.size().width()) + indent + 2 * (textMargin() + kInset);
    return {width, option.fontMetrics.height()};
}
