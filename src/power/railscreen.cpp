#include "railscreen.h"

#include "selftest.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

static constexpr auto kBlinkInterval = 500ms;
static constexpr int kBlinks = 10; ///< five seconds, then the note stays
static constexpr qsizetype kNamed = 3;

RailScreen::RailScreen(Session &session, const RailScreenTraits &traits, QObject *parent)
    : ReadingScreen(session, traits.name, traits.code, kSelfTest, parent),
      m_traits(traits),
      m_kind(traits.kinds.front().kind)
{
    m_input.order = traits.loadOrder;
    m_timerBarra.setInterval(100ms);
    m_timerIndicaVar.setInterval(kBlinkInterval);
    m_timerGrava.setSingleShot(true);
    connect(&m_timerBarra, &QTimer::timeout, this, &RailScreen::TimerBarra_Timer);
    connect(&m_timerIndicaVar, &QTimer::timeout, this, &RailScreen::TimerIndicaVar_Timer);
    connect(&m_timerGrava, &QTimer::timeout, this, &RailScreen::TimerGrava_Timer);
    connect(&session, &Session::readingsCleared, this, &RailScreen::LimpaLeiturasExterno);
    connect(&session, &Session::modelChanged, this, &RailScreen::loadRows);
    connect(&session, &Session::languageChanged, this, &RailScreen::rebuild);
    connect(&session, &Session::storeFailed, this, [this] {
        if (isReading() && hasReading() && !isPrepared()) // the rows will not come: nothing is judged
            Timer1_Timer();
    });
    connect(this, &Screen::judged, this, [this] {
        m_timerGrava.start();
        blinkNote();
    });
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
        [this](const QString &stored) { setDecimals(m_input.voltDecimals, 1, stored); });
    withStore<QString>(
        Store::Access::Read, [this](Store &store) { return combo(store, m_traits.milliDecimals); },
        [this](const QString &stored) { setDecimals(m_input.milliDecimals, 0, stored); });
}

/// The rows of another model must not be judged by, not even while the store is busy.
void RailScreen::loadRows()
{
    m_rows.clear();
    for (const RailKind &kind : m_traits.kinds)
        loadKind(kind.kind);
}

void RailScreen::loadKind(int kind)
{
    const RailFilter wanted{session().model(), kind, m_traits.loadOrder};
    withStore<QList<RailRow>>(
        Store::Access::Read, [wanted](Store &store) { return railRows(store, wanted); },
        [this, wanted](const QList<RailRow> &rows) {
            if (wanted.modelo != session().model())
                return;
            m_rows[wanted.tipo] = rows;
            rowsCame();
        });
}

bool RailScreen::isPrepared() const
{
    return m_rows.size() == static_cast<qsizetype>(m_traits.kinds.size());
}

void RailScreen::rowsCame()
{
    if (!isPrepared())
        return;
    if (isReading() && hasReading()) // the reply was here first
        Timer1_Timer();
    else
        rebuild();
}

void RailScreen::rebuild()
{
    m_input.reply = txtDados();
    m_input.cut = isCut();
    m_input.model = session().model();
    m_input.language = session().language();
    for (const RailKind &kind : m_traits.kinds)
        m_readings[kind.kind] = m_traits.read(m_traits, m_input, m_rows.value(kind.kind));
    m_front = m_readings.value(m_kind);
    showState();
}

/// A net may stand in more than one kind.
static void addOnce(QList<Judgement> &all, const QList<Judgement> &judgements)
{
    for (const Judgement &judgement : judgements)
        if (std::ranges::find(all, judgement.what, &Judgement::what) == all.end())
            all.append(judgement);
}

QList<Judgement> RailScreen::judgements() const
{
    QList<Judgement> all;
    for (const RailKind &kind : m_traits.kinds)
        addOnce(all, m_readings.value(kind.kind).judgements);
    return all;
}

void RailScreen::goTo(const QString &what)
{
    for (const RailKind &kind : m_traits.kinds) {
        const QList<Judgement> all = m_readings.value(kind.kind).judgements;
        if (std::ranges::find(all, what, &Judgement::what) != all.end())
            return chooseKind(kind.kind);
    }
}

qsizetype RailScreen::faultsOf(const RailKind &kind) const
{
    return std::ranges::count(m_readings.value(kind.kind).judgements, Verdict::Fail, &Judgement::verdict);
}

QStringList RailScreen::hiddenNets(const RailKind &kind, Verdict verdict) const
{
    const QList<Judgement> &seen = m_front.panel.judgements;
    QStringList nets;
    for (const Judgement &judgement : m_readings.value(kind.kind).judgements)
        if (judgement.verdict == verdict && std::ranges::find(seen, judgement.what, &Judgement::what) == seen.end())
            nets.append(judgement.what);
    return nets;
}

/// The first few by name, of the others how many there are.
static QString someOf(const QStringList &nets)
{
    const qsizetype more = nets.size() - kNamed;
    const QString named = nets.first(std::min(nets.size(), kNamed)).join(", "_L1);
    return more > 0 ? u"%1, +%2"_s.arg(named).arg(more) : named;
}

