#pragma once

#include "screen.h"

#include <QTimer>

/// The battery: two commands in a row, the reply to the second of which is read.
class BateriaScreen : public Screen
{
    Q_OBJECT

public:
    explicit BateriaScreen(Session &session, QObject *parent = nullptr);

    void open() override { rebuild(); }
    void readAtOpening() override;
    void read() override;
    bool hasReading() const override { return m_step == Step::Read; }

    void btBateria_Click() { read(); }
    const QString &txtDados() const { return m_txtDados; }

    void take(const Delivery &delivery) override;
    void resume() override {}
    void release(Release why, const Delivery &partial) override;

public slots:
    void TimerLer_Timer();
    void TimerBarra_Timer();

private:
    enum class Step
    {
        Nothing,
        Properties, ///< the first command, or the pause behind it
        Gauge,
        Read
    };

    bool isReading() const { return m_step == Step::Properties || m_step == Step::Gauge; }
    void askGauge();
    void judge(const Delivery &delivery);
    void enter(Step step);
    void end(Step step);
    void forget();
    void rebuild();
    QMap<QString, Field> state() const;

    QString m_txtDados;
    Step m_step = Step::Nothing;
    int m_progress = 0;
    QTimer m_timerLer;
    QTimer m_timerBarra;
};
