#include "importoffer.h"

#include "catalogue.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

QString ImportOffer::userStore() const
{
    return QFileInfo(m_session.store().path()).absolutePath() + "/User.pmx"_L1;
}

void ImportOffer::offer(Occasion occasion)
{
    m_session.withStore<ImportStep>(
        Store::Access::Write,
        [path = userStore(), occasion](Store &store) { return importStep(store, path, occasion); }, this,
        [this, occasion](ImportStep step) { take(step, occasion); });
}

void ImportOffer::take(ImportStep step, Occasion occasion)
{
    if (step == ImportStep::Ask)
        ask();
    else if (occasion == Occasion::AboutBox)
        m_session.refuse({u"IMPORT_NOTHING"_s, {userStore()}});
}

void ImportOffer::ask()
{
    const auto text = [this](QStringView key) { return caption(key, m_session.language()); };
    m_session.boxes().ask({text(u"Sincronização"), text(u"Dados UPDATE1") + u'\n' + text(u"Dados UPDATE2")},
                          [this](Answer answer) { answered(answer); });
}

void ImportOffer::answered(Answer answer)
{
    if (answer != Answer::Yes)
        return m_session.keep(declineImport);
    m_session.withStore<ImportSummary>(
        Store::Access::Write, [path = userStore()](Store &store) { return importUserStore(store, path); }, this,
        [this](const ImportSummary &took) {
            m_session.refuse(toldOf(took)); // the line at the bottom: some rows may have been left out
            m_session.boxes().message({{u"MSG_DADOS_SYNC"_s}});
            m_session.load();
        });
}
