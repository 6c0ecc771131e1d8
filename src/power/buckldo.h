#pragma once

#include "panelmodel.h"
#include "screenform.h"

#include <array>

class BuckLdoScreen;
class PanelGrid;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QToolButton;
class VerdictBadge;

/// The form of the bucks and LDOs.
class BuckLdo : public ScreenForm
{
    Q_OBJECT

public:
    explicit BuckLdo(Session &session, QWidget *parent = nullptr);

    void Traducao_Form() override;

protected:
    void paintPanel() override;

private:
    QHBoxLayout *headRow();
    QHBoxLayout *choiceRow();
    QHBoxLayout *noteRow();
    QWidget *decimals();
    QWidget *orders();
    QWidget *kinds();
    QWidget *recordings();
    void connectControls();
    void paintHint();

    BuckLdoScreen &m_rails;
    PanelModel m_rows;
    QLabel *m_title;
    VerdictBadge *m_badge;
    std::array<QPushButton *, 4> m_botao;
    std::array<QRadioButton *, 3> m_orders;
    std::array<QToolButton *, 3> m_btGravar;
    std::array<QToolButton *, 3> m_btExcluir;
    QLabel *m_hint;
    QLabel *m_lbClassificacao;
    QLabel *m_lbGravacao;
    QLabel *m_lbInfoDecimais;
    QComboBox *m_comboDecimais;
    QComboBox *m_comboDecimaisAmp;
    PanelGrid *m_dbGrid1;
    QLabel *m_lbVar;
    QWidget *m_frameVCore;
    QLabel *m_lbBarra;
    QProgressBar *m_barra;
};
