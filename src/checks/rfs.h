#pragma once

#include "checkform.h"
#include "rfsreading.h"

class RFsScreen;

/// The form of the radios: a line of buttons for each.
class RFs : public CheckForm
{
    Q_OBJECT

public:
    explicit RFs(Session &session, QWidget *parent = nullptr);

    void Traducao_Form() override;

private:
    QWidget *radios();
    QWidget *texts();

    RFsScreen &m_radios;
    QPushButton *m_btTensoesRF;
    QList<QPushButton *> m_buttons; ///< on, off and properties of each radio
};
