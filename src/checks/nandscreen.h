#pragma once

#include "checkscreen.h"
#include "nandreading.h"

/// The storage chip: four questions to it, its rails, and the guide to its faults.
class NandScreen : public CheckScreen
{
    Q_OBJECT

public:
    explicit NandScreen(Session &session, QObject *parent = nullptr);

    void read() override { btBl_Click(m_chosen); }
    void resume() override;
    void release(Release why, const Delivery &partial) override;

    /// The index of a test button: the commands 0 to 3, the rails 4.
    void btBl_Click(int index);
    /// The button that the next reading is of.
    void chooseTest(int index) { m_chosen = index; }
    void btPdf_Click();
    /// Opens the screen of the core rails, filtered to the chip.
    void btVCore_Click();
    /// Sends the command of the chosen test.
    void PrePesquisa();

protected:
    Panel makeReading() const override;
    QMap<QString, Field> state() const override;
    void askBegan() override;
    void askEnded() override;
    void forget() override;

private:
    void askForRails();
    void loadRails();

    int m_chosen = 0;
    NandTest m_test = NandTest::Id;
    QString m_lbNand;
    bool m_wantsRails = false; ///< when the model is known
    QList<RailRow> m_rails;
};
