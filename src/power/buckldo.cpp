#include "buckldo.h"

#include "buckldoscreen.h"
#include "icons.h"
#include "plaintext.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

BuckLdo::BuckLdo(Session &session, QWidget *parent) : RailGridForm(std::make_unique<BuckLdoScreen>(session), parent)
{
    for (int i = 0; i < 3; ++i)
        m_botao[static_cast<std::size_t>(i)] = named(new QPushButton, u"Botao%1"_s.arg(i + 1));
    m_botao[3] = readButton(u"Botao4"_s);
    layOutGrid({kinds({m_botao[0], m_botao[1]}, u"FrameSelecoes"_s), m_botao[2], m_botao[3]});
    auto &buckLdo = static_cast<BuckLdoScreen &>(screen());
    connect(m_botao[0], &QPushButton::clicked, &buckLdo, &BuckLdoScreen::Botao1_Click);
    connect(m_botao[1], &QPushButton::clicked, &buckLdo, &BuckLdoScreen::Botao2_Click);
    connect(m_botao[2], &QPushButton::clicked, &buckLdo, &BuckLdoScreen::Botao3_Click);
    connect(m_botao[3], &QPushButton::clicked, &buckLdo, &BuckLdoScreen::Botao4_Click);
}

/// The captions of the kinds carry their faults: the panel brings them.
void BuckLdo::Traducao_Form()
{
    RailGridForm::Traducao_Form();
    m_botao[2]->setText(plainText(text(u"PMU")));
    m_botao[2]->setIcon(lineIcon(u"pmu"));
}
