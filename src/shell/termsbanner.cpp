#include "termsbanner.h"

#include "catalogue.h"
#include "plainlabel.h"
#include "settings.h"
#include "theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

static constexpr auto kSetting = "terms"_L1;
static constexpr auto kAccepted = "accepted"_L1;

TermsBanner::TermsBanner(Session &session, QWidget *parent)
    : QFrame(parent), m_session(session), m_terms(new PlainLabel), m_yes(new QPushButton), m_no(new QPushButton)
{
    setObjectName(u"FrameTermos"_s);
    m_yes->setObjectName(u"TermosYes"_s);
    m_no->setObjectName(u"TermosNo"_s);
    m_yes->setProperty("primary", true);
    m_terms->setWordWrap(true);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(Spacing::group, 0, Spacing::group, Spacing::control);
    row->setSpacing(Spacing::control);
    row->addWidget(m_terms, 1);
    row->addWidget(m_yes);
    row->addWidget(m_no);
    hide();
    connect(m_yes, &QPushButton::clicked, this, &TermsBanner::accept);
    connect(m_no, &QPushButton::clicked, this, &TermsBanner::declined);
}

void TermsBanner::showUnlessAccepted()
{
    m_session.withStore<QString>(
        Store::Access::Read, [](Store &store) { return setting(store, kSetting); }, this,
        [this](const QString &answer) { setVisible(answer != kAccepted); });
}

void TermsBanner::accept()
{
    hide();
    m_session.keep([](Store &store) { return setSetting(store, kSetting, kAccepted); });
}

void TermsBanner::Traducao_Form()
{
    m_terms->setText(caption(u"TERMOS", m_session.language()));
    m_yes->setText(caption(u"TermosYes", m_session.language()));
    m_no->setText(caption(u"TermosNo", m_session.language()));
}
