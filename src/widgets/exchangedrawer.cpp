#include "exchangedrawer.h"

#include "catalogue.h"
#include "findbar.h"
#include "longlines.h"
#include "savedialog.h"
#include "textpane.h"
#include "theme.h"
#include "visibletext.h"

#include <QDateTime>
#include <QKeyEvent>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

static constexpr auto kPaintInterval = 80ms;
/// What one painting takes in; of a flood the newest is shown, all of it is in the file.
static constexpr qsizetype kBytesPerPaint = 32768;

ExchangeDrawer::ExchangeDrawer(ExchangeLog &log, QWidget *parent)
    : QWidget(parent), m_log(log), m_text(new TextPane(u"txtLog"_s)), m_find(new FindBar(u"Log"_s))
{
    setObjectName(u"FrameLog"_s);
    m_find->setPane(m_text);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Spacing::control, Spacing::unit, Spacing::control, Spacing::unit);
    layout->setSpacing(Spacing::unit);
    layout->addWidget(m_find);
    layout->addWidget(m_text, 1);
    m_timer.setInterval(kPaintInterval);
    connect(&m_timer, &QTimer::timeout, this, &ExchangeDrawer::TimerLog_Timer);
    connect(&m_log, &ExchangeLog::added, this, &ExchangeDrawer::wake);
    connect(m_find, &FindBar::saveWanted, this, &ExchangeDrawer::save);
}

void ExchangeDrawer::Traducao_Form(Language language)
{
    m_language = language;
    m_find->Traducao_Form(language, u"Salvar registro");
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
        m_text->add(text);
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

void ExchangeDrawer::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Find))
        m_find->begin();
    else
        QWidget::keyPressEvent(event);
}

void ExchangeDrawer::save()
{
    const auto write = [this](const QString &path) {
        if (const Result<Done> saved = m_log.saveTo(path); !saved)
            emit saveFailed(saved.trouble());
    };
    askForFile(this, {caption(u"Salvar registro", m_language), u"tavimo-prelt"_s, FileKind::Log}, write);
}
