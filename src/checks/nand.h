#pragma once

#include "checkform.h"
#include "panelmodel.h"

#include <array>

class NandScreen;
class PanelGrid;

/// The form of the storage chip.
class Nand : public CheckForm
{
    Q_OBJECT

public:
    explicit Nand(Session &session, QWidget *parent = nullptr);

    void Traducao_Form() override;

private:
    QWidget *body();
    QWidget *rails();
    void connectControls();

    NandScreen &m_nand;
    PanelModel m_rows;
    PanelGrid *m_grid;
    std::array<QPushButton *, 5> m_btBl;
    QPushButton *m_btPdf;
    QPushButton *m_btVCore;
    QLabel *m_lbNand;
};
