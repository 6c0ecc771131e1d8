#include "exchangedrawer.h"

#include "catalogue.h"
#include "icons.h"
#include "theme.h"
#include "visibletext.h"

#include <QDateTime>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QToolButton>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

static constexpr auto kPaintInterval = 80ms;
/// What one painting takes in; of a flood the newest is shown, all of it is in the file.
static constexpr qsizetype kBytesPerPaint = 32768;
static constexpr int kLinesShown = 10000;
/// Text without line ends is broken: endless lines cost the square of their length to lay out.
static constexpr qsizetype kLongestLine = 1000;

template <typename T>
static T *named(T *control, const QString &name)
{
    control->setObjectName(name);
    return control;
}

ExchangeDrawer::ExchangeDrawer(ExchangeLog &log, QWidget *parent)
    : QWidget(parent),
      m_log(log),
      m_text(named(new QPlainTextEdit, u"txtLog"_s)),
      m_find(named(new QLineEdit, u"txtLocalizar"_s)),
      m_hit(new QLabel),
      m_next(named(new QToolButton, u"btProximo"_s)),
      m_previous(named(new QToolButton, u"btAnterior"_s)),
      m_copy(named(new QToolButton, u"btCopiarLog"_s)),
      m_save(named(new QToolButton, u"btSalvarLog"_s))
{
    setObjectName(u"FrameLog"_s);
    m_text->setReadOnly(true);
    m_text->setMaximumBlockCount(kLinesShown);
    m_text->setUndoRedoEnabled(false);
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_text->setFont(tabularFont());
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Spacing::control, Spacing::unit, Spacing::control, Spacing::unit);
    layout->setSpacing(Spacing::unit);
    layout->addWidget(tools());
    layout->addWidget(m_text, 1);
    m_timer.setInterval(kPaintInterval);
    connect(&m_timer, &QTimer::timeout, this, &ExchangeDrawer::TimerLog_Timer);
    connect(&m_log, &ExchangeLog::added, this, &ExchangeDrawer::wake);
}

QWidget *ExchangeDrawer::tools()
{
    auto *bar = new QWidget;
    auto *row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Spacing::unit);
    m_find->setMaximumWidth(260);
    m_find->setClearButtonEnabled(true);
    m_next->setArrowType(Qt::DownArrow);
    m_previous->setArrowType(Qt::UpArrow);
    row->addWidget(m_find);
    row->addWidget(m_previous);
    row->addWidget(m_next);
    row->addWidget(m_hit);
    row->addStretch();
    row->addWidget(m_copy);
    row->addWidget(m_save);
    connect(m_find, &QLineEdit::returnPressed, this, [this] { find(false); });
    connect(m_next, &QToolButton::clicked, this, [this] { find(false); });
    connect(m_previous, &QToolButton::clicked, this, [this] { find(true); });
    connect(m_copy, &QToolButton::clicked, this, [this] {
        if (!m_text->textCursor().hasSelection())
            m_text->selectAll();
        m_text->copy();
    });
    connect(m_save, &QToolButton::clicked, this, &ExchangeDrawer::save);
    return bar;
}

void ExchangeDrawer::Traducao_Form(Language language)
{
    m_language = language;
    struct Caption
    {
        QToolButton *button;
        QStringView icon;
        QStringView key;
    };
    for (const auto &[button, icon, key] :
         {Caption{m_copy, u"copy", u"Copiar"}, Caption{m_save, u"save", u"Salvar registro"},
          Caption{m_next, u"", u"Próximo"}, Caption{m_previous, u"", u"Anterior"}}) {
        const QString text = caption(key, language);
        button->setToolTip(text);
        button->setAccessibleName(text);
        if (!icon.isEmpty())
            button->setIcon(lineIcon(icon));
    }
    m_find->setPlaceholderText(caption(u"Localizar", language));
    m_find->setAccessibleName(caption(u"Localizar", language));
    m_text->setAccessibleName(caption(u"Registro da comunicação", language));
}

void ExchangeDrawer::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    wake();
}

void ExchangeDrawer::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_timer.stop();
}

void ExchangeDrawer::wake()
{
    if (isVisible() && !m_timer.isActive())
        m_timer.start();
}

void ExchangeDrawer::TimerLog_Timer()
{
    const QString text = nextText();
    if (text.isEmpty())
        m_timer.stop();
    else
        append(text);
}

/// The newest chunks that one painting takes in; a gap before them is told.
QString ExchangeDrawer::nextText()
{
    qint64 from = m_log.end();
    qsizetype bytes = 0;
    while (from > std::max(m_shown, m_log.first()) && bytes < kBytesPerPaint)
        bytes += m_log.at(--from).bytes.size();
    QString text;
    if (from > m_shown) {
        text = (m_openLine ? u"\n"_s : QString()) + u"…\n"_s;
        m_openLine.reset();
    }
    for (; from < m_log.end(); ++from)
        text += textOf(m_log.at(from));
    m_shown = m_log.end();
    return text;
}

QString ExchangeDrawer::opened(const Exchange &exchange)
{
    const QString start = m_openLine ? u"\n"_s : QString();
    m_openLine = exchange.direction;
    m_lineLength = 0;
    const QString time = QDateTime::fromMSecsSinceEpoch(exchange.milliseconds).toString(u"HH:mm:ss.zzz"_s);
    return start + time + u' ' + QLatin1Char(static_cast<char>(exchange.direction)) + u' ';
}

QString ExchangeDrawer::textOf(const Exchange &exchange)
{
    QString text;
    const QString visible =
        visibleText(QByteArrayView(exchange.bytes).first(std::min<qsizetype>(exchange.bytes.size(), kBytesPerPaint)));
    for (const QChar c : visible) {
        if (c == u'\n') {
            text += m_openLine ? QString() : opened(exchange);
            text += c;
            m_openLine.reset();
            continue;
        }
        if (m_openLine != exchange.direction || m_lineLength >= kLongestLine)
            text += opened(exchange);
        text += c;
        ++m_lineLength;
    }
    return text;
}

void ExchangeDrawer::append(const QString &text)
{
    QScrollBar *bar = m_text->verticalScrollBar();
    const bool atEnd = bar->value() == bar->maximum();
    QTextCursor end(m_text->document());
    end.movePosition(QTextCursor::End);
    end.insertText(text);
    if (atEnd)
        bar->setValue(bar->maximum());
}

void ExchangeDrawer::find(bool backwards)
{
    const QTextDocument::FindFlags flags = backwards ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    bool found = m_text->find(m_find->text(), flags);
    if (!found) { // once around
        m_text->moveCursor(backwards ? QTextCursor::End : QTextCursor::Start);
        found = m_text->find(m_find->text(), flags);
    }
    m_hit->setText(found || m_find->text().isEmpty() ? QString() : caption(u"Dados não localizados", m_language));
}

void ExchangeDrawer::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Find))
        m_find->setFocus();
    else
        QWidget::keyPressEvent(event);
}

void ExchangeDrawer::save()
{
    auto *dialog = new QFileDialog(this, caption(u"Salvar registro", m_language), u"tavimo-prelt.log"_s);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(u"log"_s);
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString &path) {
        if (const Result<Done> saved = m_log.saveTo(path); !saved)
            emit saveFailed(saved.trouble());
    });
    dialog->open();
}
