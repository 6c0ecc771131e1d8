#pragma once

#include "checkscreen.h"

/// The entry to the charger-side chips: does the port controller answer, and the way to its rails and to the charger.
class ICScreen : public CheckScreen
{
    Q_OBJECT

public:
    explicit ICScreen(Session &session, QObject *parent = nullptr);

    void read() override { btBl_Click(); }
    /// A reply that stayed too short to be judged is told too.
    bool hasReading() const override { return !isReading() && !txtDados().isEmpty(); }
    bool hasAnswer() const override { return hasReading() || CheckScreen::hasAnswer(); }

    void btBl_Click();
    void btTristar_Click();
    void btTigris_Click();
    /// Which of the chip's two commands the test sends, 1 or 2.
    void chooseSelector(int selector);

protected:
    Panel makeReading() const override;
    QMap<QString, Field> state() const override;
    bool hasArrived(const QString &reply) const override;
    void checkEnded() override;
    QString waitText(QStringView key) const override;

private:
    int m_selector = 1;
};
