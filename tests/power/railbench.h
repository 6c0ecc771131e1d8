#pragma once

#include "buckldoscreen.h"
#include "phoneprofile.h"

#include <QTemporaryDir>

/// A phone that answers a command at once, whole or up to the byte at which the cable is pulled.
class PhonePort : public Port
{
    Q_OBJECT

public:
    Result<Done> open(const QString &device) override;
    void close() override { m_open = false; }
    bool isOpen() const override { return m_open; }
    void write(const QByteArray &bytes) override;
    QByteArray read() override { return std::exchange(m_arrived, {}); }
    void discardInput() override { m_arrived.clear(); }
    void pull();

    PhoneProfile phone;
    static constexpr qsizetype kAll = 1'000'000;
    qsizetype keptBytes = kAll;
    QList<QByteArray> commands;

private:
    bool m_open = false;
    QByteArray m_arrived;
};

/// A person who answers every question alike and keeps what was told.
class ScriptedBoxes : public Boxes
{
public:
    void message(const Trouble &trouble) override { keys.append(trouble.what.key); }
    void ask(const Question &question, std::function<void(Answer)> answered) override;

    QStringList keys;
    QStringList questions;
    Answer answer = Answer::Yes;
};

/// The screen with its session, a store made from the seeds, and a phone; the test is the clock.
struct RailBench
{
    explicit RailBench(const QString &description);

    void connectPhone();
    /// Polls until the link is idle.
    void gatherReply();
    void readKind(int kind);
    Row shown(const QString &orig) const;
    /// A row as the store holds it.
    RailRow stored(const QString &model, int kind, const QString &orig);

    QTemporaryDir folder;
    PhonePort port;
    ScriptedBoxes boxes;
    std::unique_ptr<StoreQueue> store;
    std::unique_ptr<Session> session;
    std::unique_ptr<BuckLdoScreen> screen;
};

PhoneProfile phone(const QString &description);
