#include "catalogue.h"
#include "journalpanel.h"
#include "journalscreen.h"
#include "surveypanel.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

void JournalScreen::rebuild()
{
    show(makePanel(), state());
}

Panel JournalScreen::makePanel() const
{
    Panel panel;
    panel.screen = name();
    panel.title = caption(u"Diário de vistorias") + " - Tavimo Prelt"_L1;
    if (isOne()) {
        panel.rows = findingRows(findingsOf(m_entries[0]), m_entries[0].survey.model, session().language());
        panel.verdict = verdictOf(m_entries[0]);
    } else if (isComparing()) {
        panel.rows = comparisonRows(m_outputs, session().language());
    }
    return panel;
}

QString JournalScreen::title() const
{
    QStringList names;
    for (const JournalEntry &entry : m_entries)
        names.append(surveyName(entry.survey, session().language()));
    return names.isEmpty() ? caption(u"Diário de vistorias") : names.join(u"   →   "_s);
}

/// What the two surveys share tells whether they may be compared at all.
static QStringView doubtAbout(const JournalSurvey &before, const JournalSurvey &after)
{
    if (before.model != after.model)
        return u"Modelos diferentes!";
    return before.serial != after.serial ? u"Números de série diferentes!" : QStringView();
}

QString JournalScreen::summary() const
{
    const Language language = session().language();
    if (isOne())
        return caption(outcomeKey(m_entries[0].survey)) + u"   "_s + findingCounts(findingsOf(m_entries[0]), language);
    if (!isComparing())
        return {};
    const QStringView doubt = doubtAbout(m_entries[0].survey, m_entries[1].survey);
    const QString counts = changeCounts(m_outputs, language);
    return doubt.isEmpty() ? counts : caption(doubt) + u"   "_s + counts;
}

QString JournalScreen::fileName() const
{
    static const QRegularExpression kUnfit(u"[^\\w \\-]+"_s, QRegularExpression::UseUnicodePropertiesOption);
    QString name = caption(u"Vistoria");
    for (const JournalEntry &entry : m_entries)
        name += u' ' + entry.survey.model + u' ' + startOf(entry.survey);
    return name.replace(kUnfit, u"-"_s);
}

QMap<QString, Field> JournalScreen::state() const
{
    const bool isAny = !m_entries.isEmpty();
    const bool isHeld = !m_compared.isEmpty();
    const QString many = caption(u"%1 vistorias").arg(m_surveys.size());
    return {
        {u"lbContagem"_s, {.text = many}},
        {u"lbTitulo"_s, {.text = title()}},
        {u"lbResumo"_s, {.text = isHeld ? caption(u"Escolha na lista a vistoria a comparar") : summary()}},
        {u"Veredito"_s, {.visible = isOne()}},
        {u"btComparar"_s, {.enabled = isOne(), .checked = isHeld}},
        {u"btTroca"_s, {.enabled = isOne(), .checked = m_isExchangeShown}},
        {u"btImprimir"_s, {.enabled = isOne() && !m_isDocumentInWork}},
        {u"btCSV"_s, {.enabled = isAny}},
        {u"btJSON"_s, {.enabled = isAny}},
        {u"btExcluir"_s, {.enabled = isOne()}},
        {u"txtNota"_s, {.enabled = isOne()}},
    };
}
