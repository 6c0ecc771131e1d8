#pragma once

#include "screen.h"

#include <QTimer>

/// The entry to the charger-side chips: does the port controller answer, and the way to its rails and to the charger.
class ICScreen : public Screen
{
    Q_OBJECT

public:
    explicit ICScreen(Session &session, QObject *parent = nullptr);

    void open() override { rebuild(); }
    void read() override { btBl_Click(); }
    bool hasReading() const override { return !m_isReading && !m_txtDados.isEmpty(); }

    void btBl_Click();
    void btTristar_Click();
    void btTigris_Click();
    /// Which of the chip's two commands the test sends, 1 or 2.
    void chooseSelector(int selector);

    void take(const Delivery &delivery) override;
    void resume() override { sendTest(); }
    void release(Release why, const Delivery &partial) override;

public slots:
    void TimerStatus_Timer();
    void TimerAguarde_Timer();

private:
    void askToWait();
    void sendTest();
    void begin();
    void end();
    void forget();
    void rebuild();
    QMap<QString, Field> state() const;

    int m_selector = 1;
    QString m_txtDados;
    bool m_cut = false;
    bool m_isReading = false;
    int m_ticks = 0;
    QString m_notice; ///< why nothing was sent
    QTimer m_timerStatus;
    QTimer m_timerAguarde;
};
