#include "i2cscreen.h"

#include "chipreading.h"

#include <QDate>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

static constexpr auto kCode = "6"_L1;

/// The diagram of a group of models, by the first characters of its name. The first row that fits decides.
struct Diagram
{
    QLatin1StringView models;
    QLatin1StringView file;
};

static constexpr std::array kDiagrams = {
    Diagram{"IP 6s"_L1, "A9.pdf"_L1},  Diagram{"IP 6"_L1, "xA8.pdf"_L1},  Diagram{"IP 7"_L1, "xA10.pdf"_L1},
    Diagram{"IP 8"_L1, "xA11.pdf"_L1}, Diagram{"IP X"_L1, "xA11.pdf"_L1},
};

I2CScreen::I2CScreen(Session &session, QObject *parent) : CheckScreen(session, u"I2C"_s, kCode, parent)
{
    m_timerAuto.setInterval(100ms);
    connect(&m_timerAuto, &QTimer::timeout, this, &I2CScreen::TimerAuto_Timer);
    connect(&session, &Session::modelChanged, this, &I2CScreen::loadExpected);
    connect(&session, &Session::languageChanged, this, &I2CScreen::rebuildFor);
    connect(&session, &Session::statusChanged, this, [this] {
        if (isRunning() && !this->session().isConnected())
            endRun(BusRun::Cancelled);
    });
    rebuildFor();
}

void I2CScreen::open()
{
    loadExpected();
}

void I2CScreen::loadExpected()
{
    m_input.expected.reset();
    rebuildFor();
    const QString model = session().model();
    withStore<QList<BusDevice>>(
        Store::Access::Read, [model](Store &store) { return busDevices(store, model); },
        [this, model](const QList<BusDevice> &devices) {
            if (model != session().model())
                return;
            m_input.expected = devices;
            rebuildFor();
        });
}

void I2CScreen::rebuildFor()
{
    m_input.model = session().model();
    m_input.language = session().language();
    rebuild();
}

void I2CScreen::read()
{
    if (m_wantsAuto)
        btAutoTeste_Click();
    else
        btI2C_Click(m_chosen);
}

void I2CScreen::btI2C_Click(int bus)
{
    if (isReading() || isRunning())
        return;
    m_chosen = bus;
    m_wantsAuto = false;
    m_input.run = BusRun::None;
    testBus(bus);
}

void I2CScreen::testBus(int bus)
{
    if (busButton(session().model(), bus) != BusButton::Testable) {
        session().refuse({u"REFUSED_BUS"_s, {session().model(), QString::number(bus)}});
        return checkEnded();
    }
    if (session().isReady()) { // what the bus answered before goes with the question
        m_input.bus = bus;
        m_input.replies.removeIf([bus](const BusReply &reply) { return reply.bus == bus; });
    }
    ask({.command = busCommand(bus), .needsModel = true});
}

void I2CScreen::btAutoTeste_Click()
{
    if (isRunning())
        return endRun(BusRun::Cancelled);
    if (!session().isConnected()) {
        mayAsk();
        return checkEnded();
    }
    m_wantsAuto = true;
    beginRun();
}

void I2CScreen::beginRun()
{
    m_input.replies.clear();
    m_input.bus = -1;
    m_input.run = BusRun::Running;
    m_next = 0;
    m_isModelAsked = false;
    m_timerAuto.start();
    rebuild();
}

/// The run waits for whatever is in flight, its own scan or another screen's command.
void I2CScreen::TimerAuto_Timer()
{
    if (!isRunning() || isReading() || !session().isReady())
        return;
    if (!session().isModelKnown()) {
        m_isModelAsked = session().requestModel(kCode);
        return;
    }
    while (m_next < kBuses && busButton(session().model(), m_next) != BusButton::Testable)
        ++m_next;
    if (m_next == kBuses)
        return endRun(BusRun::Finished);
    testBus(m_next++);
}

