#include "griddelegate.h"

#include "deviationbar.h"
#include "glyph.h"
#include "panelmodel.h"
#include "theme.h"

#include <QApplication>
#include <QPainter>

static constexpr int kInset = 4;
static constexpr int kGlyphWidth = 14;
static constexpr int kBarWidth = 61;
static constexpr int kBarHeight = 10;

GridDelegate::GridDelegate(const PanelModel &rows, QObject *parent) : QStyledItemDelegate(parent), m_rows(rows) {}

/// Faults and gaps colour their whole row; what passed stays calm.
static bool isField(Verdict verdict)
{
    return verdict == Verdict::Fail || verdict == Verdict::Incomplete;
}

static bool isTabular(ColumnKind kind)
{
    return kind == ColumnKind::Number || kind == ColumnKind::Deviation;
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
    // The bar and the shape stand left of the text.
    const int indent = kind == ColumnKind::Deviation ? kBarWidth : kind == ColumnKind::Verdict ? kGlyphWidth : 0;
    if (indent > 0)
        option->features |= QStyleOptionViewItem::HasDecoration;
    if (indent > 0)
        option->decorationSize = {indent + Spacing::unit, kBarHeight};
    // The frame around the one current cell says nothing where whole rows are chosen.
    option->state &= ~QStyle::State_HasFocus;
}

static QColor ink(const QStyleOptionViewItem &option)
{
    const bool chosen = option.state & QStyle::State_Selected;
    return option.palette.color(chosen ? QPalette::HighlightedText : QPalette::Text);
}

static void paintMarks(QPainter &painter, const DeviationBar &drawn, const QRect &area)
{
    for (const std::optional<int> mark : {drawn.lowMark, drawn.highMark}) {
        if (mark)
            painter.fillRect(*mark, area.top() - 3, 1, area.height() + 6, painter.pen().color());
    }
}

static void paintBar(QPainter &painter, const QStyleOptionViewItem &option, const Row &row)
{
    const QRect area(option.rect.left() + Spacing::control, option.rect.center().y() - kBarHeight / 2 + 1, kBarWidth,
                     kBarHeight);
    QColor line = ink(option);
    const DeviationBar drawn = deviationBar(area, *row.deviation, row.rule);
    const bool plain = isField(row.verdict) || (option.state & QStyle::State_Selected);
    painter.fillRect(drawn.bar, plain ? line : inkColour(row.verdict, currentTheme()));
    line.setAlphaF(0.55F);
    painter.setPen(line);
    painter.fillRect(drawn.zero, area.top() - 3, 1, area.height() + 6, ink(option));
    paintMarks(painter, drawn, area);
    if (!drawn.clipped)
        return;
    // A gap near the end of the bar: it goes on beyond the scale.
    const int gap = *row.deviation < 0 ? area.left() + 6 : area.right() - 9;
    painter.fillRect(gap, area.top(), 3, area.height(),
                     option.state & QStyle::State_Selected ? option.palette.color(QPalette::Highlight)
                                                           : option.backgroundBrush.color());
}

static void paintVerdict(QPainter &painter, const QStyleOptionViewItem &option, Verdict verdict)
{
    const QRect area(option.rect.left() + Spacing::control, option.rect.top(), kGlyphWidth, option.rect.height());
    const bool plain = isField(verdict) || (option.state & QStyle::State_Selected);
    paintGlyph(painter, area.adjusted(1, 0, -1, 0), glyphOf(verdict),
               plain ? ink(option) : inkColour(verdict, currentTheme()));
}

void GridDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem shown(option);
    initStyleOption(&shown, index);
    QApplication::style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &shown, painter, option.widget);
    // The colour reaches over the whole cell, the text keeps clear of its neighbours.
    QStyleOptionViewItem inner(option);
    inner.rect.adjust(kInset, 0, -kInset, 0);
    QStyledItemDelegate::paint(painter, inner, index);
    const Row &row = m_rows.row(index.row());
    const ColumnKind kind = m_rows.column(index.column()).kind;
    painter->save();
    if (kind == ColumnKind::Deviation && row.deviation)
        paintBar(*painter, shown, row);
    if (kind == ColumnKind::Verdict && row.verdict != Verdict::None)
        paintVerdict(*painter, shown, row.verdict);
    painter->restore();
}

QSize GridDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QSize hint = QStyledItemDelegate::sizeHint(option, index);
    return {hint.width() + 2 * kInset, hint.height()};
}
