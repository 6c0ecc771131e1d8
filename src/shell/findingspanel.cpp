#include "findingspanel.h"

#include "catalogue.h"
#include "findingslist.h"
#include "icons.h"
#include "moduletable.h"
#include "plainlabel.h"
#include "plaintext.h"
#include "theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

using namespace Qt::StringLiterals;

FindingsPanel::FindingsPanel(QWidget *parent)
    : QWidget(parent), m_title(new PlainLabel), m_clear(new QToolButton), m_list(new FindingsList(m_findings))
{
    setObjectName(u"FrameAchados"_s);
    m_list->setObjectName(u"ListaAchados"_s);
    m_clear->setObjectName(u"btLimparAchados"_s);
    m_clear->setProperty("flat", true);
    QFont strong = textFont();
    strong.setBold(true);
    m_title->setFont(strong);
    auto *head = new QHBoxLayout;
    head->addWidget(m_title, 1);
    head->addWidget(m_clear);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Spacing::control, Spacing::control, Spacing::control, Spacing::control);
    layout->addLayout(head);
    layout->addWidget(m_list, 1);
    connect(m_clear, &QToolButton::clicked, &m_findings, &FindingsModel::clear);
    connect(m_list, &FindingsList::findingChosen, this, &FindingsPanel::findingChosen);
    connect(&m_findings, &FindingsModel::openCountChanged, this, &FindingsPanel::countChanged);
}

void FindingsPanel::Traducao_Form(Language language)
{
    QHash<QString, QString> screens;
    for (const Module &module : modules())
        screens.insert(module.name, caption(module.caption, language));
    m_findings.setWords(language, screens);
    m_title->setText(caption(u"Achados", language));
    m_clear->setIcon(lineIcon(u"delete"));
    m_clear->setToolTip(plainToolTip(caption(u"Limpar achados", language)));
    m_clear->setAccessibleName(caption(u"Limpar achados", language));
    m_list->setEmptyText(caption(u"DICA_ACHADOS", language));
    m_list->setAccessibleName(caption(u"Achados", language));
}