QString RailScreen::faultsElsewhere() const
{
    static constexpr std::pair<Verdict, QStringView> kTold[] = {{Verdict::Fail, u"%1 com falha"},
                                                                {Verdict::Incomplete, u"%1 sem medição"}};
    QStringList texts;
    for (const RailKind &kind : m_traits.kinds) {
        QStringList parts;
        for (const auto &[verdict, key] : kTold)
            if (const QStringList nets = hiddenNets(kind, verdict); !nets.isEmpty())
                parts.append(u"%1 (%2)"_s.arg(caption(key).arg(nets.size()), someOf(nets)));
        if (!parts.isEmpty())
            texts.append(caption(kind.caption) + ": "_L1 + parts.join("; "_L1));
    }
    return texts.join(u"   "_s);
}

QString RailScreen::kindText(const RailKind &kind) const
{
    const qsizetype faults = faultsOf(kind);
    const QString text = caption(kind.caption);
    return faults == 0 ? text : u"%1  ✗ %2"_s.arg(text).arg(faults);
}

Field RailScreen::readButton() const
{
    const QString text = isReading() ? caption(u"Processando comando") : caption(u"Executar Leitura") + "  F5"_L1;
    return {.text = text, .enabled = !isReading()};
}

QMap<QString, Field> RailScreen::state() const
{
    const Field resting{.enabled = !isReading()};
    QMap<QString, Field> fields{{u"ComboDecimais"_s, resting}, {u"ComboDecimaisAmp"_s, resting}};
    for (const QLatin1StringView name : m_traits.restingControls)
        fields.insert(name, resting);
    for (const RailKind &kind : m_traits.kinds) {
        const Field button{.text = kindText(kind), .enabled = !isReading(), .checked = m_kind == kind.kind};
        if (!kind.control.isEmpty())
            fields.insert(kind.control.toString(), button);
    }
    fields[m_traits.readButton] = readButton();
    fields[u"FrameVCore"_s] = {.visible = isReading()};
    fields[u"Barra"_s] = {.value = m_progress};
    fields[u"lbVar"_s] = m_front.panel.fields.value(u"lbVar"_s);
    fields[u"lbVar"_s].fore = m_noteVisible ? Colour::Text : Colour::Face;
    fields[u"ComboDecimais"_s].text = QString::number(m_input.voltDecimals);
    fields[u"ComboDecimaisAmp"_s].text = QString::number(m_input.milliDecimals);
    return fields;
}

void RailScreen::chooseKind(int kind)
{
    m_kind = kind;
    rebuild();
}

bool RailScreen::setDecimals(int &decimals, int least, const QString &text)
{
    bool isNumber = false;
    const int wanted = text.toInt(&isNumber);
    if (!isNumber || wanted < least || wanted > 3)
        return false;
    decimals = wanted;
    rebuild();
    return true;
}

void RailScreen::ComboDecimais_Click(const QString &text)
{
    if (setDecimals(m_input.voltDecimals, 1, text))
        keepDecimals(m_traits.voltDecimals, text);
}

void RailScreen::ComboDecimaisAmp_Click(const QString &text)
{
    if (setDecimals(m_input.milliDecimals, 0, text))
        keepDecimals(m_traits.milliDecimals, text);
}

void RailScreen::keepDecimals(Combo which, const QString &text)
{
    session().keep([which, text](Store &store) { return setCombo(store, which, text); });
    m_timerGrava.start();
}

void RailScreen::readingBegan()
{
    session().keep(clearReadings);
    m_input.order = m_traits.malhaOrder;
    m_progress = 0;
    m_timerBarra.start();
}

void RailScreen::readingStopped()
{
    m_progress = 0;
    m_timerBarra.stop();
}

void RailScreen::LimpaLeiturasExterno()
{
    forgetReading();
    m_input.order = m_traits.loadOrder;
    loadRows();
}

void RailScreen::TimerGrava_Timer()
{
    if (!hasReading())
        return;
    QList<RailRow> rows;
    for (const RailKind &kind : m_traits.kinds)
        rows += m_readings.value(kind.kind).rows;
    session().keep([rows](Store &store) { return writeReadings(store, rows); });
}

/// The share of the awaited lines that have come.
void RailScreen::TimerBarra_Timer()
{
    const LabelledReply console(session().txtConsole());
    qsizetype awaited = 0;
    qsizetype arrived = 0;
    for (const RailRow &row : m_rows.value(m_kind)) {
        const QString label = BistLabel(row.refT);
        awaited += label.isEmpty() ? 0 : 1;
        arrived += console.positionOf(label) >= 0 ? 1 : 0;
    }
    const int progress = awaited == 0 ? 0 : static_cast<int>(100 * arrived / awaited);
    if (std::exchange(m_progress, progress) != progress)
        showState();
}

void RailScreen::blinkNote()
{
    if (!m_isVisible)
        return;
    m_noteVisible = true;
    m_blinks = 0;
    m_timerIndicaVar.start();
}

void RailScreen::TimerIndicaVar_Timer()
{
    ++m_blinks;
    m_noteVisible = m_blinks >= kBlinks || !m_noteVisible;
    if (m_blinks >= kBlinks)
        m_timerIndicaVar.stop();
    showState();
}

void RailScreen::setShown(bool shown)
{
    m_isVisible = shown;
    if (shown || !m_timerIndicaVar.isActive())
        return;
    m_blinks = kBlinks;
    TimerIndicaVar_Timer();
}
