#pragma once

#include "panelmodel.h"
#include "railscreen.h"
#include "screenform.h"

#include <array>
#include <span>

class PanelGrid;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QProgressBar;
class QRadioButton;
class QToolButton;
class VerdictBadge;

/// What the forms over rails share: verdict and title, orders, decimals, recordings, the grid, the note and the
/// progress. A form adds its buttons to the head and lays the parts out.
class RailForm : public ScreenForm
{
    Q_OBJECT

public:
    RailForm(std::unique_ptr<RailScreen> screen, std::span<const GridColumn> columns, QWidget *parent = nullptr);

    void Traducao_Form() override;
    void goTo(const QString &what) override;

protected:
    RailScreen &rails() const { return m_rails; }
    void paintPanel() override;
    /// Lays the form out, with these widgets at the right of the head.
    void layOut(const QList<QWidget *> &headButtons);

private:
    QHBoxLayout *headRow(const QList<QWidget *> &buttons);
    QHBoxLayout *choiceRow();
    QHBoxLayout *noteRow();
    QWidget *decimals();
    QWidget *orders();
    QWidget *recordings();
    void connectControls();
    void connectRecordings();
    void translateRecordings();
    void paintHint();

    RailScreen &m_rails;
    PanelModel m_rows;
    QLabel *m_title;
    VerdictBadge *m_badge;
    std::array<QRadioButton *, 3> m_orders;
    std::array<QToolButton *, 3> m_btGravar;
    std::array<QToolButton *, 3> m_btExcluir;
    QLabel *m_hint;
    QLabel *m_lbClassificacao;
    QLabel *m_lbGravacao;
    QLabel *m_lbInfoDecimais;
    QComboBox *m_comboDecimais;
    QComboBox *m_comboDecimaisAmp;
    PanelGrid *m_dbGrid1;
    QLabel *m_lbVar;
    QWidget *m_frameVCore;
    QLabel *m_lbBarra;
    QProgressBar *m_barra;
};

/// A row of controls without margins of its own.
QHBoxLayout *controlRow(QWidget *parent = nullptr);
