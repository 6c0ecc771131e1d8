#pragma once

#include "documentmaker.h"
#include "panelmodel.h"
#include "readingform.h"

class PanelGrid;
class QCheckBox;
class QLineEdit;
class SurveyScreen;

/// The form of the survey: what is asked besides, progress, the technician's note and one table of findings.
class Survey : public ReadingForm
{
    Q_OBJECT

public:
    explicit Survey(Session &session, QWidget *parent = nullptr);

    void Traducao_Form() override;
    void goTo(const QString &what) override;

protected:
    QStringView readHint() const override { return u"DICA_VISTORIA"; }
    void paintPanel() override;

private:
    QWidget *body();
    void connectControls();
    void btPDF_Click();

    SurveyScreen &m_survey;
    DocumentMaker m_documents;
    PanelModel m_rows;
    PanelGrid *m_grid;
    QCheckBox *m_syscfg;
    QCheckBox *m_memory;
    QCheckBox *m_faults;
    QLabel *m_lbNota;
    QLineEdit *m_nota;
    QPushButton *m_btPdf;
    QPushButton *m_btCancelar;
    QPushButton *m_btIniciar;
};
