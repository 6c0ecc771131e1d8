#include "referenciasscreen.h"

#include "catalogue.h"
#include "selftest.h"
#include "serialnumber.h"

#include <QDateTime>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kCode = "22"_L1;
constexpr int kKinds = 3;

/// Behind the day and the time.
QString serialOf(const QString &board)
{
    return board.section(u' ', 2);
}

/// A board's name as a person reads it.
QString shownName(const QString &board)
{
    const QString serial = serialOf(board);
    return board.section(u'.', 0, 0) + (serial.isEmpty() ? QString() : u", "_s + serial);
}

/// What the store knows of a model.
struct Stock
{
    QList<RailRow> rows;
    QList<GoodReading> readings;
};

Result<Stock> stockOf(const Store &store, const QString &model)
{
    Stock stock;
    for (int kind = kKinds - 1; kind >= 0; --kind) {
        const Result<QList<RailRow>> rows = railRows(store, {.modelo = model, .tipo = kind});
        if (!rows)
            return rows.trouble();
        stock.rows += *rows;
    }
    const Result<QList<GoodReading>> readings = goodReadings(store, model);
    if (!readings)
        return readings.trouble();
    stock.readings = *readings;
    return stock;
}

} // namespace

ReferenciasScreen::ReferenciasScreen(Session &session, QObject *parent)
    : ReadingScreen(session, u"Referencias"_s, kCode, kSelfTest, parent)
{
    connect(&session, &Session::modelChanged, this, &ReferenciasScreen::load);
    connect(&session, &Session::languageChanged, this, &ReferenciasScreen::rebuild);
    connect(&session, &Session::readingsCleared, this, [this] {
        forgetReading();
        readingBegan();
        load();
    });
}

void ReferenciasScreen::readingBegan()
{
    m_board = Board::Open;
    m_serial.clear();
    m_isAskingSerial = false;
}

void ReferenciasScreen::load()
{
    m_isLoaded = false;
    const QString model = session().model();
    withStore<Stock>(
        Store::Access::Read, [model](Store &store) { return stockOf(store, model); },
        [this, model](const Stock &stock) {
            if (model != session().model())
                return;
            m_input.rows = stock.rows;
            m_input.earlier = stock.readings;
            m_isLoaded = true;
            if (isReading() && hasReading()) // the reply was here first
                judgeReply();
            else
                rebuild();
        });
}

/// What a board that is taken again read before does not count beside what it reads now.
ReferenciasInput ReferenciasScreen::input() const
{
    ReferenciasInput input = m_input;
    const bool isOpen = m_board == Board::Open;
    input.reply = isOpen ? txtDados() : QString();
    input.earlier = isOpen ? earlierWithout(sameBoards()) : m_input.earlier;
    input.model = session().model();
    input.language = session().language();
    return input;
}

void ReferenciasScreen::rebuild()
{
    m_read = readReferencias(input());
    show(m_read.panel, state());
}

/// The boards that were taken from the phone that was read.
QStringList ReferenciasScreen::sameBoards() const
{
    QStringList boards;
    for (const GoodReading &reading : m_input.earlier)
        if (!m_serial.isEmpty() && serialOf(reading.board) == m_serial && !boards.contains(reading.board))
            boards.append(reading.board);
    return boards;
}

QList<GoodReading> ReferenciasScreen::earlierWithout(const QStringList &boards) const
{
    QList<GoodReading> remaining = m_input.earlier;
    remaining.removeIf([&boards](const GoodReading &reading) { return boards.contains(reading.board); });
    return remaining;
}

QString ReferenciasScreen::lastBoard() const
{
    return m_input.earlier.isEmpty() ? QString() : m_input.earlier.constLast().board;
}

QMap<QString, Field> ReferenciasScreen::state() const
{
    const QString last = lastBoard();
    const bool isBusy = isReading() || m_isAskingSerial;
    const QString read = caption(isReading() ? u"Processando comando" : u"Executar Leitura");
    return {{u"btExecutaLeitura"_s, {.text = isReading() ? read : read + "  F5"_L1, .enabled = !isBusy}},
            {u"btTomar"_s, {.enabled = !isBusy && !m_read.here.isEmpty()}},
            {u"btDesfazer"_s, {.enabled = !isBusy && !last.isEmpty()}},
            {u"FrameVCore"_s, {.visible = isBusy}},
            {u"lbUltima"_s,
             {.text = last.isEmpty() ? caption(u"Nenhuma placa tomada ainda")
                                     : caption(u"Última placa: %1").arg(shownName(last))}}};
}

