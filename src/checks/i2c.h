#pragma once

#include "checkform.h"
#include "i2creading.h"
#include "panelmodel.h"

#include <array>

class I2CScreen;
class LineList;
class PanelGrid;

/// The form of the buses: a button for each, the map of their devices, and what is likely to fail.
class I2C : public CheckForm
{
    Q_OBJECT

public:
    explicit I2C(Session &session, QWidget *parent = nullptr);

    void Traducao_Form() override;

private:
    QWidget *buttons();
    QWidget *body();
    QWidget *results();
    QWidget *goodResult();
    QWidget *busResult();
    QWidget *runResult();
    void connectControls();

    I2CScreen &m_buses;
    PanelModel m_rows;
    PanelGrid *m_grid;
    std::array<QPushButton *, kBuses> m_btI2C;
    QPushButton *m_btAutoTeste;
    QPushButton *m_btConhecido;
    QPushButton *m_btPdf;
    QLabel *m_lbfalhas;
    QLabel *m_txtDadosI2C;
    QLabel *m_lbOK;
    QLabel *m_lbAuto;
    LineList *m_listView;
};
