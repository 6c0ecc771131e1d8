#pragma once

#include "seeds.h"
#include "session.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

inline constexpr auto kPromptBytes = "[0A1B2C3D:00112233] :-) ";

/// What a phone sends for a command.
inline QByteArray answered(const QByteArray &command, const QByteArray &body)
{
    return command + "\r\n" + body + '\n' + kPromptBytes;
}

/// What the console makes of it.
inline QString shown(QByteArray bytes)
{
    return "\r\n"_L1 + QString::fromLatin1(bytes.replace("\n", "\r\n"));
}

/// A line that brings, for each command written, the next answer of the script, one chunk at each poll.
class ScriptedPort : public Port
{
public:
    Result<Done> open(const QString &) override
    {
        m_open = opens;
        return opens ? Result<Done>(Done{}) : Result<Done>(Trouble{{u"MSG_PORTA_EM_USO"_s}});
    }
    void close() override { m_open = false; }
    bool isOpen() const override { return m_open; }
    void write(const QByteArray &bytes) override
    {
        journal.append(bytes);
        coming = answers.isEmpty() ? QList<QByteArray>() : answers.takeFirst();
        if (diesOnWrite)
            die();
    }
    QByteArray read() override { return coming.isEmpty() ? QByteArray() : coming.takeFirst(); }
    void discardInput() override
    {
        coming.clear();
        journal.append("discard");
    }
    void die()
    {
        m_open = false;
        emit lost();
    }

    QList<QList<QByteArray>> answers;
    QList<QByteArray> coming;
    QList<QByteArray> journal;
    bool opens = true;
    bool diesOnWrite = false;

private:
    bool m_open = false;
};

/// Boxes that write into a log and answer by script.
class ScriptedBoxes : public Boxes
{
public:
    explicit ScriptedBoxes(QStringList &log) : m_log(log) {}
    void message(const Trouble &trouble) override { m_log.append(trouble.what.key); }
    void ask(const Question &question, std::function<void(Answer)> answered) override
    {
        m_log.append("ask "_L1 + question.title);
        answered(answer);
    }
    void input(const Question &question, const QString &, std::function<void(const QString &)> answered) override
    {
        m_log.append("input "_L1 + question.title);
        answered(typed);
    }

    Answer answer = Answer::No;
    QString typed;

private:
    QStringList &m_log;
};

/// A screen that only remembers.
class Listener : public Receiver
{
public:
    void take(const Delivery &delivery) override { remember(u"taken"_s, delivery); }
    void resume() override { events.append(u"resumed"_s); }
    void release(Release why, const Delivery &partial) override
    {
        static const QStringList kReasons = {u"lost"_s, u"disconnected"_s, u"no model"_s, u"no answer"_s};
        remember(kReasons.at(static_cast<int>(why)), partial);
    }

    QStringList events;
    Delivery last;

private:
    void remember(const QString &event, const Delivery &delivery)
    {
        events.append(event);
        last = delivery;
    }
};

/// A session on a scripted line with a store of its own; what it tells goes into one log, in order.
struct SessionBench
{
    SessionBench()
    {
        static QTemporaryDir seeds;
        static const bool seeded = bool(createStore(seeds.filePath(u"Seeded.pmx"_s)));
        if (seeded)
            QFile::copy(seeds.filePath(u"Seeded.pmx"_s), path);
        const auto logs = [this](auto signal, const QString &text) {
            QObject::connect(&session, signal, &session, [this, text] { log.append(text); });
        };
        logs(&Session::portsWanted, u"portsWanted"_s);
        logs(&Session::connectFailed, u"failed"_s);
        logs(&Session::connectionSettled, u"settled"_s);
        logs(&Session::modelMissing, u"choose"_s);
        logs(&Session::linkLost, u"lost"_s);
        QObject::connect(&session, &Session::refused, &session, [this](const Notice &why) { log.append(why.key); });
        QObject::connect(&session, &Session::storeFailed, &session,
                         [this](const Trouble &why) { log.append(why.what.key); });
        QObject::connect(&session, &Session::statusChanged, &session, [this] { title = session.windowCaption(); });
        session.attach(u"15"_s, &screen);
    }

    /// Polls until the command in flight is answered; how many polls that took.
    int deliver()
    {
        session.Timer1_Timer();
        int polls = 1;
        for (; session.Status() != u'1' && polls < 999; ++polls)
            session.Timer2_Timer();
        return polls;
    }

    /// Presses the button; the phone answers the model query with these bytes.
    void connectWith(const QByteArray &bytes)
    {
        port.answers.append({bytes});
        session.connectOrDisconnect(u"3"_s);
        deliver();
    }

    /// Connects to a phone whose model query comes to this body.
    void accept(const QByteArray &body)
    {
        connectWith(answered("syscfg print RMd#", body));
        session.TimerValidaPorta_Timer();
    }

    QTemporaryDir dir;
    QString path = dir.filePath(u"Config.pmx"_s);
    QStringList log;
    QString title;
    QStringList opened;
    ScriptedPort port;
    ScriptedBoxes boxes{log};
    StoreQueue store{path, StoreQueue::Waiting::ByTimer};
    Listener screen;
    Session session{{port, store, boxes, [](const PortAddress &) { return u"/dev/box"_s; },
                     [this](const QString &address) { opened.append(address); }}};
};
