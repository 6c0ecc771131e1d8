// The part of the console screen that says what its form shows.

#include "masterscreen.h"

using namespace Qt::StringLiterals;

QString MasterScreen::summary() const
{
    const ReplyDifference &found = m_comparison.found();
    if (isComparing())
        return caption(u"Comparando…");
    if (!isReplyBound() || m_reply.isEmpty())
        return {};
    if (m_txtComparador.isEmpty())
        return caption(u"Sem gravação para comparar");
    const auto first = found.first();
    if (!first && found.close > 0)
        return found.close == 1 ? caption(u"Dentro da tolerância, 1 linha difere nela")
                                : caption(u"Dentro da tolerância, %1 linhas diferem nela").arg(found.close);
    if (!first)
        return caption(m_cut ? u"Igual até onde a resposta chegou" : u"Igual à gravação");
    const QString place = caption(u"Difere primeiro em %1").arg(found.rows[*first].what());
    const QString count =
        found.differing == 1 ? caption(u"1 linha difere") : caption(u"%1 linhas diferem").arg(found.differing);
    return u"%1, %2"_s.arg(place, count);
}

QMap<QString, Field> MasterScreen::historyState() const
{
    const Field label{.visible = !m_showsHistory};
    return {{u"FrameHistorico"_s, {.visible = m_showsHistory}},
            {u"ListCmd"_s, {.visible = !m_showsHelpAux, .items = m_history.sent()}},
            {u"txtHelpAux"_s, {.visible = m_showsHelpAux}},
            {u"ldDispComparador"_s, label},
            {u"lbInfDados"_s, label}};
}

/// What makes a comparison worth less than it looks.
QMap<QString, Field> MasterScreen::warningState() const
{
    const bool isChanged = m_recording && m_recording->integrity == Integrity::Changed;
    const QString cut = caption(m_isStopped ? u"Parada antes do fim da resposta" : u"Resposta interrompida");
    return {{u"lbCorte"_s, {.text = cut, .back = Colour::OutOfTolerance, .visible = m_cut && !m_reply.isEmpty()}},
            {u"lbIntegridade"_s,
             {.text = caption(u"Gravação alterada fora do programa"),
              .back = Colour::OutOfTolerance,
              .visible = isChanged}}};
}

QMap<QString, Field> MasterScreen::languageState() const
{
    QMap<QString, Field> fields;
    static constexpr std::array kSuffixes = {""_L1, "2"_L1, "3"_L1};
    for (std::size_t i = 0; i < kSuffixes.size(); ++i) {
        const Field box{.visible = static_cast<std::size_t>(session().language()) == i + 1};
        fields[u"txtInfoComandos"_s + kSuffixes[i]] = box;
        fields[u"txtInfoDados"_s + kSuffixes[i]] = box;
    }
    return fields;
}

QMap<QString, Field> MasterScreen::state() const
{
    QMap<QString, Field> fields = languageState();
    fields.insert(historyState());
    fields.insert(warningState());
    fields[u"btSend"_s] = {.enabled = session().isReady()};
    fields[u"btParar"_s] = {.enabled = isSending()};
    fields[u"lbAutoComparador"_s] = {.visible = m_mark};
    const QString device = caption(u"Modelo") + ": "_L1 + session().model() + "  "_L1;
    fields[u"lbDispositivo"_s] = {.text = device, .visible = !m_showsHistory};
    fields[u"Command1"_s] = {.visible = m_maintains};
    fields[u"Command2"_s] = {.visible = m_maintains};
    const QString comesTo = summary();
    fields[u"lbResumo"_s] = {.text = comesTo, .tip = comesTo}; // cut in a narrow window
    return fields;
}

void MasterScreen::rebuild()
{
    Panel panel;
    panel.screen = name();
    panel.title = caption(u"Modo Comandos e Comparador");
    panel.verdict = isComparing() ? Verdict::None : m_comparison.found().verdict;
    show(panel, state());
}
