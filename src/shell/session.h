#pragma once

#include "boxes.h"
#include "modelreply.h"
#include "port.h"
#include "portaddress.h"
#include "receiver.h"
#include "replygatherer.h"
#include "storequeue.h"

#include <QMap>
#include <QObject>
#include <QTimer>

#include <array>
#include <functional>
#include <memory>

/// Finds the device behind what a person chose as port: a number, a path, a simulated phone.
using DeviceResolver = std::function<Result<QString>(const PortAddress &)>;

/// How often the named timers tick. Tests and saved replies go faster than a bench.
struct Intervals
{
    std::chrono::milliseconds validaPorta{300};
    std::chrono::milliseconds versao{100};
    std::chrono::milliseconds verificaVersao{50};
    std::chrono::milliseconds fecha{2000};
    std::optional<std::chrono::milliseconds> poll = {}; ///< instead of the speed setting's
};

/// Who is told that a connection failed: a person by a box, and where nobody pressed anything by the line alone.
enum class Asked
{
    ByPerson,
    ByItself
};

/// Whether readings, the last model and settings go to the store.
enum class Keeping
{
    Everything,
    Nothing
};

/// What the session works with.
struct SessionParts
{
    Port &port;
    StoreQueue &store;
    Boxes &boxes;
    DeviceResolver deviceFor;
    Opener open = {};
    Intervals intervals = {};
    Keeping keeping = Keeping::Everything;
};

/// The colour word of the status lamp.
enum class Lamp
{
    Branco,
    Amarelo,
    Verde
};

/// The one session with the Box: the link's state, the command in flight, the phone's model, and the way of every
/// reply to the screen that asked.
class Session : public QObject
{
    Q_OBJECT

public:
    explicit Session(SessionParts parts, QObject *parent = nullptr);

    /// "0" disconnected, "2" connecting, "3" command in flight, "1" connected and idle.
    QString Status() const { return QString(m_status); }
    /// The handshake was accepted, no command is in flight and no model is being asked for: a screen may send.
    bool isReady() const { return m_accepted && m_status == u'1' && !isAskingModel(); }
    bool isConnected() const { return m_accepted && m_status != u'0'; }
    Lamp lamp() const;
    /// The texts of the status label, the connect button and the window's title, in the user's language.
    QString St1() const;
    QString connectCaption() const;
    QString windowCaption() const;

    /// The chosen model: detected, picked, or only pre-selected from the last time.
    QString model() const { return m_model; }
    bool isModelKnown() const { return m_modelKnown; }
    /// The model of the phone, or empty while it is only pre-selected: nothing is compared with another phone's data.
    QString knownModel() const { return m_modelKnown ? m_model : QString(); }
    /// The detected model as shown; an unknown record stands between asterisks.
    QString lbModelo() const { return m_lbModelo; }

    Language language() const { return m_language; }
    const QString &txtConsole() const { return m_txtConsole; }
    const QString &txtComandos() const { return m_txtComandos; }
    QString activeCode() const { return m_code; }
    /// The text that was chosen as port, the last time one was opened.
    const QString &port() const { return m_portText; }
    StoreQueue &store() { return m_parts.store; }
    Boxes &boxes() { return m_parts.boxes; }

    /// Reads language, speed and last model from the store and clears the readings of the last time.
    void load();
    /// Takes a link that needs no handshake, its model being known: a saved reply.
    void adopt(const QString &device, const QString &model);
    /// No phone is there: whatever is sent, the saved reply is the answer.
    bool isSavedReply() const { return m_isSavedReply; }

    /// The connect button with the text of the port list.
    void connectOrDisconnect(const QString &port);
    /// Connects unless something is connected already.
    void reconnect(const QString &port, Asked asked);
    /// Leaves the phone whatever is in flight: its screen gets what came.
    void disconnectNow();
    void chooseModel(const QString &model);
    void chooseLanguage(Language chosen);
    void chooseSpeed(const QString &chosen);
    QString speed() const { return m_speedSetting; }

    void attach(const QString &code, Receiver *receiver) { m_receivers.insert(code, receiver); }
    void detach(const Receiver *receiver);

    /// Sends a screen's command under its code. False, with a reason in `refused` or in a box, when it may not be sent.
    bool request(const QString &code, const QString &command);
    /// The same in place of the command of this code that may be in flight: nothing of that one is delivered.
    bool requestInstead(const QString &code, const QString &command);
    /// Ends the gathering for a screen: what came is delivered as a cut reply, the rest is dropped by the next command.
    void stop(const QString &code);
    /// Asks the phone for its model first; the screen of this code is resumed when it is known.
    bool requestModel(const QString &code);
    /// Tells why something that was asked for was not done; no box opens for it.
    void refuse(const Notice &why) { emit refused(why); }
    /// Opens a document with the system's viewer.
    void openDocument(const QString &path) const;
    /// Opens an address, exactly as it is written.
    void openAddress(const QString &address) const;

