#include "plannedform.h"

#include "catalogue.h"
#include "icons.h"
#include "theme.h"

#include <QLabel>
#include <QVBoxLayout>

PlannedForm::PlannedForm(const Module &module, Session &session, QWidget *parent)
    : QWidget(parent),
      m_module(module),
      m_session(session),
      m_picture(new QLabel),
      m_title(new QLabel),
      m_note(new QLabel)
{
    setObjectName(QString(module.name));
    m_title->setFont(textFont(TextSize::Large));
    auto *layout = new QVBoxLayout(this);
    layout->addStretch();
    for (QLabel *label : {m_picture, m_title, m_note}) {
        label->setAlignment(Qt::AlignCenter);
        layout->addWidget(label);
    }
    layout->addStretch();
    connect(&session, &Session::languageChanged, this, &PlannedForm::Traducao_Form);
    Traducao_Form();
}

void PlannedForm::Traducao_Form()
{
    m_picture->setPixmap(lineIcon(QString(m_module.icon), &Theme::dim).pixmap(48));
    m_title->setText(caption(m_module.caption, m_session.language()));
    m_note->setText(caption(u"Ainda não disponível nesta versão", m_session.language()));
}
