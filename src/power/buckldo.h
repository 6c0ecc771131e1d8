#pragma once

#include "railform.h"

class BuckLdoScreen;
class QPushButton;

/// The form of the bucks and LDOs.
class BuckLdo : public RailForm
{
    Q_OBJECT

public:
    explicit BuckLdo(Session &session, QWidget *parent = nullptr);

    void Traducao_Form() override;

private:
    QWidget *kinds();
    void connectButtons();

    std::array<QPushButton *, 4> m_botao;
};
