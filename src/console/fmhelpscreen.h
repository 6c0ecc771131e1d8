#pragma once

#include "screen.h"

/// The phone's own list of commands.
class fmHelpScreen : public Screen
{
    Q_OBJECT

public:
    explicit fmHelpScreen(Session &session, QObject *parent = nullptr);

    void open() override {}
    /// Asks the phone when it is connected; what is shown stays until it has answered.
    void read() override;
    bool hasReading() const override { return !m_text.isEmpty(); }

    void showText(const QString &text);
    const QString &text() const { return m_text; }
    /// Adds a line to the command list of the console.
    void btAdd_Click(const QString &line);

    void take(const Delivery &delivery) override;
    void resume() override {}
    void release(Release why, const Delivery &partial) override;

signals:
    void textChanged();
    void commandAdded();

private:
    QString m_text;
};
