#pragma once

#include "home.h"
#include "phoneprofile.h"
#include "seeds.h"
#include "session.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

inline PhoneProfile phone(const QString &description)
{
    const Result<PhoneProfile> profile = profileFor(description);
    return profile ? *profile : PhoneProfile{};
}

/// A phone that answers a command at once, whole or up to the byte at which the cable is pulled.
class PhonePort : public Port
{
public:
    Result<Done> open(const QString &) override
    {
        m_open = true;
        m_arrived.clear();
        return Done{};
    }
    void close() override { m_open = false; }
    bool isOpen() const override { return m_open; }
    void write(const QByteArray &bytes) override
    {
        commands.append(bytes.chopped(1));
        m_arrived += before + (answers ? answer(phone, bytes.chopped(1)).left(keptBytes) : QByteArray());
        obey(phone, bytes.chopped(1));
    }
    QByteArray read() override { return std::exchange(m_arrived, {}); }
    void discardInput() override { m_arrived.clear(); }
    void pull()
    {
        m_open = false;
        emit lost();
    }

    PhoneProfile phone;
    static constexpr qsizetype kAll = 1'000'000;
    qsizetype keptBytes = kAll;
    QByteArray before = {}; ///< what comes before each answer
    bool answers = true;
    QList<QByteArray> commands;

private:
    bool m_open = false;
    QByteArray m_arrived;
};

/// A person who answers every question alike and keeps what was told.
class ScriptedBoxes : public Boxes
{
public:
    void message(const Trouble &trouble) override
    {
        keys.append(trouble.what.key);
        arguments = trouble.what.arguments;
    }
    void ask(const Question &question, std::function<void(Answer)> answered) override
    {
        questions.append(question.text);
        answered(answer);
    }
    void input(const Question &question, const QString &proposal,
               std::function<void(const QString &)> answered) override
    {
        inputs.append(question.title + u'|' + question.text + u'|' + proposal);
        answered(typed);
    }

    QStringList keys;
    QStringList arguments; ///< of the last
    QStringList questions;
    QStringList inputs; ///< title, text and proposal
    QString typed;      ///< null: cancelled
    Answer answer = Answer::Yes;
};

/// A session on such a phone, with a store made from the seeds; the test is the clock.
struct PhoneBench
{
    explicit PhoneBench(const QString &description)
    {
        port.phone = phone(description);
        const QString path = configStore(folder.path());
        if (!createStore(path))
            qFatal("no store for the test");
        store = std::make_unique<StoreQueue>(path, StoreQueue::Waiting::Blocking);
        const auto deviceFor = [](const PortAddress &) -> Result<QString> { return u"phone"_s; };
        const auto open = [this](const QString &address) { handedOut.append(address); };
        session = std::make_unique<Session>(SessionParts{port, *store, boxes, deviceFor, open});
        session->load();
    }

    void connectPhone() const
    {
        session->connectOrDisconnect(u"1"_s);
        gatherReply();
        session->TimerValidaPorta_Timer();
    }
    /// Polls until the link is idle.
    void gatherReply() const
    {
        session->Timer1_Timer();
        for (int poll = 0; poll < 400 && session->Status() != "1"_L1; ++poll)
            session->Timer2_Timer();
    }

    QTemporaryDir folder;
    PhonePort port;
    ScriptedBoxes boxes;
    QStringList handedOut; ///< addresses and documents that were opened
    std::unique_ptr<StoreQueue> store;
    std::unique_ptr<Session> session;
};
