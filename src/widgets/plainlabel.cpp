#include "plainlabel.h"

#include "plaintext.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

using namespace Qt::StringLiterals;

/// What a label asks for at most, and what it cannot be made narrower than, in letters.
static constexpr int kWanted = 100;
static constexpr int kLeast = 24;
/// No room holds more.
static constexpr qsizetype kSeen = 2000;

PlainLabel::PlainLabel(const QString &text, QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText); // before there is a text
    setText(text);
}

QSize PlainLabel::bounded(const QSize &size, int letters) const
{
    return size.boundedTo({letters * fontMetrics().averageCharWidth(), QWIDGETSIZE_MAX});
}

QSize PlainLabel::sizeHint() const
{
    return pixmap().isNull() ? bounded(QLabel::sizeHint(), kWanted) : QLabel::sizeHint();
}

QSize PlainLabel::minimumSizeHint() const
{
    return pixmap().isNull() ? bounded(QLabel::minimumSizeHint(), kLeast) : QLabel::minimumSizeHint();
}

QRect PlainLabel::room() const
{
    return contentsRect().adjusted(margin(), margin(), -margin(), -margin());
}

bool PlainLabel::isCut() const
{
    const int wrap = wordWrap() ? Qt::TextWordWrap : 0;
    const QRect whole(0, 0, room().width(), QWIDGETSIZE_MAX);
    return fontMetrics().boundingRect(whole, wrap, text().left(kSeen)).width() > room().width();
}

bool PlainLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty() || !isCut())
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), plainToolTip(text()), this);
    return true;
}

static QString elided(const QFontMetrics &metrics, const QString &text, int width)
{
    QStringList lines;
    for (const QString &line : text.split(u'\n'))
        lines.append(metrics.elidedText(line, Qt::ElideRight, width));
    return lines.join(u'\n');
}

void PlainLabel::paintEvent(QPaintEvent *event)
{
    if (!isCut())
        return QLabel::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    const int wrap = wordWrap() ? Qt::TextWrapAnywhere : 0;
    const QString seen = text().left(kSeen);
    painter.drawText(room(), static_cast<int>(alignment()) | wrap,
                     wordWrap() ? seen : elided(fontMetrics(), seen, room().width()));
}
