#pragma once

#include "railreading.h"
#include "readingscreen.h"

#include <QTimer>

/// What the screens over the rails of the reference table share: rows by model and kind, the self-test reading and the
/// decimals. All kinds are judged from one reply.
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
    /// What a good verdict in front must not hide: the faults and the gaps of what is not shown. Empty: there are none.
    QString faultsElsewhere() const;
    void chooseKind(int kind);
    /// Texts of `ComboDecimais` and `ComboDecimaisAmp`; others are not taken.
    void ComboDecimais_Click(const QString &text);
    void ComboDecimaisAmp_Click(const QString &text);

    /// Prepares a reading: gets the model first when it is not known.
    void PrePesquisa() { read(); }
    /// Sends the self-test command and waits for its reply.
    void ExecutaPesquisa() { send(); }
    /// The readings were cleared: the rows are shown afresh.
    virtual void LimpaLeiturasExterno();

public slots:
    /// Judges the reply that was delivered.
    void Timer1_Timer() { judgeReply(); }
    void TimerBarra_Timer();
    void TimerIndicaVar_Timer();
    /// Writes the readings to the store: what is on the screen is painted first.
    void TimerGrava_Timer();

protected:
    bool isPrepared() const override;
    void prepare() override { loadRows(); }
    void readingBegan() override;
    void readingStopped() override;
    void rebuild() override;

    const RailScreenTraits &traits() const { return m_traits; }
    RailInput &input() { return m_input; }
    const RailInput &input() const { return m_input; }
    const RailReading &front() const { return m_front; }
    void loadRows();
    /// The state of the controls, on top of what the reading gave.
    virtual QMap<QString, Field> state() const;
    /// Shows the state anew; the reading stays.
    void showState() { show(m_front.panel, state()); }

private:
    void loadDecimals();
    void loadKind(int kind);
    void rowsCame();
    bool setDecimals(int &decimals, int least, const QString &text);
    void keepDecimals(Combo which, const QString &text);
    void blinkNote();
    qsizetype faultsOf(const RailKind &kind) const;
    QStringList hiddenNets(const RailKind &kind, Verdict verdict) const;
    QString kindText(const RailKind &kind) const;
    Field readButton() const;

    const RailScreenTraits &m_traits;
    int m_kind;
    RailInput m_input;
    QMap<int, QList<RailRow>> m_rows; ///< by kind; a kind that is not there has not come from the store yet
    QMap<int, RailReading> m_readings;
    RailReading m_front;
    bool m_isVisible = false;
    bool m_noteVisible = true;
    int m_blinks = 0;
    int m_progress = 0;
    QTimer m_timerBarra;
    QTimer m_timerIndicaVar;
    QTimer m_timerGrava;
};
