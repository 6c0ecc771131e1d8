#include "bateria.h"

#include "bateriascreen.h"
#include "chipreading.h"
#include "gauge.h"
#include "plainlabel.h"
#include "theme.h"
#include "valuefield.h"

#include <QGridLayout>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

static constexpr auto kLongestFact = "100000 mAh"_L1;

Bateria::Bateria(Session &session, QWidget *parent) : ReadingForm(std::make_unique<BateriaScreen>(session), parent)
{
    auto &battery = static_cast<BateriaScreen &>(screen());
    QPushButton *read = readButton(u"btBateria"_s);
    connect(read, &QPushButton::clicked, &battery, &BateriaScreen::btBateria_Click);
    layOut({.note = u"lbVar"_s, .buttons = {read}, .choices = {}, .body = Organiza()});
}

QWidget *Bateria::gauges()
{
    auto *frame = new QWidget;
    auto *column = new QVBoxLayout(frame);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Spacing::group);
    m_health = new Gauge;
    m_charge = new Gauge;
    m_health->setObjectName(u"MedidorSaude"_s);
    m_charge->setObjectName(u"MedidorCarga"_s);
    column->addWidget(m_health);
    column->addWidget(m_charge);
    return frame;
}

QWidget *Bateria::facts()
{
    auto *frame = named(new QWidget, u"Frame5"_s);
    auto *grid = new QGridLayout(frame);
    grid->setHorizontalSpacing(Spacing::group);
    grid->setVerticalSpacing(Spacing::control);
    for (int i = 0; i < kBatteryFacts; ++i) {
        const auto place = static_cast<std::size_t>(i);
        m_captions[place] = named(new PlainLabel, element(u"Info_Descricao", i));
        m_values[place] = named(new ValueField(kLongestFact), element(u"Info", i));
        grid->addWidget(m_captions[place], i, 0);
        grid->addWidget(m_values[place], i, 1);
    }
    return frame;
}

QWidget *Bateria::Organiza()
{
    auto *body = new QWidget;
    auto *row = new QHBoxLayout(body);
    row->setSpacing(12 * Spacing::unit);
    row->addStretch();
    row->addWidget(gauges());
    row->addWidget(facts(), 0, Qt::AlignVCenter);
    row->addStretch();
    return body;
}

void Bateria::Traducao_Form()
{
    ReadingForm::Traducao_Form();
    for (int i = 0; i < kBatteryFacts; ++i) {
        const auto place = static_cast<std::size_t>(i);
        const QString caption = text(batteryFact(i)).trimmed();
        m_captions[place]->setText(caption);
        m_values[place]->setAccessibleDescription(caption);
        m_values[place]->setAccessibleName(caption);
    }
    m_health->setCaption(m_captions.front()->text());
    m_charge->setCaption(m_captions[2]->text());
}
