#include "screen.h"

#include "catalogue.h"

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

void Screen::show(const Panel &reading, const QMap<QString, Field> &state)
{
    m_reading = reading;
    m_panel = reading;
    m_panel.fields.insert(state);
    emit panelChanged();
}
