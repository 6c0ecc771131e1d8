#pragma once

#include "phoneprofile.h"

#include <QObject>

#include <chrono>
#include <memory>

/// A phone in diagnostics mode behind a real pseudo-terminal: whoever opens `device()` talks to it as to a Box.
class SimulatedPhone : public QObject
{
    Q_OBJECT

public:
    /// Bytes per second of the line; 0 sends as fast as the reader takes it.
    static constexpr int kPace = 11520;

    explicit SimulatedPhone(PhoneProfile profile, int bytesPerSecond = kPace, QObject *parent = nullptr);
    ~SimulatedPhone() override;

    /// The path of the slave side, or empty when no pseudo-terminal could be made.
    QString device() const;

    /// How long after the first byte of a reply its prompt comes at the earliest; 120 ms, longer than a fast poll.
    void setPromptDelay(std::chrono::milliseconds delay);

    /// Pulls the cable: the master side is closed.
    void unplug();

signals:
    /// A command line arrived, without its line end.
    void commandReceived(const QByteArray &command);

private:
    void takeInput();
    void answerNext();
    void send();
    void finishReply();

    struct Terminal;
    std::unique_ptr<Terminal> m_terminal;
};
