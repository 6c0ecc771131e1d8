#pragma once

#include "railgridform.h"

/// The form of the core rails.
class VCores : public RailGridForm
{
    Q_OBJECT

public:
    explicit VCores(Session &session, QWidget *parent = nullptr);

    void Traducao_Form() override;

private:
    QWidget *chips();

    QLabel *m_lbICs;
    QComboBox *m_cbICs;
};
