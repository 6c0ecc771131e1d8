#pragma once

#include "chipscreen.h"

#include <QTimer>

/// The display supply of the models with an LCD panel. The supply of their touch controller is off after a start:
/// where it is found missing it is switched on once, and the reading repeated.
class ChestnutScreen : public ChipScreen
{
    Q_OBJECT

public:
    explicit ChestnutScreen(Session &session, QObject *parent = nullptr);

    void btTouch_Click();

public slots:
    void TimerTouch_Timer();
    void Timer1_Timer();

protected:
    bool repeats() override;
    QMap<QString, Field> state() const override;

private:
    enum class Touch
    {
        Off,
        On
    };

    bool switchTouch(Touch wanted);
    void dropRepeat();

    bool m_touchHandled = false;
    Touch m_nextTouch = Touch::Off; ///< what the button does
    QTimer m_timerTouch;
    QTimer m_timer1;
};