    /// Runs work on the store; a failure goes to `storeFailed`, and `done` then is not called.
    template <typename T>
    void withStore(Store::Access access, std::function<Result<T>(Store &)> work, QObject *context,
                   std::function<void(const T &)> done)
    {
        const auto answered = [this, done = std::move(done)](const Result<T> &result) {
            if (!result)
                emit storeFailed(result.trouble());
            else if (done)
                done(*result);
        };
        m_parts.store.run<T>(access, std::move(work), context, answered);
    }
    /// Writes what the window remembers; a session that keeps nothing leaves the store as it is.
    void keep(std::function<Result<Done>(Store &)> work, std::function<void(const Done &)> done = {});

    void EnviaComando();
    void AdicionaDadosConsole(const QString &chunk);
    void BuscaDadosGravados();

public slots:
    void Timer1_Timer();
    void Timer2_Timer();
    void TimerValidaPorta_Timer();
    void TimerVersao_Timer();
    void TimerVerificaVersao_Timer();
    void TimerFecha_Timer();

signals:
    void statusChanged();
    void modelChanged();
    void readingsCleared();
    void languageChanged();
    void speedChanged();
    /// What the console grew by; in a flood more than it keeps.
    void consoleAppended(const QString &text);
    void portsWanted();
    void portOpened(const QString &device);
    void connectionSettled(); ///< the handshake was accepted and the model is known or cannot be told
    void connectFailed();     ///< the port did not open or the phone did not answer
    void linkLost();
    void modelMissing(); ///< the phone's model could not be told: it must be chosen
    void refused(const Notice &why);
    void storeFailed(const Trouble &trouble);

private:
    void connectTo(const PortAddress &address);
    void offerHelpVideo();
    void tellUnconnected(const Trouble &trouble);
    void openPort(const PortAddress &address);
    void showDisconnected();
    void enter(QChar status, const QString &st1);
    bool isInFlight() const;
    bool isAskingModel() const;
    void applySpeed(const QString &chosen);
    bool maySend(const QString &command);
    void startConsole();
    void stopPolling();
    void fetchRecording();
    void deliver(const Delivery &finished);
    void advance(const Gathering &next);
    EndOfReply endOfReply() const;
    Delivery delivery() const;
    void leaveLink(Release why);
    void lose();

    void acceptHandshake();
    void learnEcho();
    void refuseHandshake();
    void sendModelQuery(QTimer &watch);
    void readModelRecord();
    void watchModelReply();
    void hintAtCommand();
    void tellModelMissing();
    void settleWithoutRecord();
    bool takeModelReply(const ModelReply &reply);
    void identify(const QString &model);
    void giveUpModel(const QString &shown);
    void endModelWatch();
    Receiver *takeOrigin();
    void resumeOrigin();
    void setModel(const QString &model, bool known);
    void clearStoredReadings();
    void remember(const QString &model);

    SessionParts m_parts;
    std::array<QTimer, 6> m_timers;
    QTimer &m_timer1 = m_timers[0];
    QTimer &m_timer2 = m_timers[1];
    QTimer &m_timerValidaPorta = m_timers[2];
    QTimer &m_timerVersao = m_timers[3];
    QTimer &m_timerVerificaVersao = m_timers[4];
    QTimer &m_timerFecha = m_timers[5];

    QChar m_status = u'0';
    QString m_st1;
    bool m_accepted = false;
    bool m_isSavedReply = false;
    bool m_echoes = true; ///< the phone: without an echo of its command nothing is an answer
    int m_handshakeTicks = 0;

    QString m_portText;
    Asked m_asked = Asked::ByPerson;
    QString m_txtComandos;
    QString m_txtConsole;
    QString m_code;
    Gathering m_gathering;
    bool m_anyByte = false;
    bool m_cut = false;                  ///< stopped, or longer than the console keeps
    std::unique_ptr<QObject> m_fetching; ///< while a gathered reply waits for its recording
    Speed m_speed;
    QString m_speedSetting;
    QMap<QString, Receiver *> m_receivers;

    QString m_model;
    QString m_lbModelo;
    bool m_modelKnown = false;
    QString m_origin; ///< code of the screen that waits for the model
    int m_modelTicks = 0;
    bool m_mayRepeatQuery = false;
    bool m_mayHint = false; ///< the repeated query has not been answered yet

    Language m_language = Language::Portuguese;
};
