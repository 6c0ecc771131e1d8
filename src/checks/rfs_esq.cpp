#include "rfs_esq.h"

#include "panelgrid.h"
#include "plainlabel.h"
#include "readingform.h"
#include "rfs_esqscreen.h"
#include "theme.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <array>

using namespace Qt::StringLiterals;

static constexpr std::array kColumns = {
    GridColumn{u"Malha", u"Malha", ColumnKind::Name},
    GridColumn{u"Ci", u"Componente", ColumnKind::Name},
    GridColumn{u"REF", u"Referência", ColumnKind::Number},
};

RFs_Esq::RFs_Esq(Session &session, QWidget *parent)
    : ScreenForm(std::make_unique<RFs_EsqScreen>(session), parent),
      m_voltages(static_cast<RFs_EsqScreen &>(screen())),
      m_rows(kColumns)
{
    layOut();
    painter().setRows(&m_rows);
    connectControls();
}

void RFs_Esq::layOut()
{
    m_lbTitulo = named(new PlainLabel, u"lbTitulo"_s);
    m_comboAparelhos = named(new QComboBox, u"ComboAparelhos"_s);
    m_botao1 = named(new QPushButton(u"INT."_s), u"Botao1"_s);
    m_botao2 = named(new QPushButton(u"QUAL."_s), u"Botao2"_s);
    m_grid = named(new PanelGrid(m_rows), u"DBGrid1"_s);
    m_grid->setExportName(u"RF"_s);
    auto *head = controlRow();
    head->setSpacing(Spacing::group);
    head->addWidget(m_lbTitulo, 1);
    head->addWidget(m_comboAparelhos);
    for (QPushButton *variant : {m_botao1, m_botao2}) {
        variant->setCheckable(true);
        head->addWidget(variant);
    }
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Spacing::control, Spacing::control, Spacing::control, Spacing::control);
    layout->setSpacing(Spacing::control);
    layout->addLayout(head);
    layout->addWidget(m_grid, 1);
}

void RFs_Esq::connectControls()
{
    connect(m_comboAparelhos, &QComboBox::textActivated, &m_voltages, &RFs_EsqScreen::ComboAparelhos_Click);
    connect(m_botao1, &QPushButton::clicked, &m_voltages, &RFs_EsqScreen::Botao1_Click);
    connect(m_botao2, &QPushButton::clicked, &m_voltages, &RFs_EsqScreen::Botao2_Click);
}

void RFs_Esq::Traducao_Form()
{
    m_lbTitulo->setText(text(u"VALORES DE REFERÊNCIA RF"));
    m_comboAparelhos->setAccessibleName(text(u"Modelo"));
    m_grid->setAccessibleName(m_lbTitulo->text());
    m_grid->setLanguage(language());
    m_grid->setEmptyText(text(u"DICA_MODELO"));
}
