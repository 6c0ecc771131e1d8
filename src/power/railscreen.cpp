#include "railscreen.h"

#include "settings.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

static constexpr auto kSelfTest = "pmuadc --read all"_L1;
static constexpr auto kBlinkInterval = 500ms;
static constexpr int kBlinks = 10; ///< five seconds, then the note stays

RailScreen::RailScreen(Session &session, const RailScreenTraits &traits, QObject *parent)
    : Screen(session, traits.name, {traits.code}, parent), m_traits(traits), m_kind(traits.firstKind)
{
    m_input.order = traits.loadOrder;
    m_timerBarra.setInterval(100ms);
    m_timerIndicaVar.setInterval(kBlinkInterval);
    connect(&m_timerBarra, &QTimer::timeout, this, &RailScreen::TimerBarra_Timer);
    connect(&m_timerIndicaVar, &QTimer::timeout, this, &RailScreen::TimerIndicaVar_Timer);
    connect(&session, &Session::readingsCleared, this, &RailScreen::LimpaLeiturasExterno);
    connect(&session, &Session::modelChanged, this, &RailScreen::loadRows);
    connect(&session, &Session::languageChanged, this, &RailScreen::rebuild);
}

void RailScreen::open()
{
    loadDecimals();
    loadRows();
}

void RailScreen::loadDecimals()
{
    withStore<QString>(
        Store::Access::Read, [this](Store &store) { return combo(store, m_traits.voltDecimals); },
        [this](const QString &stored) { setVoltDecimals(stored); });
    withStore<QString>(
        Store::Access::Read, [this](Store &store) { return combo(store, m_traits.milliDecimals); },
        [this](const QString &stored) { setMilliDecimals(stored); });
}

void RailScreen::loadRows()
{
    const RailFilter wanted{session().model(), m_kind, m_traits.loadOrder};
    withStore<QList<RailRow>>(
        Store::Access::Read, [wanted](Store &store) { return railRows(store, wanted); },
        [this, wanted](const QList<RailRow> &rows) {
            if (wanted.modelo != session().model() || wanted.tipo != m_kind)
                return;
            m_rows = rows;
            rebuild();
        });
}

void RailScreen::rebuild()
{
    m_input.model = session().model();
    m_input.language = session().language();
    m_reading = readRails(m_traits, m_input, m_rows);
    show(m_reading.panel, state());
}

QMap<QString, Field> RailScreen::state() const
{
    const Field control{.enabled = !m_isReading};
    QMap<QString, Field> fields;
    for (const auto &name :
         {u"Frame1"_s, u"ComboDecimais"_s, u"ComboDecimaisAmp"_s, u"FrameSelecoes"_s, u"Botao3"_s, u"Botao4"_s})
        fields.insert(name, control);
    fields[u"FrameVCore"_s] = {.visible = m_isReading};
    fields[u"Barra"_s] = {.value = m_progress};
    fields[u"lbVar"_s] = m_reading.panel.fields.value(u"lbVar"_s);
    fields[u"lbVar"_s].fore = m_noteVisible ? Colour::Text : Colour::Face;
    fields[u"Botao1"_s] = {.enabled = !m_isReading, .checked = m_kind == 2};
    fields[u"Botao2"_s] = {.enabled = !m_isReading, .checked = m_kind == 1};
    fields[u"OpMalha"_s] = {.checked = m_input.order == m_traits.malhaOrder || m_input.order == m_traits.loadOrder};
    fields[u"OpIc"_s] = {.checked = m_input.order == m_traits.icOrder};
    fields[u"OpPorc"_s] = {.checked = m_input.order == RailOrder::PorcDescending};
    fields[u"ComboDecimais"_s].text = QString::number(m_input.voltDecimals);
    fields[u"ComboDecimaisAmp"_s].text = QString::number(m_input.milliDecimals);
    return fields;
}

void RailScreen::chooseKind(int kind)
{
    m_kind = kind;
    loadRows();
    storeReadings();
}

void RailScreen::sortBy(RailOrder order)
{
    m_input.order = order;
    rebuild();
}

bool RailScreen::setVoltDecimals(const QString &text)
{
    static const QStringList kChoices = {u"1"_s, u"2"_s, u"3"_s};
    if (!kChoices.contains(text))
        return false;
    m_input.voltDecimals = text.toInt();
    rebuild();
    return true;
}

bool RailScreen::setMilliDecimals(const QString &text)
{
    static const QStringList kChoices = {u"0"_s, u"1"_s, u"2"_s, u"3"_s};
    if (!kChoices.contains(text))
        return false;
    m_input.milliDecimals = text.toInt();
    rebuild();
    return true;
}

void RailScreen::ComboDecimais_Click(const QString &text)
{
    if (setVoltDecimals(text))
        keepDecimals(m_traits.voltDecimals, text);
}

void RailScreen::ComboDecimaisAmp_Click(const QString &text)
{
    if (setMilliDecimals(text))
        keepDecimals(m_traits.milliDecimals, text);
}

