#pragma once

#include "readingform.h"

#include <array>

class ICScreen;
class QLabel;
class QPushButton;
class QRadioButton;

/// The form of the charger-side chips: the communication test, and the way to the two reading screens.
class IC : public ReadingForm
{
    Q_OBJECT

public:
    explicit IC(Session &session, QWidget *parent = nullptr);

    void Traducao_Form() override;

protected:
    QStringView readHint() const override { return u"DICA_IC"; }

private:
    QWidget *selectors();
    QWidget *result();
    void connectControls();

    ICScreen &m_chips;
    QPushButton *m_btBl;
    QPushButton *m_btTristar;
    QPushButton *m_btTigris;
    QLabel *m_label1;
    QLabel *m_lbDispositivo;
    QLabel *m_lbIC;
    QLabel *m_lbStatus;
    std::array<QRadioButton *, 2> m_selectors;
};
