#pragma once

#include "chipreading.h"
#include "readingscreen.h"

/// Whether a screen starts its first reading itself.
enum class Opening
{
    Reads,
    Waits
};

/// Whether a screen has a log of its reply beside a recording, and how it starts.
enum class ReplyLog
{
    None,
    Folded,
    Open
};

/// Whether the reading can be handed to a customer.
enum class Reporting
{
    None,
    Offered
};

/// A chip screen: how it asks the phone, how it reads the reply, and which models it refuses.
struct ChipScreenTraits
{
    QString name;
    QString code;
    QString command;
    Panel (*read)(const ChipInput &input);
    Opening opening = Opening::Reads;
    bool (*fits)(const QString &model) = nullptr; ///< none: it fits all
    Notice refusal = {};
    QString otherScreen = {}; ///< the one that a refused model needs
    ReplyLog log = ReplyLog::None;
    Reporting reporting = Reporting::None;
};

/// What the screens of the charger and display chips share: one command, one panel, a refusal by model.
class ChipScreen : public ReadingScreen
{
    Q_OBJECT

public:
    ChipScreen(Session &session, ChipScreenTraits traits, QObject *parent = nullptr);

    void open() override { rebuild(); }
    void readAtOpening() override;
    void read() override;
    void resume() override;
    bool hasAnswer() const override { return hasReading() || m_isRefused; }

    void take(const Delivery &delivery) override;
    bool hasLog() const { return m_traits.log != ReplyLog::None; }
    /// The report service has a page for the chip.
    bool isReported() const { return m_traits.reporting == Reporting::Offered; }
    bool refusesModels() const { return m_traits.fits != nullptr; }
    /// Why the model is refused, in the user's language; empty when it is not.
    QString refusal() const;
    /// The reply of the last reading, and what was recorded of a known-good phone.
    QStringList replyLines() const;
    QStringList recordedLines() const;

    void btExecutaLeitura_Click() { read(); }
    /// Shows or hides the log.
    void btLog_Click();
    /// Opens the screen that the model needs instead.
    void btOutraTela_Click();
    /// Reads the delivered reply.
    void PrePesquisa() { judgeReply(); }
    /// The readings were cleared: the screen is empty again.
    void LimpaLeiturasExterno();

protected:
    void readingBegan() override { m_isRefused = false; }
    void readingStopped() override {}
    void rebuild() override;
    /// What the screen itself sets over the reading.
    virtual QMap<QString, Field> state() const;

private:
    bool fitsModel() const;
    void refuseModel();
    void tellRefusal();

    ChipScreenTraits m_traits;
    bool m_isRefused = false;
    bool m_isLogOpen;
    std::optional<KeptRecording> m_recording;
};