void I2CScreen::endRun(BusRun how)
{
    m_timerAuto.stop();
    m_isModelAsked = false;
    m_input.run = how;
    rebuild();
    emit readingEnded();
    if (hasReading())
        emit judged();
}

void I2CScreen::resume()
{
    if (!std::exchange(m_isModelAsked, false))
        CheckScreen::resume();
}

void I2CScreen::release(Release why, const Delivery &partial)
{
    if (std::exchange(m_isModelAsked, false))
        endRun(BusRun::Cancelled);
    else
        CheckScreen::release(why, partial);
}

void I2CScreen::keepReply(const BusReply &reply)
{
    m_input.replies.removeIf([&](const BusReply &known) { return known.bus == reply.bus; });
    m_input.replies.append(reply);
    rebuild();
}

void I2CScreen::askEnded()
{
    keepReply({m_input.bus, txtDados(), delivery().cut});
}

/// A bus that never answered is part of the run all the same.
void I2CScreen::checkEnded()
{
    if (!isRunning())
        emit readingEnded();
    else if (!hasReading())
        keepReply({m_input.bus, {}, true});
}

/// A run that has just learned the model begins with that model's buses.
void I2CScreen::forget()
{
    m_input.replies.clear();
    m_input.bus = -1;
    m_next = 0;
    if (!isRunning())
        m_input.run = BusRun::None;
    CheckScreen::forget();
}

void I2CScreen::btPdf_Click()
{
    const QString model = session().model();
    const auto row = std::ranges::find_if(kDiagrams, [&](const Diagram &of) { return model.startsWith(of.models); });
    if (row == kDiagrams.end())
        session().refuse({u"REFUSED_NO_MODEL"_s});
    else
        openGuide(row->file);
}

void I2CScreen::btConhecido_Click()
{
    const KnownGood known = knownGood(m_input, u"recorded here, %1"_s.arg(QDate::currentDate().toString(Qt::ISODate)));
    if (known.devices == 0)
        return session().refuse({u"NOTHING_ON_BUSES"_s});
    QStringList text{caption(u"CONHECIDO_I2C").arg(session().model()).arg(known.devices).arg(known.buses.size())};
    const auto tell = [&](QStringView key, const QStringList &devices) {
        if (!devices.isEmpty())
            text.append(caption(key) + u'\n' + devices.join(u'\n'));
    };
    tell(u"Não serão mais esperados (não responderam):", known.dropped);
    tell(u"Passam a ser esperados:", known.added);
    const Answer preset = known.dropped.isEmpty() ? Answer::Yes : Answer::No;
    session().boxes().ask({caption(u"Telefone bom conhecido"), text.join("\n\n"_L1), Question::Choices::YesNo, preset},
                          [this, buses = known.buses](Answer answer) {
                              if (answer == Answer::Yes)
                                  keepKnownGood(buses);
                          });
}

void I2CScreen::keepKnownGood(const QList<ExpectedBus> &buses)
{
    withStore<Done>(
        Store::Access::Write, [buses](Store &store) { return expectOnBuses(store, buses); },
        [this](const Done &) { loadExpected(); });
}

QMap<QString, Field> I2CScreen::state() const
{
    QMap<QString, Field> fields = CheckScreen::state();
    const QString model = session().model();
    for (int bus = 0; bus < kBuses; ++bus) {
        const BusButton button = busButton(model, bus);
        const bool isFree = !isReading() && !isRunning();
        fields[element(u"btI2C", bus)] = {.visible = button != BusButton::Hidden,
                                          .enabled = isFree && button == BusButton::Testable};
    }
    fields[u"btAutoTeste"_s] = {.text = caption(isRunning() ? u"Cancelar" : u"Auto Teste")};
    fields[u"btConhecido"_s] = {.enabled = !isReading() && !isRunning() && !m_input.replies.isEmpty() &&
                                           !session().knownModel().isEmpty()};
    fields[u"FrameVCore"_s] = {.visible = isReading() || isRunning()};
    if (isRunning())
        fields[u"Barra"_s] = {.value = 100 * m_next / kBuses};
    return fields;
}
