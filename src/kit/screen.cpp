#include "screen.h"

#include "catalogue.h"

using namespace Qt::StringLiterals;

Screen::Screen(Session &session, QString name, const QStringList &codes, QObject *parent)
    : QObject(parent), m_session(session), m_name(std::move(name))
{
    for (const QString &code : codes)
        m_session.attach(code, this);
}

Screen::~Screen()
{
    m_session.detach(this);
}

QString Screen::caption(QStringView key) const
{
    return ::caption(key, m_session.language());
}

/// The screen goes on as if nothing had come.
void Screen::takeStray(const Delivery &delivery)
{
    m_isStray = true;
    session().refuse({u"REPLY_STRAY"_s});
    Receiver::takeStray(delivery);
}

void Screen::show(const Panel &reading, const QMap<QString, Field> &state)
{
    m_reading = reading;
    if (m_isStray)
        m_reading.verdict = worst(m_reading.verdict, Verdict::Incomplete);
    m_panel = m_reading;
    m_panel.fields.insert(state);
    emit panelChanged();
}
