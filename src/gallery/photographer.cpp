#include "photographer.h"

#include "connectionbar.h"
#include "home.h"
#include "seeds.h"
#include "settings.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>

#include <algorithm>
#include <array>
#include <cstdio>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr QSize kWindow(1280, 800);

// The named ticks that judge a reply come every 250 ms: a link that was idle for four of these has nothing to tell.
constexpr auto kWatch = 100ms;
constexpr int kIdleTicks = 10;
constexpr int kPatience = 600;

// The line is not paced, so a poll may be short, and nobody waits for a person to look.
constexpr Intervals kQuick{.validaPorta = 10ms, .fecha = 10ms, .poll = 200ms};

constexpr int kConnectButton = 1;

/// What a person does on a screen whose own reading would not show what it is for.
struct Deed
{
    QLatin1StringView screen;
    QLatin1StringView field;
    QLatin1StringView text;
    QLatin1StringView button;
};

constexpr std::array kDeeds = {
    Deed{"BuckTeste"_L1, {}, {}, "Botao1"_L1},
    Deed{"I2C"_L1, {}, {}, "btAutoTeste"_L1},
    Deed{"Master"_L1, "txtComandos"_L1, "pmuadc --read all"_L1, "btSend"_L1},
};

QString madeStore(const QString &folder)
{
    const QString path = configStore(folder);
    return createStore(path) ? path : QString();
}

} // namespace

void AgreeingBoxes::message(const Trouble &trouble)
{
    std::fputs(qPrintable(u"  told: "_s + trouble.what.key + u' ' + trouble.what.arguments.join(u' ') + u'\n'), stderr);
}

void AgreeingBoxes::ask(const Question &question, std::function<void(Answer)> answered)
{
    answered(question.choices == Question::Choices::Ok ? Answer::Ok : Answer::Yes);
}

void AgreeingBoxes::input(const Question &, const QString &proposal, std::function<void(const QString &)> answered)
{
    answered(proposal);
}

Photographer::Photographer(Picture picture, QString folder)
    : m_picture(std::move(picture)),
      m_folder(std::move(folder)),
      m_storePath(madeStore(m_home.path())),
      m_store(m_storePath, StoreQueue::Waiting::ByTimer),
      m_session({.port = m_port,
                 .store = m_store,
                 .boxes = m_boxes,
                 .deviceFor = [this](const PortAddress &address) { return m_resolver.deviceFor(address); },
                 .intervals = kQuick}),
      m_log(m_home.filePath(u"log"_s)),
      m_window({m_session, m_log, [] { return QList<PortEntry>(); }})
{
    m_watch.setInterval(kWatch);
    connect(&m_watch, &QTimer::timeout, this, &Photographer::watch);
    connect(&m_session, &Session::connectionSettled, this, &Photographer::readScreen);
    connect(&m_session, &Session::connectFailed, this, [this] { shoot(false); });
}

void Photographer::begin()
{
    m_session.load();
    m_session.chooseLanguage(m_picture.language);
    m_window.resize(kWindow);
    m_window.show();
    m_window.connectionBar().setPort(u"sim:"_s + m_picture.phone);
    m_window.Botoes_Click(kConnectButton);
}

void Photographer::readScreen()
{
    m_window.openScreen(m_picture.screen);
    if (const auto deed = std::ranges::find(kDeeds, m_picture.screen, &Deed::screen); deed != kDeeds.end())
        act(deed->field, deed->text, deed->button);
    else
        m_window.readScreen(m_picture.screen);
    m_watch.start();
}

void Photographer::act(const QString &field, const QString &text, const QString &button)
{
    if (!field.isEmpty())
        m_window.findChild<QComboBox *>(field)->setEditText(text);
    m_window.findChild<QAbstractButton *>(button)->click();
}

void Photographer::watch()
{
    m_idleTicks = m_session.isReady() ? m_idleTicks + 1 : 0;
    if (m_idleTicks >= kIdleTicks || ++m_ticks >= kPatience)
        shoot(m_idleTicks >= kIdleTicks);
}

void Photographer::shoot(bool isIdle)
{
    m_watch.stop();
    const QString file = QDir(m_folder).filePath(m_picture.name + u".png"_s);
    emit finished(isIdle && m_window.grab().save(file));
}
