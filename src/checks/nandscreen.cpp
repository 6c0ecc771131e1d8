#include "nandscreen.h"

#include "catalogue.h"
#include "chipreading.h"

#include <array>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

static constexpr auto kCode = "4"_L1;
static constexpr auto kChip = "NAND"_L1;

/// Of the commands; the rails have none.
static Check checkOf(NandTest test)
{
    const QString command = nandCommand(test);
    switch (test) {
    case NandTest::Info:
        return {.command = command, .needsModel = true, .refuses = isSixFamily, .bar = 10ms};
    case NandTest::Configuration:
        return {.command = command, .bar = 250ms};
    default:
        return {.command = command, .bar = 10ms};
    }
}

NandScreen::NandScreen(Session &session, QObject *parent) : CheckScreen(session, u"Nand"_s, kCode, parent) {}

void NandScreen::btBl_Click(int index)
{
    if (isReading())
        return;
    m_chosen = index;
    m_test = static_cast<NandTest>(index);
    if (m_test == NandTest::Rails)
        return askForRails();
    if (m_test != NandTest::Configuration || !mayAsk())
        return PrePesquisa();
    const Question question{caption(u"Testes de Memória Nand"), caption(u"Processo syscfg"), Question::Choices::YesNo};
    session().boxes().ask(question, [this](Answer answer) {
        if (answer == Answer::Yes)
            PrePesquisa();
        else
            emit readingEnded();
    });
}

void NandScreen::PrePesquisa()
{
    ask(checkOf(m_test));
}

/// What is stored needs no phone, only its model.
void NandScreen::askForRails()
{
    m_wantsRails = session().isReady() && !session().isModelKnown() && session().requestModel(kCode);
    if (!m_wantsRails)
        loadRails();
}

void NandScreen::resume()
{
    if (std::exchange(m_wantsRails, false))
        loadRails();
    else
        CheckScreen::resume();
}

void NandScreen::release(Release why, const Delivery &partial)
{
    if (!std::exchange(m_wantsRails, false))
        CheckScreen::release(why, partial);
}

void NandScreen::loadRails()
{
    const QString model = session().model();
    withStore<QList<RailRow>>(
        Store::Access::Read, [model](Store &store) { return chipRails(store, model, kChip); },
        [this, model](const QList<RailRow> &rails) {
            if (model != session().model())
                return;
            m_rails = rails;
            rebuild();
        });
}

void NandScreen::btPdf_Click()
{
    openGuide(u"xErrosNand.pdf"_s);
}

void NandScreen::btVCore_Click()
{
    emit screenRequested(u"VCores"_s, kChip);
}

void NandScreen::askBegan()
{
    m_rails.clear();
}

void NandScreen::askEnded()
{
    m_lbNand = reading().fields.value(u"lbNand"_s).text.value_or(QString());
}

void NandScreen::forget()
{
    m_lbNand.clear();
    m_rails.clear();
    CheckScreen::forget();
}

Panel NandScreen::makeReading() const
{
    return readNand(
        {m_test, txtDados(), hasReading(), delivery().cut, session().model(), session().language(), m_lbNand, m_rails});
}

QMap<QString, Field> NandScreen::state() const
{
    QMap<QString, Field> fields = CheckScreen::state();
    for (int test = 0; test <= static_cast<int>(NandTest::Rails); ++test)
        fields[element(u"btBl", test)] = {.enabled = !isReading()};
    fields[u"FrameTensoes"_s] = {.visible = m_test == NandTest::Rails};
    fields[u"FrameDados"_s] = {.visible = m_test != NandTest::Rails};
    if (!notice().isEmpty())
        fields[u"lbStatus"_s].text = notice();
    return fields;
}
