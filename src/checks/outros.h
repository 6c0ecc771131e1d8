#pragma once

#include "checkform.h"

#include <array>

class OutrosScreen;

/// The form of the additional tests.
class Outros : public CheckForm
{
    Q_OBJECT

public:
    explicit Outros(Session &session, QWidget *parent = nullptr);

    void Traducao_Form() override;

private:
    QWidget *body();
    void connectControls();

    OutrosScreen &m_tests;
    std::array<QPushButton *, 2> m_btBl;
    QPushButton *m_btBateria;
    QPushButton *m_btPanicFull;
    QLabel *m_lbIC;
};
