#include "bucktestescreen.h"

#include "railrows.h"

#include <QRegularExpression>

#include <numeric>

using namespace Qt::StringLiterals;

static constexpr auto kCode = "13"_L1;
static constexpr auto kCommandStem = "buck"_L1;
static constexpr auto kUsualBuck = "5"_L1;
static constexpr int kBuckKind = 2;

BuckTesteScreen::BuckTesteScreen(Session &session, QObject *parent) : Screen(session, u"BuckTeste"_s, {kCode}, parent)
{
    Pesquisa(Mode::Usual);
    connect(&session, &Session::modelChanged, this, &BuckTesteScreen::loadBucks);
    connect(&session, &Session::readingsCleared, this, &BuckTesteScreen::forget);
    connect(&session, &Session::languageChanged, this, &BuckTesteScreen::rebuild);
}

void BuckTesteScreen::PreProcesso()
{
    loadBucks();
    if (session().isReady() && !session().isModelKnown())
        session().requestModel(kCode);
}

/// The number of the last output "BuckN", or below 0 when there is none.
static int lastBuck(const QList<RailRow> &rows)
{
    static const QRegularExpression kBuck(u"^Buck([0-9]+)\\z"_s);
    int last = -1;
    for (const RailRow &row : rows)
        if (const auto match = kBuck.match(row.orig); match.hasMatch())
            last = std::max(last, match.captured(1).toInt());
    return last;
}

void BuckTesteScreen::loadBucks()
{
    m_lastBuck = -1;
    rebuild();
    const RailFilter wanted{session().model(), kBuckKind};
    withStore<QList<RailRow>>(
        Store::Access::Read, [wanted](Store &store) { return railRows(store, wanted); },
        [this, wanted](const QList<RailRow> &rows) {
            if (wanted.modelo != session().model())
                return;
            m_lastBuck = lastBuck(rows);
            rebuild();
        });
}

static std::optional<int> buckNumber(const QString &text)
{
    static const QRegularExpression kNumber(u"^0*([0-9]{1,2})\\z"_s);
    const QRegularExpressionMatch number = kNumber.match(QString(text).remove(u' '));
    if (!number.hasMatch() || number.captured(1).toInt() > kLastBuck)
        return {};
    return number.captured(1).toInt();
}

void BuckTesteScreen::Pesquisa(Mode mode)
{
    if (mode == Mode::Usual) {
        m_combo1 = kUsualBuck;
        return;
    }
    if (const auto buck = buckNumber(m_combo1))
        return start({*buck});
    session().refuse({u"REFUSED_BUCK"_s, {QString::number(kLastBuck)}});
    emit readingEnded();
}

void BuckTesteScreen::read()
{
    if (m_wantsAll)
        Botao1_Click();
    else
        btBl_Click();
}

void BuckTesteScreen::Botao1_Click()
{
    QList<int> all(m_lastBuck + 1);
    std::iota(all.begin(), all.end(), 0);
    if (session().isModelKnown() && !all.isEmpty())
        return start(all);
    session().refuse({session().isConnected() ? u"REFUSED_NO_MODEL"_s : u"REFUSED_NOT_CONNECTED"_s});
    emit readingEnded();
}

void BuckTesteScreen::start(const QList<int> &bucks)
{
    if (!session().isReady()) { // says why, and leaves the lists as they are
        session().request(kCode, {});
        return emit readingEnded();
    }
    forget();
    m_isCancelled = false;
    m_asked = bucks;
    m_waiting = bucks;
    sendNext();
}

void BuckTesteScreen::sendNext()
{
    if (m_waiting.isEmpty() || !session().request(kCode, u"%1check %2"_s.arg(kCommandStem).arg(m_waiting.first())))
        return end();
    rebuild();
}

/// After a reply that was cut the next one could be the rest of it: a run ends there.
void BuckTesteScreen::take(const Delivery &delivery)
{
    if (m_waiting.isEmpty())
        return;
    const int buck = m_waiting.takeFirst();
    if (m_isCancelled && delivery.cut)
        return end();
    if (delivery.reply.isEmpty() && !isStray())
        session().refuse({u"IGNORED_EMPTY_REPLY"_s});
    else if (delivery.cut && !isStray())
        session().refuse({u"REPLY_CUT"_s});
    m_input.replies.append({buck, delivery.reply, delivery.cut, delivery.recording});
    if (delivery.cut)
        return end();
    sendNext();
}

void BuckTesteScreen::release(Release why, const Delivery &partial)
{
    Q_UNUSED(why)
    if (isReading())
        take(partial);
}

void BuckTesteScreen::end()
{
    m_waiting.clear();
    rebuild();
    if (hasReading())
        emit judged();
    emit readingEnded();
}

void BuckTesteScreen::Botao2_Click()
{
    if (!isReading())
        return;
    m_waiting = {m_waiting.first()};
    m_isCancelled = true;
    session().stop(kCode);
}

void BuckTesteScreen::forget()
{
    forgetStray();
    m_input.replies.clear();
    m_asked.clear();
    m_waiting.clear();
    rebuild();
}

int BuckTesteScreen::progress() const
{
    const qsizetype done = m_input.replies.size();
    return isReading() ? static_cast<int>(100 * done / (done + m_waiting.size())) : 0;
}

/// The replies come in the order in which the bucks were asked for.
QList<int> BuckTesteScreen::untested() const
{
    return m_asked.sliced(std::min(m_asked.size(), m_input.replies.size()));
}

QString BuckTesteScreen::unmeasured() const
{
    if (isReading())
        return {};
    QStringList unread;
    for (const Judgement &judgement : reading().judgements)
        if (judgement.verdict == Verdict::Incomplete)
            unread.append(judgement.what);
    const QStringList untested = unread.mid(unread.size() - m_input.untested.size()); // they come last
    unread.resize(unread.size() - untested.size());
    QStringList texts;
    if (!unread.isEmpty())
        texts.append(unread.join(", "_L1) + ": "_L1 + caption(u"Sem Medição"));
    if (!untested.isEmpty())
        texts.append(caption(m_isCancelled ? u"TESTE_CANCELADO" : u"TESTE_INTERROMPIDO").arg(untested.join(", "_L1)));
    return texts.join(u"   "_s);
}

QMap<QString, Field> BuckTesteScreen::state() const
{
    QStringList bucks;
    for (int buck = 0; buck <= (m_lastBuck < 0 ? kLastBuck : m_lastBuck); ++buck)
        bucks.append(QString::number(buck));
    const Field resting{.enabled = !isReading()};
    return {{u"Combo1"_s, {.enabled = !isReading(), .items = bucks}},
            {u"btBl"_s, resting},
            {u"Botao1"_s, resting},
            {u"Botao2"_s, {.enabled = isReading()}},
            {u"FrameVCore"_s, {.visible = isReading()}},
            {u"Barra"_s, {.value = progress()}}};
}

void BuckTesteScreen::rebuild()
{
    m_input.model = session().model();
    m_input.language = session().language();
    m_input.untested = untested();
    const BuckReading reading = readBucks(m_input);
    m_verdicts = reading.verdicts;
    show(reading.panel, state());
}
