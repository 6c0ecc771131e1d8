#include "chipscreen.h"

#include "catalogue.h"
#include "visibletext.h"

using namespace Qt::StringLiterals;

ChipScreen::ChipScreen(Session &session, ChipScreenTraits traits, QObject *parent)
    : ReadingScreen(session, traits.name, traits.code, traits.command, parent),
      m_traits(std::move(traits)),
      m_isLogOpen(m_traits.log == ReplyLog::Open)
{
    connect(&session, &Session::readingsCleared, this, &ChipScreen::LimpaLeiturasExterno);
    connect(&session, &Session::modelChanged, this, &ChipScreen::rebuild);
    connect(&session, &Session::languageChanged, this, &ChipScreen::rebuild);
}

void ChipScreen::readAtOpening()
{
    if (m_traits.opening == Opening::Reads && session().isReady())
        read();
}

bool ChipScreen::fitsModel() const
{
    return !m_traits.fits || m_traits.fits(session().model());
}

/// A connected phone whose model is not known is asked for it first: only then can it be refused.
void ChipScreen::read()
{
    const bool isAskedFirst = session().isConnected() && !session().isModelKnown();
    if (fitsModel() || isAskedFirst)
        ReadingScreen::read();
    else
        refuseModel();
}

void ChipScreen::resume()
{
    if (fitsModel())
        ReadingScreen::resume();
    else
        refuseModel();
}

/// A text of the screen's own is an information box too.
void ChipScreen::tellRefusal()
{
    const Notice &refusal = m_traits.refusal;
    if (!refusal.key.isEmpty())
        return session().boxes().message({refusal});
    session().boxes().ask({refusal.arguments.value(0), refusal.arguments.value(1), Question::Choices::Ok},
                          [](Answer) {});
}

void ChipScreen::refuseModel()
{
    forgetReading();
    m_isRefused = true;
    tellRefusal();
    end();
}

QString ChipScreen::refusal() const
{
    if (fitsModel() || session().model().isEmpty())
        return {};
    const auto known = message(m_traits.refusal, session().language());
    return known ? known->lines.join(u' ') : m_traits.refusal.arguments.join(u' ');
}

void ChipScreen::take(const Delivery &delivery)
{
    m_recording = delivery.recording;
    ReadingScreen::take(delivery);
}

static QStringList linesOf(const QString &text)
{
    return text.trimmed().isEmpty() ? QStringList() : visibleText(QStringView(text).trimmed()).split(u'\n');
}

QStringList ChipScreen::replyLines() const
{
    return linesOf(txtDados());
}

QStringList ChipScreen::recordedLines() const
{
    if (!hasReading())
        return {};
    if (!m_recording)
        return {caption(u"Sem gravação para comparar")};
    const bool isChanged = m_recording->integrity == Integrity::Changed; // shown all the same, and called so
    return (isChanged ? QStringList(u'(' + caption(u"ALTERADO") + u')') : QStringList()) +
           linesOf(m_recording->recording.dados);
}

void ChipScreen::btLog_Click()
{
    m_isLogOpen = !m_isLogOpen;
    rebuild();
}

void ChipScreen::btOutraTela_Click()
{
    emit screenRequested(m_traits.otherScreen);
}

void ChipScreen::LimpaLeiturasExterno()
{
    m_isRefused = false;
    forgetReading();
    rebuild();
}

void ChipScreen::rebuild()
{
    const ChipInput input{txtDados(), isCut(), session().model(), session().language()};
    show(m_traits.read(input), state());
}

QMap<QString, Field> ChipScreen::state() const
{
    QMap<QString, Field> fields{
        {u"btExecutaLeitura"_s, {.text = caption(u"Executar Leitura") + "  F5"_L1, .enabled = !isReading()}},
        {u"FrameVCore"_s, {.visible = isReading()}},
        {u"Barra"_s, {.visible = false}}};
    if (refusesModels())
        fields[u"btOutraTela"_s] = {.text = caption(u"Abrir %1").arg(m_traits.otherScreen),
                                    .visible = !refusal().isEmpty()};
    if (hasLog()) {
        fields[u"btLog"_s].text = caption(m_isLogOpen ? u"Ocultar" : u"Exibir") + " Log ->"_L1;
        fields[u"FrameLog"_s].visible = m_isLogOpen;
    }
    return fields;
}
