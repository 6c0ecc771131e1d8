#include "textpane.h"

#include "longlines.h"
#include "theme.h"
#include "visibletext.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QWheelEvent>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

static constexpr auto kPaintInterval = 80ms;
/// What one painting takes in.
static constexpr qsizetype kTextPerPaint = 32768;
/// What is shown of a text with few line ends.
static constexpr qsizetype kTextShown = 4 << 20;
static constexpr double kSmallest = 6;
static constexpr double kLargest = 32;

TextPane::TextPane(const QString &name, QWidget *parent) : QPlainTextEdit(parent), m_points(tabularFont().pointSizeF())
{
    setObjectName(name);
    setEditable(false);
    setLineWrapMode(NoWrap);
    setFont(tabularFont());
    setTabChangesFocus(true);
    m_timer.setInterval(kPaintInterval);
    connect(&m_timer, &QTimer::timeout, this, &TextPane::TimerTexto_Timer);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &TextPane::markSeen);
    connect(this, &QPlainTextEdit::textChanged, this, &TextPane::markSeen);
}

void TextPane::setEditable(bool editable)
{
    setReadOnly(!editable);
    setUndoRedoEnabled(editable);
    setMaximumBlockCount(editable ? 0 : kLinesShown);
}

void TextPane::add(const QString &text)
{
    QScrollBar *bar = verticalScrollBar();
    const bool atEnd = bar->value() == bar->maximum();
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    end.insertText(text);
    if (atEnd)
        bar->setValue(bar->maximum());
}

void TextPane::addSoon(const QString &text)
{
    m_soon += text;
    if (m_soon.size() > 2 * kTextPerPaint)
        m_soon = u"…\n"_s + m_soon.right(kTextPerPaint);
    if (!m_timer.isActive())
        m_timer.start();
}

void TextPane::TimerTexto_Timer()
{
    if (m_soon.isEmpty() || m_soon == u"\r")
        return m_timer.stop();
    const qsizetype whole = m_soon.endsWith(u'\r') ? m_soon.size() - 1 : m_soon.size(); // its line feed may follow
    add(brokenLines(visibleText(QStringView(m_soon).first(whole))));
    m_soon.remove(0, whole);
}

void TextPane::replaceWith(const QString &text)
{
    m_soon.clear();
    m_linesOfText = static_cast<int>(text.count(u'\n')) + 1;
    if (!isReadOnly())
        return setPlainText(visibleText(text));
    const QStringView newest = lastLines(text, kLinesShown);
    setPlainText(brokenLines(visibleText(newest.last(std::min(newest.size(), kTextShown)))));
}

void TextPane::mark(const QString &text)
{
    m_marked = text;
    markSeen();
}

/// Only what is seen: a text may hold thousands of hits.
void TextPane::markSeen()
{
    if (m_marked.isEmpty() && extraSelections().isEmpty())
        return;
    QList<QTextEdit::ExtraSelection> marks;
    QTextCharFormat format;
    format.setBackground(currentTheme().warnField);
    format.setForeground(currentTheme().onField);
    const int bottom = viewport()->height();
    QTextBlock block = m_marked.isEmpty() ? QTextBlock() : firstVisibleBlock();
    for (; block.isValid() && blockBoundingGeometry(block).translated(contentOffset()).top() < bottom;
         block = block.next()) {
        const QString line = block.text();
        for (qsizetype at = 0; (at = line.indexOf(m_marked, at, Qt::CaseInsensitive)) >= 0; at += m_marked.size()) {
            QTextCursor place(block);
            place.setPosition(block.position() + static_cast<int>(at));
            place.setPosition(place.position() + static_cast<int>(m_marked.size()), QTextCursor::KeepAnchor);
            marks.append({place, format});
        }
    }
    setExtraSelections(marks);
}

int TextPane::hitsBefore(int position) const
{
    int count = 0;
    for (QTextBlock block = document()->begin(); block.isValid() && block.position() < position; block = block.next()) {
        const QString line = block.text();
        for (qsizetype at = 0; (at = line.indexOf(m_marked, at, Qt::CaseInsensitive)) >= 0; at += m_marked.size())
            count += block.position() + at < position ? 1 : 0;
    }
    return count;
}

int TextPane::hits() const
{
    return m_marked.isEmpty() ? 0 : hitsBefore(std::numeric_limits<int>::max());
}

int TextPane::chosenHit() const
{
    const QTextCursor cursor = textCursor();
    const bool isHit = cursor.selectedText().compare(m_marked, Qt::CaseInsensitive) == 0 && !m_marked.isEmpty();
    return isHit ? hitsBefore(cursor.selectionStart()) + 1 : 0;
}

void TextPane::zoom(int steps)
{
    m_points = steps == 0 ? tabularFont().pointSizeF() : std::clamp(m_points + steps, kSmallest, kLargest);
    QFont face = font();
    face.setPointSizeF(m_points);
    setFont(face);
}

/// A letter, and no key that steers.
static bool isTyping(const QKeyEvent &event)
{
    const bool isPlain = (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
    return isPlain && !event.text().isEmpty() && event.text().front().isPrint();
}

void TextPane::keyPressEvent(QKeyEvent *event)
{
    if (isReadOnly() && isTyping(*event))
        emit typedInVain();
    if (event->matches(QKeySequence::ZoomIn) || (event->key() == Qt::Key_Equal && event->modifiers() == Qt::CTRL))
        zoom(1);
    else if (event->matches(QKeySequence::ZoomOut))
        zoom(-1);
    else if (event->key() == Qt::Key_0 && event->modifiers() == Qt::CTRL)
        zoom(0);
    else
        QPlainTextEdit::keyPressEvent(event);
}

void TextPane::wheelEvent(QWheelEvent *event)
{
    if (event->modifiers() != Qt::CTRL)
        return QPlainTextEdit::wheelEvent(event);
    if (event->angleDelta().y() != 0)
        zoom(event->angleDelta().y() > 0 ? 1 : -1);
}

void TextPane::resizeEvent(QResizeEvent *event)
{
    QPlainTextEdit::resizeEvent(event);
    markSeen();
}
