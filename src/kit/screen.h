#pragma once

#include "panel.h"
#include "receiver.h"
#include "session.h"

#include <QObject>

/// A screen without widgets: it talks to the session, holds what is to be shown and says when that has changed.
class Screen : public QObject, public Receiver
{
    Q_OBJECT

public:
    /// Takes the replies of these codes from the session as long as it lives.
    Screen(Session &session, QString name, const QStringList &codes, QObject *parent = nullptr);
    ~Screen() override;

    Session &session() const { return m_session; }
    QString name() const { return m_name; }
    /// What the form shows.
    const Panel &panel() const { return m_panel; }
    /// What the last reading gave, without the state of the buttons around it.
    const Panel &reading() const { return m_reading; }

    /// What the last reading judged, also in what is not in front.
    virtual QList<Judgement> judgements() const { return m_reading.judgements; }
    /// Brings a judged thing to the front.
    virtual void goTo(const QString &what) { Q_UNUSED(what) }

    /// The screen is opened: it fills itself from the store.
    virtual void open() = 0;
    /// What a screen that was just opened reads by itself.
    virtual void readAtOpening() {}
    /// The screen's own read button.
    virtual void read() = 0;
    /// A reply was read and judged.
    virtual bool hasReading() const = 0;
    /// The last reply was no answer to what was asked: it is not known whether anything is good.
    bool isStray() const { return m_isStray; }
    /// There is something to tell: a reading, or that the model has none.
    virtual bool hasAnswer() const { return hasReading(); }
    /// Hidden screens run no timers.
    virtual void setShown(bool shown) { Q_UNUSED(shown) }

    void takeStray(const Delivery &delivery) override;

signals:
    void panelChanged();
    /// A reply was judged anew.
    void judged();
    /// A reading has ended, well or not; `panel()` holds it.
    void readingEnded();
    /// Another screen is wanted, and there what is named so.
    void screenRequested(const QString &name, const QString &what = {});

protected:
    QString caption(QStringView key) const;
    /// Replaces what the reading gave; `state` are the fields that the screen itself sets on top.
    void show(const Panel &reading, const QMap<QString, Field> &state);
    /// Another question is asked, or none any more.
    void forgetStray() { m_isStray = false; }

    /// Runs work on the store; a failure is told by the session.
    template <typename T>
    void withStore(Store::Access access, std::function<Result<T>(Store &)> work, std::function<void(const T &)> done)
    {
        session().withStore<T>(access, std::move(work), this, std::move(done));
    }

private:
    Session &m_session;
    QString m_name;
    Panel m_reading;
    Panel m_panel;
    bool m_isStray = false;
};
