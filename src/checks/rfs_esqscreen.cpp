#include "rfs_esqscreen.h"

#include "checkscreen.h"
#include "models.h"

using namespace Qt::StringLiterals;

QString rfTipo(const QString &model, int variant)
{
    if (isSixFamily(model))
        return u"T"_s;
    return variant == 1 ? u"I"_s : u"Q"_s;
}

RFs_EsqScreen::RFs_EsqScreen(Session &session, QObject *parent) : Screen(session, u"RFs_Esq"_s, {}, parent)
{
    connect(&session, &Session::modelChanged, this, &RFs_EsqScreen::followModel);
    connect(&session, &Session::languageChanged, this, &RFs_EsqScreen::rebuild);
}

void RFs_EsqScreen::open()
{
    followModel();
}

void RFs_EsqScreen::followModel()
{
    ComboAparelhos_Click(session().model());
}

void RFs_EsqScreen::ComboAparelhos_Click(const QString &model)
{
    m_model = model;
    load();
}

void RFs_EsqScreen::chooseVariant(int variant)
{
    m_variant = variant;
    load();
}

void RFs_EsqScreen::load()
{
    m_rows.clear();
    rebuild();
    if (m_model.isEmpty())
        return;
    const QString model = m_model;
    const QString tipo = rfTipo(model, m_variant);
    withStore<QList<RfRow>>(
        Store::Access::Read, [model, tipo](Store &store) { return rfRows(store, model, tipo); },
        [this, model, tipo](const QList<RfRow> &rows) {
            if (model != m_model || tipo != rfTipo(m_model, m_variant))
                return;
            m_rows = rows;
            rebuild();
        });
}

void RFs_EsqScreen::rebuild()
{
    Panel panel;
    panel.screen = name();
    panel.title = caption(u"TensoesRF") + " - Tavimo Prelt"_L1;
    for (const RfRow &row : m_rows)
        panel.rows.append({.cells = {{u"Malha"_s, row.malha}, {u"Ci"_s, row.componente}, {u"REF"_s, row.valor}},
                           .source = row.source,
                           .confidence = row.confidence});
    const bool hasVariants = !m_model.isEmpty() && !isSixFamily(m_model);
    show(panel, {{u"ComboAparelhos"_s, {.text = m_model, .items = modelNames()}},
                 {u"Botao1"_s, {.enabled = hasVariants, .checked = m_variant == 1}},
                 {u"Botao2"_s, {.enabled = hasVariants, .checked = m_variant == 2}}});
}
