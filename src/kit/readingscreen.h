#pragma once

#include "screen.h"

/// A screen that asks the phone one command and judges the reply. A model that is not known is asked for first.
class ReadingScreen : public Screen
{
    Q_OBJECT

public:
    ReadingScreen(Session &session, QString name, QString code, QString command, QObject *parent = nullptr);

    void read() override;
    bool hasReading() const override { return !m_txtDados.isEmpty(); }

    /// The reply of the last reading.
    const QString &txtDados() const { return m_txtDados; }
    /// Its prompt never came: it is never judged good.
    bool isCut() const { return m_cut; }
    bool isReading() const { return m_isReading; }

    void take(const Delivery &delivery) override;
    void resume() override { send(); }
    void release(Release why, const Delivery &partial) override;

protected:
    /// Sends the screen's command.
    void send();
    void forgetReading();
    /// Judges the reply that was delivered.
    void judgeReply();
    /// The reading is over, with a reply or without.
    void end();
    /// The screen will read again by itself: what was just read is on screen, but no finding.
    virtual bool repeats() { return false; }

    /// The reference rows are there; without them a reply waits to be judged.
    virtual bool isPrepared() const { return true; }
    virtual void prepare() {}
    virtual void readingBegan() = 0;
    virtual void readingStopped() = 0;
    /// Shows the panel of the last reply in the state the screen is in.
    virtual void rebuild() = 0;

private:
    void begin();
    void stop();

    QString m_code;
    QString m_command;
    QString m_txtDados;
    bool m_cut = false;
    bool m_isReading = false;
};
