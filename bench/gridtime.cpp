#include "gridtime.h"

#include "contest.h"
#include "panelgrid.h"
#include "railtable.h"

#include <QApplication>

using namespace Qt::StringLiterals;

/// The polls are called by hand here.
static constexpr Intervals kNever{.poll = std::chrono::hours(1)};

GridTime::GridTime(const QString &store, const QByteArray &reply)
    : m_port(reply),
      m_store(store, StoreQueue::Waiting::ByTimer),
      m_session({.port = m_port, .store = m_store, .boxes = m_boxes, .deviceFor = {}, .intervals = kNever}),
      m_form(m_session)
{
    m_session.adopt(u"a saved reply"_s, QString(kFullModel));
    m_form.resize(1280, 800);
    m_form.CarregaDados();
    m_form.show();
    QApplication::processEvents();
    m_form.findChild<PanelGrid *>(u"DBGrid1"_s)->viewport()->installEventFilter(this);
}

int GridTime::rows() const
{
    return m_form.findChild<PanelGrid *>(u"DBGrid1"_s)->model()->rowCount();
}

bool GridTime::eventFilter(QObject *watched, QEvent *event)
{
    m_painted = m_painted || event->type() == QEvent::Paint;
    return QObject::eventFilter(watched, event);
}

double GridTime::promptToPaint()
{
    m_form.screen().read();
    QApplication::processEvents();
    m_painted = false;
    const auto begin = std::chrono::steady_clock::now();
    m_session.Timer1_Timer();
    if (!m_session.isReady() || !m_form.screen().hasReading())
        giveUp(u"the reply was not taken"_s);
    while (!m_painted)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}
