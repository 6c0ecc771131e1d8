#pragma once

#include "panelmodel.h"
#include "railform.h"
#include "railgridscreen.h"

#include <array>

class PanelGrid;
class ReportButtons;
class QRadioButton;
class QToolButton;

/// The form of rails in a grid: orders and recordings. A form adds its buttons and choices and lays the parts out.
class RailGridForm : public RailForm
{
    Q_OBJECT

public:
    explicit RailGridForm(std::unique_ptr<RailGridScreen> screen, QWidget *parent = nullptr);

    void Traducao_Form() override;
    void goTo(const QString &what) override;

protected:
    /// Lays the form out, with these widgets at the right of the head and these behind the decimals.
    void layOutGrid(const QList<QWidget *> &buttons, const QList<QWidget *> &choices = {});
    void paintPanel() override;

private:
    QWidget *orders();
    QWidget *recordings();
    void connectGrid();
    void connectRecordings();
    void translateRecordings();

    RailGridScreen &m_rails;
    PanelModel m_rows;
    PanelGrid *m_dbGrid1;
    std::array<QRadioButton *, 3> m_orders;
    std::array<QToolButton *, 3> m_btGravar;
    std::array<QToolButton *, 3> m_btExcluir;
    QLabel *m_lbClassificacao;
    QLabel *m_lbGravacao;
    ReportButtons *m_report;
};
