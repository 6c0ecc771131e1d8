#include "plaintext.h"

#include <QTextDocument>

using namespace Qt::StringLiterals;

static constexpr qsizetype kTipWidth = 80;
static constexpr qsizetype kLongestTip = 4000;

/// Breaks a line where it has a blank, or else anywhere: a tooltip is as wide as its longest line.
static QString wrapped(QStringView line)
{
    QString lines;
    while (line.size() > kTipWidth) {
        const qsizetype blank = line.lastIndexOf(u' ', kTipWidth);
        const qsizetype end = blank > 0 ? blank : kTipWidth;
        lines += line.first(end);
        lines += u'\n';
        line = line.sliced(blank > 0 ? end + 1 : end);
    }
    return lines += line;
}

static QString forTip(const QString &text)
{
    QStringList lines;
    for (const QStringView line : QStringView(text).left(kLongestTip).split(u'\n'))
        lines.append(wrapped(line));
    return lines.join(u'\n') + (text.size() > kLongestTip ? u"…"_s : QString());
}

QString plainToolTip(const QString &text)
{
    const QString tip = forTip(text);
    return Qt::mightBeRichText(tip) ? Qt::convertFromPlainText(tip) : tip;
}

QString tabularToolTip(const QString &text)
{
    return u"<pre>%1</pre>"_s.arg(forTip(text).toHtmlEscaped());
}

QMessageBox *plainBox(const QString &title, const QString &text, QMessageBox::StandardButtons buttons, QWidget *parent)
{
    auto *box = new QMessageBox(parent);
    box->setTextFormat(Qt::PlainText); // before there is a text: nothing is laid out as markup even once
    box->setWindowTitle(title);
    box->setStandardButtons(buttons);
    box->setText(text);
    return box;
}
