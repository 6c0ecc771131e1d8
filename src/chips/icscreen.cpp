#include "icscreen.h"

#include "chipreading.h"
#include "icreading.h"

using namespace Qt::StringLiterals;

ICScreen::ICScreen(Session &session, QObject *parent) : CheckScreen(session, u"IC"_s, u"5"_s, parent) {}

void ICScreen::btBl_Click()
{
    ask({.command = portChipCommand(m_selector), .needsModel = true});
}

void ICScreen::btTristar_Click()
{
    emit screenRequested(u"Tristar"_s);
}

void ICScreen::btTigris_Click()
{
    emit screenRequested(u"Tigris"_s);
}

void ICScreen::chooseSelector(int selector)
{
    m_selector = selector == 2 ? 2 : 1;
    rebuild();
}

bool ICScreen::hasArrived(const QString &reply) const
{
    return reply.size() > kNoPortChipReply;
}

void ICScreen::checkEnded()
{
    CheckScreen::checkEnded();
    if (!hasReading() || CheckScreen::hasReading())
        return;
    if (!hasArrived(txtDados()))
        session().refuse({u"REPLY_TOO_SHORT"_s});
    emit judged();
}

QString ICScreen::waitText(QStringView key) const
{
    return key == u"Desconectado" ? caption(key) + u'!' : caption(key);
}

/// What came before the link was lost is no whole reply.
Panel ICScreen::makeReading() const
{
    const QString reply = hasReading() ? txtDados() : QString();
    const bool isCut = delivery().cut || !CheckScreen::hasReading();
    return readIC({reply, isCut, session().model(), session().language()});
}

QMap<QString, Field> ICScreen::state() const
{
    QMap<QString, Field> fields = CheckScreen::state();
    const QString chip = portChip(session().model());
    fields[u"btBl"_s] = {.text = chip + u' ' + caption(u"Comunicação") + "  F5"_L1, .enabled = !isReading()};
    fields[u"btTristar"_s] = {.text = chip + u' ' + caption(u"Tensões")};
    fields[u"btTigris"_s] = {.text = "TIGRIS "_L1 + caption(u"Tensões")};
    fields[u"lbAguarde"_s].text = caption(u"Aguarde...");
    for (int selector = 1; selector <= 2; ++selector)
        fields[element(u"OpSelecao", selector)] = {.enabled = !isReading(), .checked = m_selector == selector};
    if (!notice().isEmpty())
        fields[u"lbStatus"_s].text = notice();
    return fields;
}
