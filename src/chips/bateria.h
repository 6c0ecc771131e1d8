#pragma once

#include "bateriareading.h"
#include "readingform.h"

#include <array>

class Gauge;

/// The form of the battery: health and charge as gauges, and the eight facts beside them.
class Bateria : public ReadingForm
{
    Q_OBJECT

public:
    explicit Bateria(Session &session, QWidget *parent = nullptr);

    void Traducao_Form() override;
    /// Puts the gauges and the facts in their places.
    QWidget *Organiza();

private:
    QWidget *gauges();
    QWidget *facts();

    Gauge *m_health;
    Gauge *m_charge;
    std::array<QLabel *, kBatteryFacts> m_captions;
    std::array<QLabel *, kBatteryFacts> m_values;
};
