#include "vcores.h"

#include "plainlabel.h"
#include "theme.h"
#include "vcoresscreen.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

VCores::VCores(Session &session, QWidget *parent) : RailGridForm(std::make_unique<VCoresScreen>(session), parent)
{
    QPushButton *const read = readButton(u"btExecutaLeitura"_s);
    layOutGrid({chips(), read});
    auto &vcores = static_cast<VCoresScreen &>(screen());
    connect(m_cbICs, &QComboBox::activated, &vcores, &VCoresScreen::cbICs_Click);
    connect(read, &QPushButton::clicked, &vcores, &VCoresScreen::btExecutaLeitura_Click);
}

QWidget *VCores::chips()
{
    m_lbICs = named(new PlainLabel, u"lbICs"_s);
    m_lbICs->setFont(textFont(TextSize::Small));
    m_cbICs = named(new QComboBox, u"cbICs"_s);
    auto *frame = named(new QWidget, u"FrameICs"_s);
    auto *column = new QVBoxLayout(frame);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_lbICs);
    column->addWidget(m_cbICs);
    return frame;
}

void VCores::Traducao_Form()
{
    RailGridForm::Traducao_Form();
    m_lbICs->setText(text(u"Seleção de IC's a serem exibidos"));
    m_cbICs->setAccessibleName(m_lbICs->text());
}
