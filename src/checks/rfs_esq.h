#pragma once

#include "panelmodel.h"
#include "screenform.h"

class PanelGrid;
class QComboBox;
class QLabel;
class QPushButton;
class RFs_EsqScreen;

/// The form of the reference voltages around the radios.
class RFs_Esq : public ScreenForm
{
    Q_OBJECT

public:
    explicit RFs_Esq(Session &session, QWidget *parent = nullptr);

    void Traducao_Form() override;

private:
    void layOut();
    void connectControls();

    RFs_EsqScreen &m_voltages;
    PanelModel m_rows;
    PanelGrid *m_grid;
    QLabel *m_lbTitulo;
    QComboBox *m_comboAparelhos;
    QPushButton *m_botao1;
    QPushButton *m_botao2;
};
