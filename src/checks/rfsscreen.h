#pragma once

#include "checkscreen.h"
#include "rfsreading.h"

/// The four radios: on, off, and what they say of themselves.
class RFsScreen : public CheckScreen
{
    Q_OBJECT

public:
    explicit RFsScreen(Session &session, QObject *parent = nullptr);

    void read() override { run(m_input.radio, m_input.action); }

    void btOn_Click(int radio) { run(radio, RadioAction::On); }
    void btOff_Click(int radio) { run(radio, RadioAction::Off); }
    void btPropriedades_Click(int radio) { run(radio, RadioAction::Properties); }
    void btTensoesRF_Click();
    /// What the next reading asks for.
    void chooseRadio(int radio) { m_input.radio = radio; }
    void chooseAction(RadioAction action) { m_input.action = action; }

protected:
    Panel makeReading() const override;
    QMap<QString, Field> state() const override;
    void askBegan() override;
    void askEnded() override;
    void forget() override;

private:
    void run(int index, RadioAction action);

    RadioInput m_input; ///< less the reply
};