bool ReferenciasScreen::mayTake()
{
    const auto refused = [this](const QString &why) {
        session().refuse({why});
        return false;
    };
    if (session().knownModel().isEmpty())
        return refused(u"REFUSED_NO_MODEL"_s);
    if (isCut()) // half a board is no reference
        return refused(u"REPLY_CUT"_s);
    return m_read.here.isEmpty() ? refused(u"REFUSED_NO_READING"_s) : true;
}

void ReferenciasScreen::btTomar_Click()
{
    if (m_isAskingSerial || !mayTake())
        return;
    if (!session().isConnected())
        return propose();
    m_isAskingSerial = session().request(kCode, kSerialCommand);
    rebuild();
}

void ReferenciasScreen::take(const Delivery &delivery)
{
    if (!std::exchange(m_isAskingSerial, false))
        return ReadingScreen::take(delivery);
    m_serial = delivery.cut ? QString() : serialIn(delivery.reply);
    rebuild();
    if (mayTake())
        propose();
}

void ReferenciasScreen::release(Release why, const Delivery &partial)
{
    if (!std::exchange(m_isAskingSerial, false))
        return ReadingScreen::release(why, partial);
    forgetStray(); // the reading before stands
    rebuild();
}

QString ReferenciasScreen::proposal() const
{
    const Language language = session().language();
    const QStringList same = sameBoards();
    QStringList parts{caption(u"TOMAR_REFERENCIA")
                          .arg(session().model(), countCaption(u"%1 saídas", m_read.outputs, language),
                               countCaption(u"%1 referências mudam", m_read.changes, language))};
    if (m_serial.isEmpty())
        parts.append(caption(u"TOMAR_SEM_SERIE"));
    else if (!same.isEmpty())
        parts.append(caption(u"TOMAR_DE_NOVO").arg(shownName(same.constLast())));
    if (m_read.faults > 0)
        parts.append(countCaption(u"TOMAR_COM_FALHAS", m_read.faults, language));
    return parts.join("\n\n"_L1);
}

void ReferenciasScreen::propose()
{
    session().boxes().ask({caption(u"Tomar como referência"), proposal(), Question::Choices::YesNo},
                          [this, readings = m_read.here](Answer answer) {
                              if (answer == Answer::Yes)
                                  keepBoard(readings);
                          });
}

void ReferenciasScreen::keepBoard(const QList<GoodReading> &readings)
{
    const QDateTime now = QDateTime::currentDateTime();
    BoardChange change{.dropped = sameBoards(), .added = readings};
    for (GoodReading &reading : change.added)
        reading.board = (now.toString(u"yyyy-MM-dd HH:mm:ss.zzz "_s) + m_serial).trimmed();
    change.references = referencesFrom(m_input.rows, earlierWithout(change.dropped) + change.added, now.date());
    const QString model = session().model();
    write([=](Store &store) { return changeGoodBoards(store, model, change); }, Board::Taken);
}

void ReferenciasScreen::btDesfazer_Click()
{
    const QString board = lastBoard();
    if (board.isEmpty())
        return;
    session().boxes().ask(
        {caption(u"Desfazer"), caption(u"DESFAZER_PLACA").arg(shownName(board)), Question::Choices::YesNo},
        [this, board](Answer answer) {
            if (answer == Answer::Yes)
                forget(board);
        });
}

void ReferenciasScreen::forget(const QString &board)
{
    const BoardChange change{.dropped = {board},
                             .references = referencesFrom(m_input.rows, earlierWithout({board}), QDate::currentDate())};
    const QString model = session().model();
    write([=](Store &store) { return changeGoodBoards(store, model, change); }, Board::Open);
}

void ReferenciasScreen::write(std::function<Result<Done>(Store &)> work, Board after)
{
    withStore<Done>(Store::Access::Write, std::move(work), [this, after](const Done &) {
        m_board = after;
        load();
    });
}
