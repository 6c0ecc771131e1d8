#pragma once

#include "checkscreen.h"
#include "i2creading.h"

/// The scan of the I2C buses, one bus at a time or all that the model has.
class I2CScreen : public CheckScreen
{
    Q_OBJECT

public:
    explicit I2CScreen(Session &session, QObject *parent = nullptr);

    void open() override;
    void read() override;
    void resume() override;
    void release(Release why, const Delivery &partial) override;

    void btI2C_Click(int bus);
    /// Starts the automatic run, or cancels it.
    void btAutoTeste_Click();
    void btPdf_Click();
    /// Takes what answered as what is expected of this model from now on, after a question.
    void btConhecido_Click();
    void chooseBus(int bus) { m_chosen = bus; }
    void chooseAuto() { m_wantsAuto = true; }

    bool isRunning() const { return m_input.run == BusRun::Running; }

public slots:
    void TimerAuto_Timer();

protected:
    Panel makeReading() const override { return readI2C(m_input); }
    QMap<QString, Field> state() const override;
    void askEnded() override;
    void checkEnded() override;
    void forget() override;

private:
    void testBus(int bus);
    void keepReply(const BusReply &reply);
    void beginRun();
    void endRun(BusRun how);
    void loadExpected();
    void rebuildFor();
    void keepKnownGood(const QList<ExpectedBus> &buses);

    I2CInput m_input;
    int m_chosen = 0;
    int m_next = 0;
    bool m_wantsAuto = false;    ///< the next reading goes over all buses
    bool m_isModelAsked = false; ///< an automatic run waits for the model
    QTimer m_timerAuto;
};
