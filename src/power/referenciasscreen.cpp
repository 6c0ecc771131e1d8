#include "referenciasscreen.h"

#include "selftest.h"

#include <QDateTime>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kCode = "22"_L1;
constexpr int kKinds = 3;

/// A board's name as a person reads it.
QString shownName(const QString &board)
{
    return board.section(u'.', 0, 0);
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
        load();
    });
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

void ReferenciasScreen::rebuild()
{
    m_input.reply = m_board == Board::Taken ? QString() : txtDados();
    m_input.model = session().model();
    m_input.language = session().language();
    m_read = readReferencias(m_input);
    show(m_read.panel, state());
}

QString ReferenciasScreen::lastBoard() const
{
    return m_input.earlier.isEmpty() ? QString() : m_input.earlier.constLast().board;
}

QMap<QString, Field> ReferenciasScreen::state() const
{
    const QString last = lastBoard();
    const QString read = caption(isReading() ? u"Processando comando" : u"Executar Leitura");
    return {{u"btExecutaLeitura"_s, {.text = isReading() ? read : read + "  F5"_L1, .enabled = !isReading()}},
            {u"btTomar"_s, {.enabled = !isReading() && !m_read.here.isEmpty()}},
            {u"btDesfazer"_s, {.enabled = !isReading() && !last.isEmpty()}},
            {u"FrameVCore"_s, {.visible = isReading()}},
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
    if (!mayTake())
        return;
    const QList<GoodReading> readings = m_read.here;
    const auto changes = referencesFrom(m_input.rows, m_input.earlier + readings, QDate::currentDate()).size();
    QString text = caption(u"TOMAR_REFERENCIA").arg(session().model()).arg(readings.size()).arg(changes);
    if (m_read.faults > 0)
        text += u"\n\n"_s + caption(u"TOMAR_COM_FALHAS").arg(m_read.faults);
    session().boxes().ask({caption(u"Tomar como referência"), text, Question::Choices::YesNo},
                          [this, readings](Answer answer) {
                              if (answer == Answer::Yes)
                                  take(readings);
                          });
}

void ReferenciasScreen::take(const QList<GoodReading> &readings)
{
    const QDateTime now = QDateTime::currentDateTime();
    QList<GoodReading> named = readings;
    for (GoodReading &reading : named)
        reading.board = now.toString(u"yyyy-MM-dd HH:mm:ss.zzz"_s);
    const auto references = referencesFrom(m_input.rows, m_input.earlier + named, now.date());
    const QString model = session().model();
    write([=](Store &store) { return addGoodBoard(store, model, named, references); }, Board::Taken);
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
    QList<GoodReading> remaining = m_input.earlier;
    remaining.removeIf([&board](const GoodReading &reading) { return reading.board == board; });
    const auto references = referencesFrom(m_input.rows, remaining, QDate::currentDate());
    const QString model = session().model();
    write([=](Store &store) { return dropGoodBoard(store, model, board, references); }, Board::Open);
}

void ReferenciasScreen::write(std::function<Result<Done>(Store &)> work, Board after)
{
    withStore<Done>(Store::Access::Write, std::move(work), [this, after](const Done &) {
        m_board = after;
        load();
    });
}
