#pragma once

#include "railreading.h"
#include "readingscreen.h"

#include <QTimer>

/// What the screens over the rails of the reference table share: rows by model and kind, the self-test reading,
/// decimals, orders and the three recorded readings. All kinds are judged from one reply.
class RailScreen : public ReadingScreen
{
    Q_OBJECT

public:
    RailScreen(Session &session, const RailScreenTraits &traits, QObject *parent = nullptr);

    void open() override;
    void setShown(bool shown) override;
    QList<Judgement> judgements() const override;
    void goTo(const QString &what) override;

    int kind() const { return m_kind; }
    /// What a good verdict in front must not hide: the faults of the kinds that are not shown. Empty: there are none.
    QString faultsElsewhere() const;
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
    void PrePesquisa() { read(); }
    /// Sends the self-test command and waits for its reply.
    void ExecutaPesquisa() { send(); }
    /// The readings were cleared: the rows are shown afresh.
    void LimpaLeiturasExterno();

public slots:
    void TimerBarra_Timer();
    void TimerIndicaVar_Timer();

protected:
    bool isPrepared() const override;
    void prepare() override { loadRows(); }
    void readingBegan() override;
    void readingStopped() override;
    void rebuild() override;

private:
    void loadDecimals();
    void loadRows();
    void loadKind(int kind);
    void rowsCame();
    void sortBy(RailOrder order);
    bool setDecimals(int &decimals, int least, const QString &text);
    void keepDecimals(Combo which, const QString &text);
    bool mayRecord();
    void writeSlotAfter(const QString &title, const QString &question, int slot, const QList<SlotText> &texts);
    QList<SlotText> shownReadings() const;
    void blinkNote();
    void storeReadings();
    qsizetype faultsOf(const RailKind &kind) const;
    QString kindText(const RailKind &kind) const;
    QMap<QString, Field> state() const;

    const RailScreenTraits &m_traits;
    int m_kind;
    RailInput m_input;
    QMap<int, QList<RailRow>> m_rows; ///< by kind; a kind that is not there has not come from the store yet
    QMap<int, RailReading> m_readings;
    bool m_shown = false;
    bool m_noteVisible = true;
    int m_blinks = 0;
    int m_progress = 0;
    QTimer m_timerBarra;
    QTimer m_timerIndicaVar;
};
