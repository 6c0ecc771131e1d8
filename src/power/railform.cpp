#include "railform.h"

#include "plainlabel.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

RailForm::RailForm(std::unique_ptr<RailScreen> screen, QWidget *parent)
    : ReadingForm(std::move(screen), parent), m_rails(static_cast<RailScreen &>(this->screen()))
{
}

QWidget *RailForm::decimals()
{
    m_lbInfoDecimais = named(new PlainLabel, u"lbInfoDecimais"_s);
    m_comboDecimais = named(new QComboBox, u"ComboDecimais"_s);
    m_comboDecimais->addItems({u"1"_s, u"2"_s, u"3"_s});
    m_comboDecimaisAmp = named(new QComboBox, u"ComboDecimaisAmp"_s);
    m_comboDecimaisAmp->addItems({u"0"_s, u"1"_s, u"2"_s, u"3"_s});
    connect(m_comboDecimais, &QComboBox::textActivated, &m_rails, &RailScreen::ComboDecimais_Click);
    connect(m_comboDecimaisAmp, &QComboBox::textActivated, &m_rails, &RailScreen::ComboDecimaisAmp_Click);
    auto *frame = new QWidget;
    auto *row = controlRow(frame);
    row->addWidget(m_lbInfoDecimais);
    row->addWidget(m_comboDecimais);
    row->addWidget(m_comboDecimaisAmp);
    return frame;
}

QWidget *RailForm::kinds(const QList<QPushButton *> &buttons, const QString &frame)
{
    auto *widget = named(new QWidget, frame);
    auto *row = controlRow(widget);
    row->setSpacing(0);
    auto *group = new QButtonGroup(widget);
    for (QPushButton *button : buttons) {
        button->setCheckable(true);
        group->addButton(button);
        row->addWidget(button);
    }
    return widget;
}

void RailForm::Traducao_Form()
{
    ReadingForm::Traducao_Form();
    setDecimalsCaption(text(u"Casas Decimais") + ": V / mA"_L1);
    m_comboDecimais->setAccessibleName(text(u"Decimais de V"));
    m_comboDecimaisAmp->setAccessibleName(text(u"Decimais de mA"));
}

void RailForm::setDecimalsCaption(const QString &text)
{
    m_lbInfoDecimais->setText(text);
}
