#include "findingdelegate.h"

#include "findingsmodel.h"
#include "glyph.h"
#include "theme.h"

#include <QApplication>
#include <QPainter>

using namespace Qt::StringLiterals;

static constexpr int kGlyphWidth = 14;

FindingDelegate::FindingDelegate(const FindingsModel &findings, QObject *parent)
    : QStyledItemDelegate(parent), m_findings(findings)
{
}

static QString deviationOf(const Judgement &finding)
{
    if (!finding.deviation)
        return {};
    const QString sign = *finding.deviation > 0 ? u"+"_s : QString();
    return sign + QString::number(*finding.deviation, 'f', 1) + u" %"_s;
}

static QString readingOf(const Judgement &finding)
{
    return finding.reference.isEmpty() ? finding.reading : finding.reading + u" / "_s + finding.reference;
}

/// A line with one text at its left, shortened where needed, and one at its right that is always whole.
static void paintLine(QPainter &painter, const QRect &line, const QString &left, const QString &right)
{
    const QFontMetrics metrics = painter.fontMetrics();
    const int room = line.width() - metrics.horizontalAdvance(right) - Spacing::control;
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, metrics.elidedText(left, Qt::ElideRight, room));
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, right);
}

static void paintFinding(QPainter &painter, const QRect &area, const Judgement &finding, const QString &screen,
                         bool chosen)
{
    const Theme &theme = currentTheme();
    const bool open = finding.verdict == Verdict::Fail;
    const QRect glyph(area.left(), area.top(), kGlyphWidth, area.height() / 2);
    paintGlyph(painter, glyph, glyphOf(finding.verdict), chosen ? theme.onAccent : inkColour(finding.verdict, theme));
    const QRect text = area.adjusted(kGlyphWidth + Spacing::control, 0, 0, 0);
    painter.setPen(chosen ? theme.onAccent : open ? theme.text : theme.dim);
    QFont strong = textFont();
    strong.setBold(open);
    painter.setFont(strong);
    paintLine(painter, text.adjusted(0, 0, 0, -text.height() / 2), finding.what, deviationOf(finding));
    painter.setPen(chosen ? theme.onAccent : theme.dim);
    painter.setFont(textFont(TextSize::Small));
    paintLine(painter, text.adjusted(0, text.height() / 2, 0, 0), readingOf(finding), screen);
}

void FindingDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem shown(option);
    QApplication::style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &shown, painter, option.widget);
    const QRect area = option.rect.adjusted(Spacing::control, Spacing::unit, -Spacing::control, -Spacing::unit);
    painter->save();
    const Judgement &finding = m_findings.finding(index.row());
    paintFinding(*painter, area, finding, m_findings.screenCaption(finding), option.state & QStyle::State_Selected);
    painter->setPen(currentTheme().border);
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    painter->restore();
}

QSize FindingDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    const int lines = QFontMetrics(textFont()).height() + QFontMetrics(textFont(TextSize::Small)).height();
    return {50 * Spacing::unit, lines + 3 * Spacing::unit};
}
