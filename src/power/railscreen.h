#pragma once

#include "railreading.h"
#include "screen.h"

#include <QTimer>

/// What the screens over the rails of the reference table share: rows by model and kind, the self-test reading,
/// decimals, orders and the three recorded readings.
class RailScreen : public Screen
{
    Q_OBJECT

public:
    RailScreen(Session &session, const RailScreenTraits &traits, QObject *parent = nullptr);

    void open() override;
    void read() override { PrePesquisa(); }
    bool hasReading() const override { return !m_input.reply.isEmpty(); }
    void setShown(bool shown) override;

    int kind() const { return m_kind; }
    RailOrder order() const { return m_input.order; }
    int voltDecimals() const { return m_input.voltDecimals; }
    int milliDecimals() const { return m_input.milliDecimals; }
    const QString &txtDados() const { return m_input.reply; }

    void chooseKind(int kind);
    /// Texts of `ComboDecimais` and `ComboDecimaisAmp`; others are not taken.
    void ComboDecimais_Click(const QString &text);
    void ComboDecimaisAmp_Click(const QString &text);
    void OpMalha_Click() { sortBy(m_traits.malhaOrder); }
    void OpIc_Click() { sortBy(m_traits.icOrder); }
    void OpPorc_Click() { sortBy(RailOrder::PorcDescending); }
    /// Records the reading into, or empties, slot 1, 2 or 3, after a question.
    void btGravar_Click(int slot);
    void btExcluir_Click(int slot);
    /// The grid was activated: before any reading there is nothing to look at.
    void DBGrid1_Click();

    /// Prepares a reading: gets the model first when it is not known.
    void PrePesquisa();
    /// Sends the self-test command and waits for its reply.
    void ExecutaPesquisa();
    /// The readings were cleared: the rows are shown afresh.
    void LimpaLeiturasExterno();

    void take(const Delivery &delivery) override;
    void resume() override { ExecutaPesquisa(); }
    void release(Release why, const Delivery &partial) override;

public slots:
    void Timer1_Timer();
    void TimerBarra_Timer();
    void TimerIndicaVar_Timer();

private:
    void loadDecimals();
    void loadRows();
    void rebuild();
    void sortBy(RailOrder order);
    bool setVoltDecimals(const QString &text);
    bool setMilliDecimals(const QString &text);
    void keepDecimals(Combo which, const QString &text);
    bool mayRecord();
    void writeSlotAfter(const QString &title, const QString &question, int slot, const QList<SlotText> &texts);
    QList<SlotText> readings() const;
    void beginReading();
    void endReading();
    void storeReadings();
    QMap<QString, Field> state() const;

    const RailScreenTraits &m_traits;
    int m_kind;
    RailInput m_input;
    QList<RailRow> m_rows;
    RailReading m_reading;
    bool m_isReading = false;
    bool m_noteVisible = true;
    int m_blinks = 0;
    int m_progress = 0;
    QTimer m_timerBarra;
    QTimer m_timerIndicaVar;
};
