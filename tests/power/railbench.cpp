#include "railbench.h"

#include "home.h"
#include "seeds.h"

#include <algorithm>

using namespace Qt::StringLiterals;

static constexpr int kEnoughPolls = 400;

PhoneProfile phone(const QString &description)
{
    const Result<PhoneProfile> profile = profileFor(description);
    return profile ? *profile : PhoneProfile{};
}

Result<Done> PhonePort::open(const QString &)
{
    m_open = true;
    m_arrived.clear();
    return Done{};
}

void PhonePort::write(const QByteArray &bytes)
{
    commands.append(bytes.chopped(1));
    m_arrived += answer(phone, bytes.chopped(1)).left(keptBytes);
}

void PhonePort::pull()
{
    m_open = false;
    emit lost();
}

void ScriptedBoxes::ask(const Question &question, std::function<void(Answer)> answered)
{
    questions.append(question.text);
    answered(answer);
}

RailBench::RailBench(const QString &description)
{
    port.phone = phone(description);
    const QString path = configStore(folder.path());
    if (!createStore(path))
        qFatal("no store for the test");
    store = std::make_unique<StoreQueue>(path, StoreQueue::Waiting::Blocking);
    const auto deviceFor = [](const PortAddress &) -> Result<QString> { return u"phone"_s; };
    session = std::make_unique<Session>(SessionParts{port, *store, boxes, deviceFor});
    session->load();
    screen = std::make_unique<BuckLdoScreen>(*session);
    screen->open();
}

void RailBench::connectPhone()
{
    session->connectOrDisconnect(u"1"_s);
    gatherReply();
    session->TimerValidaPorta_Timer();
}

void RailBench::gatherReply()
{
    session->Timer1_Timer();
    for (int poll = 0; poll < kEnoughPolls && session->Status() != "1"_L1; ++poll)
        session->Timer2_Timer();
}

void RailBench::readKind(int kind)
{
    screen->chooseKind(kind);
    screen->read();
    gatherReply();
}

Row RailBench::shown(const QString &orig) const
{
    const QList<Row> &rows = screen->panel().rows;
    const auto found = std::ranges::find_if(rows, [&](const Row &row) { return row.cell(u"Orig") == orig; });
    return found == rows.end() ? Row{} : *found;
}

RailRow RailBench::stored(const QString &model, int kind, const QString &orig)
{
    RailRow row;
    store->run<QList<RailRow>>(
        Store::Access::Read,
        [&](Store &open) {
            return railRows(open, {model, kind});
        },
        session.get(),
        [&](const Result<QList<RailRow>> &rows) {
            const auto found = std::ranges::find(*rows, orig, &RailRow::orig);
            if (found != rows->end())
                row = *found;
        });
    return row;
}
