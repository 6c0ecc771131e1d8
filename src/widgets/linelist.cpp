#include "linelist.h"

#include "glyph.h"
#include "theme.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

static constexpr int kLineHeight = 6 * Spacing::unit;
static constexpr int kGlyphRoom = 4 * Spacing::unit;

namespace {

/// Draws the shape into the blanks that a line begins with, and colours what is faulty or was not measured.
class LineDelegate : public QStyledItemDelegate
{
public:
    explicit LineDelegate(LineList &list) : QStyledItemDelegate(&list), m_list(list) {}

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const Verdict verdict = m_list.verdict(index.row());
        const bool isField = verdict == Verdict::Fail || verdict == Verdict::Incomplete;
        const bool isChosen = option.state & QStyle::State_Selected;
        const Theme &theme = currentTheme();
        if (isChosen || isField)
            painter->fillRect(option.rect, isChosen ? theme.accent : fieldColour(verdict, theme));
        const QColor ink = isChosen ? theme.onAccent : isField ? theme.onField : theme.text;
        if (verdict != Verdict::None)
            paintGlyph(*painter, QRect(option.rect.left() + Spacing::unit, option.rect.top(), kGlyphRoom, kLineHeight),
                       glyphOf(verdict), isChosen || isField ? ink : inkColour(verdict, theme));
        painter->setPen(ink);
        painter->setFont(option.font);
        painter->drawText(option.rect, Qt::AlignVCenter, index.data().toString());
    }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const int text = option.fontMetrics.horizontalAdvance(index.data().toString());
        return {text + Spacing::control, kLineHeight};
    }

private:
    LineList &m_list;
};

} // namespace

LineList::LineList(QWidget *parent) : QListView(parent)
{
    setModel(&m_lines);
    setItemDelegate(new LineDelegate(*this));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ExtendedSelection);
    setFont(tabularFont(TextSize::Small));
}

void LineList::setLines(const QStringList &lines)
{
    if (lines != m_lines.stringList())
        m_lines.setStringList(lines);
}

void LineList::setVerdicts(const QList<Verdict> &verdicts)
{
    m_verdicts = verdicts;
    viewport()->update();
}

QString LineList::copyText() const
{
    QModelIndexList chosen = selectedIndexes();
    if (chosen.isEmpty())
        return m_lines.stringList().join(u'\n');
    std::sort(chosen.begin(), chosen.end());
    QStringList lines;
    for (const QModelIndex &line : std::as_const(chosen))
        lines.append(line.data().toString());
    return lines.join(u'\n');
}

void LineList::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy))
        QGuiApplication::clipboard()->setText(copyText());
    else
        QListView::keyPressEvent(event);
}
