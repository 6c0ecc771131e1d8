#pragma once

#include "session.h"
#include "userimport.h"

#include <QObject>

/// Offers to take over what the store of a former version holds: once per start, and whenever the about box asks.
class ImportOffer : public QObject
{
    Q_OBJECT

public:
    explicit ImportOffer(Session &session, QObject *parent = nullptr) : QObject(parent), m_session(session) {}

    void offer(Occasion occasion);

private:
    void take(ImportStep step, Occasion occasion);
    void ask();
    void answered(Answer answer);
    QString userStore() const;

    Session &m_session;
};