void RailScreen::keepDecimals(Combo which, const QString &text)
{
    session().keep([which, text](Store &store) { return setCombo(store, which, text); });
    storeReadings();
}

void RailScreen::PrePesquisa()
{
    if (!session().isModelKnown()) {
        if (session().requestModel(m_traits.code))
            beginReading();
        return;
    }
    ExecutaPesquisa();
}

void RailScreen::ExecutaPesquisa()
{
    if (!session().request(m_traits.code, kSelfTest))
        return endReading();
    session().keep(clearReadings);
    beginReading();
}

void RailScreen::beginReading()
{
    m_input.reply.clear();
    m_input.order = m_traits.malhaOrder;
    m_isReading = true;
    m_progress = 0;
    m_timerBarra.start();
    rebuild();
}

void RailScreen::endReading()
{
    m_isReading = false;
    m_progress = 0;
    m_timerBarra.stop();
    rebuild();
    emit readingEnded();
}

void RailScreen::LimpaLeiturasExterno()
{
    m_input.reply.clear();
    m_input.order = m_traits.loadOrder;
    loadRows();
}

void RailScreen::take(const Delivery &delivery)
{
    m_input.reply = delivery.reply;
    m_input.cut = delivery.cut;
    Timer1_Timer();
}

void RailScreen::release(Release why, const Delivery &partial)
{
    Q_UNUSED(why)
    if (!partial.reply.isEmpty())
        return take(partial);
    endReading();
}

void RailScreen::Timer1_Timer()
{
    if (m_input.reply.isEmpty()) {
        session().refuse({u"IGNORED_EMPTY_REPLY"_s});
        return endReading();
    }
    if (m_input.cut)
        session().refuse({u"REPLY_CUT"_s});
    m_noteVisible = true;
    m_blinks = 0;
    m_timerIndicaVar.start();
    endReading();
    for (const Notice &notice : m_reading.panel.messages)
        session().boxes().message({notice});
    storeReadings();
}

void RailScreen::storeReadings()
{
    if (m_input.reply.isEmpty())
        return;
    session().keep([rows = m_reading.rows](Store &store) { return writeReadings(store, rows); });
}

/// The share of the awaited lines that have come.
void RailScreen::TimerBarra_Timer()
{
    if (m_rows.isEmpty())
        return;
    const QString &console = session().txtConsole();
    const auto arrived = std::ranges::count_if(m_rows, [&console](const RailRow &row) {
        const QString label = BistLabel(row.refT);
        return !label.isEmpty() && console.contains(label);
    });
    m_progress = static_cast<int>(100 * arrived / m_rows.size());
    show(m_reading.panel, state());
}

void RailScreen::TimerIndicaVar_Timer()
{
    ++m_blinks;
    m_noteVisible = m_blinks >= kBlinks || !m_noteVisible;
    if (m_blinks >= kBlinks)
        m_timerIndicaVar.stop();
    show(m_reading.panel, state());
}

void RailScreen::setShown(bool shown)
{
    if (shown || !m_timerIndicaVar.isActive())
        return;
    m_blinks = kBlinks;
    TimerIndicaVar_Timer();
}

QList<SlotText> RailScreen::readings() const
{
    QList<SlotText> texts;
    for (const RailRow &row : m_reading.rows)
        texts.append({row.id, row.leitura});
    return texts;
}

bool RailScreen::mayRecord()
{
    if (!session().isReady() || !session().isModelKnown()) {
        session().refuse({session().isModelKnown() ? u"REFUSED_NOT_CONNECTED"_s : u"REFUSED_NO_MODEL"_s});
        return false;
    }
    if (m_input.reply.isEmpty()) // recording nothing would only empty the slot
        DBGrid1_Click();
    return !m_input.reply.isEmpty();
}

void RailScreen::btGravar_Click(int slot)
{
    if (mayRecord())
        writeSlotAfter(caption(u"Gravar"), caption(u"Deseja salvar?"), slot, readings());
}

void RailScreen::btExcluir_Click(int slot)
{
    QList<SlotText> texts = readings();
    for (SlotText &text : texts)
        text.text.clear();
    writeSlotAfter(caption(u"Excluir"), caption(u"Deseja excluir os dados gravados?"), slot, texts);
}

void RailScreen::writeSlotAfter(const QString &title, const QString &question, int slot, const QList<SlotText> &texts)
{
    const Slot column = static_cast<Slot>(slot - 1);
    session().boxes().ask({title, question}, [this, column, texts](Answer answer) {
        if (answer != Answer::Yes)
            return;
        session().keep([column, texts](Store &store) { return writeSlot(store, column, texts); },
                       [this](const Done &) { loadRows(); });
    });
}

void RailScreen::DBGrid1_Click()
{
    if (m_input.reply.isEmpty())
        session().boxes().message({{u"PRIMEIRO_LEITURA"_s}});
}
