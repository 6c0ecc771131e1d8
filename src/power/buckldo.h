#pragma once

#include "railgridform.h"

/// The form of the bucks and LDOs.
class BuckLdo : public RailGridForm
{
    Q_OBJECT

public:
    explicit BuckLdo(Session &session, QWidget *parent = nullptr);

    void Traducao_Form() override;

private:
    std::array<QPushButton *, 4> m_botao;
};
