#pragma once

#include "screen.h"

#include <QTimer>

/// One command that a screen sends, and what it needs.
struct Check
{
    QString command;
    bool needsModel = false;                         ///< a model that is not known is asked for first
    bool (*refuses)(const QString &model) = nullptr; ///< none: it fits all
    std::chrono::milliseconds bar{100};              ///< how often the progress moves
};

/// The command does not work on the first two generations.
bool isSixFamily(const QString &model);

/// A screen that sends one command, watches for its reply and judges it once. Where nothing can be sent it says why for
/// a moment, and sends nothing.
class CheckScreen : public Screen
{
    Q_OBJECT

public:
    CheckScreen(Session &session, QString name, QString code, QObject *parent = nullptr);

    void open() override { rebuild(); }
    bool hasReading() const override { return m_isJudged; }
    bool hasAnswer() const override { return m_isJudged || m_isRefused; }
    bool isReading() const { return m_isReading; }
    /// The reply of the last command; what was streamed of it, if it did not come to its end.
    const QString &txtDados() const { return m_delivery.reply; }

    /// Shows what was recorded for the last command, or hides it.
    void btComparador_Click();

    void take(const Delivery &delivery) override;
    void resume() override { send(); }
    void release(Release why, const Delivery &partial) override;

public slots:
    /// Watches for the reply: judges it, or gives up after thirty ticks of an idle link.
    void Timer1_Timer();
    void TimerBarra_Timer();
    void TimerAguarde_Timer();

signals:
    /// The reply on its way grew by this.
    void replyGrew(const QString &text);

protected:
    /// Whether a command may be sent; if not, `lbAguarde` says why.
    bool mayAsk();
    void ask(const Check &check);
    /// Tells that the model does not have the command.
    void refuseModel();
    /// A document of the program, opened with the system's viewer.
    void openGuide(const QString &fileName);

    const Delivery &delivery() const { return m_delivery; }
    /// What is being waited for, empty when there is nothing to say.
    const QString &notice() const { return m_notice; }
    /// The fields that every screen of this kind has.
    QMap<QString, Field> waitState() const;
    /// The fields of the panel with the recording.
    QMap<QString, Field> comparatorState() const;
    void showState() { show(Panel(reading()), state()); }
    void rebuild();

    /// What the last reply gave; without one an empty reading.
    virtual Panel makeReading() const = 0;
    virtual QMap<QString, Field> state() const { return waitState(); }
    /// Whether this much of a reply is one that can be judged.
    virtual bool hasArrived(const QString &reply) const { return !reply.isEmpty(); }
    /// The command goes out: what the one before left is cleared.
    virtual void askBegan() {}
    /// The reply was judged; the panel of it is in `reading()`.
    virtual void askEnded() {}
    /// The check is over, with a reply or without.
    virtual void checkEnded() { emit readingEnded(); }
    virtual void forget();
    virtual QString waitText(QStringView key) const { return caption(key); }

private:
    void send();
    void begin();
    void end();
    void judge();

    QString m_code;
    Check m_check;
    Delivery m_delivery;
    bool m_isReading = false;
    bool m_isJudged = false;
    bool m_isRefused = false;
    int m_ticks = 0;
    int m_progress = 0;
    bool m_showsRecording = false;
    QString m_notice;
    QTimer m_timer1;
    QTimer m_timerBarra;
    QTimer m_timerAguarde;
};
