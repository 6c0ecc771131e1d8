#include "buckldo.h"

#include "buckldoscreen.h"
#include "icons.h"
#include "plaintext.h"
#include "theme.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>

using namespace Qt::StringLiterals;

static constexpr std::array kColumns = {
    GridColumn{u"Verdict", u"Veredito", ColumnKind::Verdict}, GridColumn{u"Orig", u"Saída", ColumnKind::Name},
    GridColumn{u"Malha", u"Malha", ColumnKind::Name},         GridColumn{u"Ci", u"IC", ColumnKind::Text},
    GridColumn{u"Leitura", u"Leitura", ColumnKind::Number},   GridColumn{u"REF", u"Referência", ColumnKind::Number},
    GridColumn{u"PORC", u"Desvio", ColumnKind::Deviation},    GridColumn{u"G1", u"Gravação 1", ColumnKind::Number},
    GridColumn{u"G2", u"Gravação 2", ColumnKind::Number},     GridColumn{u"G3", u"Gravação 3", ColumnKind::Number},
};

BuckLdo::BuckLdo(Session &session, QWidget *parent)
    : RailForm(std::make_unique<BuckLdoScreen>(session), kColumns, parent)
{
    for (int i = 0; i < 4; ++i)
        m_botao[static_cast<std::size_t>(i)] = named(new QPushButton, u"Botao%1"_s.arg(i + 1));
    m_botao[3]->setProperty("primary", true);
    layOut({kinds(), m_botao[2], m_botao[3]});
    connectButtons();
}

QWidget *BuckLdo::kinds()
{
    auto *frame = named(new QWidget, u"FrameSelecoes"_s);
    auto *row = controlRow(frame);
    row->setSpacing(0);
    auto *group = new QButtonGroup(frame);
    for (QPushButton *button : {m_botao[0], m_botao[1]}) {
        button->setCheckable(true);
        group->addButton(button);
        row->addWidget(button);
    }
    return frame;
}

void BuckLdo::connectButtons()
{
    auto &buckLdo = static_cast<BuckLdoScreen &>(screen());
    connect(m_botao[0], &QPushButton::clicked, &buckLdo, &BuckLdoScreen::Botao1_Click);
    connect(m_botao[1], &QPushButton::clicked, &buckLdo, &BuckLdoScreen::Botao2_Click);
    connect(m_botao[2], &QPushButton::clicked, &buckLdo, &BuckLdoScreen::Botao3_Click);
    connect(m_botao[3], &QPushButton::clicked, &buckLdo, &BuckLdoScreen::Botao4_Click);
    // A button's own shortcut is lost with every new caption.
    connect(new QShortcut(Qt::Key_F5, this), &QShortcut::activated, m_botao[3], &QPushButton::click);
}

/// The captions of the kinds carry their faults: the panel brings them.
void BuckLdo::Traducao_Form()
{
    RailForm::Traducao_Form();
    m_botao[2]->setText(plainText(text(u"PMU")));
    m_botao[2]->setIcon(lineIcon(u"pmu"));
    m_botao[3]->setIcon(lineIcon(u"read", currentTheme().onAccent));
    m_botao[3]->setText(text(u"Executar Leitura") + "  F5"_L1);
    m_botao[3]->setAccessibleName(text(u"Executar Leitura"));
}
