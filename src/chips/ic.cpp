#include "ic.h"

#include "chipdrawing.h"
#include "chipreading.h"
#include "icons.h"
#include "icscreen.h"
#include "marklabel.h"
#include "plainlabel.h"
#include "theme.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;

IC::IC(Session &session, QWidget *parent)
    : ReadingForm(std::make_unique<ICScreen>(session), parent), m_chips(static_cast<ICScreen &>(screen()))
{
    m_btBl = readButton(u"btBl"_s);
    m_btTristar = named(new QPushButton, u"btTristar"_s);
    m_btTigris = named(new QPushButton, u"btTigris"_s);
    layOut({.note = u"lbStatus2"_s,
            .buttons = {m_btBl},
            .choices = {selectors(), nullptr, m_btTristar, m_btTigris},
            .body = result()});
    connectControls();
}

QWidget *IC::selectors()
{
    auto *frame = named(new QWidget, u"Frame1"_s);
    auto *row = controlRow(frame);
    row->addWidget(m_label1 = named(new PlainLabel, u"Label1"_s));
    for (int selector = 1; selector <= 2; ++selector) {
        const auto place = static_cast<std::size_t>(selector - 1);
        m_selectors[place] = named(new QRadioButton, element(u"OpSelecao", selector));
        row->addWidget(m_selectors[place]);
    }
    return frame;
}

QWidget *IC::result()
{
    m_lbIC = named(new PlainLabel, u"lbIC"_s);
    m_lbIC->setFont(textFont(TextSize::Large));
    m_lbStatus = named(new PlainLabel, u"lbStatus"_s);
    m_lbStatus->setFont(textFont(TextSize::Large));
    m_lbDispositivo = named(new PlainLabel, u"lbDispositivo"_s);
    return named(new ChipDrawing({}, {m_lbDispositivo, m_lbIC, m_lbStatus, markNamed(u"OK"_s, Verdict::Pass),
                                      markNamed(u"NO"_s, Verdict::Fail), named(new PlainLabel, u"lbAguarde"_s)}),
                 u"Frame2"_s);
}

void IC::connectControls()
{
    connect(m_btBl, &QPushButton::clicked, &m_chips, &ICScreen::btBl_Click);
    connect(m_btTristar, &QPushButton::clicked, &m_chips, &ICScreen::btTristar_Click);
    connect(m_btTigris, &QPushButton::clicked, &m_chips, &ICScreen::btTigris_Click);
    for (int selector = 1; selector <= 2; ++selector)
        connect(m_selectors[static_cast<std::size_t>(selector - 1)], &QRadioButton::clicked, &m_chips,
                [this, selector] { m_chips.chooseSelector(selector); });
}

void IC::Traducao_Form()
{
    ReadingForm::Traducao_Form();
    m_label1->setText(text(u"Comando"));
    m_selectors[0]->setText(text(u"Propriedades"));
    m_selectors[1]->setText(text(u"Registradores"));
    m_btTristar->setIcon(lineIcon(u"tristar"));
    m_btTigris->setIcon(lineIcon(u"tigris"));
    m_btBl->setAccessibleName(text(u"Comunicação"));
    m_lbDispositivo->setAccessibleName(text(u"Modelo detectado"));
    m_lbIC->setAccessibleName(text(u"IC"));
    m_lbStatus->setAccessibleName(text(u"Comunicação"));
}
