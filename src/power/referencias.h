#pragma once

#include "panelmodel.h"
#include "readingform.h"
#include "referenciasscreen.h"

class PanelGrid;

/// The form that makes references of known-good boards.
class Referencias : public ReadingForm
{
    Q_OBJECT

public:
    explicit Referencias(Session &session, QWidget *parent = nullptr);

    void Traducao_Form() override;

protected:
    void paintPanel() override;
    QStringView readHint() const override { return u"DICA_REFERENCIAS"; }

private:
    void connectControls();

    ReferenciasScreen &m_boards;
    PanelModel m_rows;
    PanelGrid *m_dbGrid1;
    QPushButton *m_btExecutaLeitura;
    QPushButton *m_btTomar;
    QPushButton *m_btDesfazer;
};
