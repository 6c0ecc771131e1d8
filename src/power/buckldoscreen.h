#pragma once

#include "railgridscreen.h"

/// Bucks and LDOs beside their references.
class BuckLdoScreen : public RailGridScreen
{
    Q_OBJECT

public:
    explicit BuckLdoScreen(Session &session, QObject *parent = nullptr);

    void Botao1_Click() { chooseKind(2); } ///< the bucks
    void Botao2_Click() { chooseKind(1); } ///< the LDOs
    void Botao3_Click();
    void Botao4_Click() { PrePesquisa(); }
};
