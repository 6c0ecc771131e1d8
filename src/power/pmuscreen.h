#pragma once

#include "railscreen.h"

/// The outputs of the power-management unit, judged by a tolerance that is typed.
class PMUScreen : public RailScreen
{
    Q_OBJECT

public:
    explicit PMUScreen(Session &session, QObject *parent = nullptr);

    void btVCore_Click() { chooseKind(0); } ///< the core rails, which the panel starts with
    void Botao1_Click() { chooseKind(2); }  ///< the bucks
    void Botao2_Click() { chooseKind(1); }  ///< the LDOs
    void btExecutaLeitura_Click() { PrePesquisa(); }
    /// The tolerance was typed on: the last reply is judged anew.
    void PorcTolerancia_Change(const QString &text);
    /// The tolerance stands: what it finds faulty is told.
    void PorcTolerancia_LostFocus();

    /// Sends the self-test command and waits for its reply.
    void Pesquisa() { ExecutaPesquisa(); }
    /// Fills the panel from the evaluated rows.
    void GeraGrid() { rebuild(); }

private:
    Rule m_toldRule = Rule::tenPercent();
};
