#pragma once

#include "railform.h"

#include <array>

class DeviationMeter;
class QGridLayout;
class QLineEdit;
class QScrollArea;
class TableExport;

/// The form of the power-management unit: one line per output.
class PMU : public RailForm
{
    Q_OBJECT

public:
    explicit PMU(Session &session, QWidget *parent = nullptr);

    void Traducao_Form() override;
    void goTo(const QString &what) override;

protected:
    void paintPanel() override;

private:
    /// The cells of one output, from left to right.
    struct Line
    {
        QWidget *output;
        DeviationMeter *meter;
        QList<QWidget *> cells = {};
    };

    QWidget *controls();
    QWidget *lines();
    void connectControls();
    void addLine();

    QPushButton *m_btVCore;
    std::array<QPushButton *, 2> m_botao;
    QPushButton *m_btExecutaLeitura;
    QLabel *m_lbTolerancia;
    QLineEdit *m_porcTolerancia;
    QLabel *m_empty;
    QScrollArea *m_area;
    QGridLayout *m_grid;
    std::array<QLabel *, 7> m_captions;
    QList<Line> m_lines;
    PanelModel m_table; ///< the lines as they are copied and exported
    TableExport *m_export;
};
