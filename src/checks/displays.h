#pragma once

#include "checkform.h"

class DisplaysScreen;
class QGroupBox;
class QLineEdit;
class QSlider;

/// The form of the display.
class Displays : public CheckForm
{
    Q_OBJECT

public:
    explicit Displays(Session &session, QWidget *parent = nullptr);

    void Traducao_Form() override;

private:
    QWidget *colours();
    QWidget *light();
    QWidget *level();
    QWidget *body();

    DisplaysScreen &m_display;
    QList<QPushButton *> m_colours;
    QList<std::pair<int, QPushButton *>> m_btBl;
    QGroupBox *m_frameCores;
    QGroupBox *m_frameLuz;
    QLineEdit *m_txtTextoCores;
    QSlider *m_slider1;
    QLabel *m_lbNivel;
    QLabel *m_lbResolucao;
};
