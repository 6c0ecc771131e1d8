#pragma once

#include "language.h"
#include "panel.h"

#include <QWidget>

class QDoubleSpinBox;
class QLabel;
class QPushButton;
class QToolButton;
class VerdictBadge;

/// What the comparison came to, and the way to its difference view and through it.
class ComparisonHead : public QWidget
{
    Q_OBJECT

public:
    explicit ComparisonHead(QWidget *parent = nullptr);

    void Traducao_Form(Language language);
    void setPanel(const Panel &panel);

signals:
    void toleranceChosen(double percent);
    void differencesToggled(bool shown);
    void nextWanted();
    void previousWanted();

private:
    /// What only serves the difference view is there with it.
    void showWayThrough(bool shown);

    VerdictBadge *m_badge;
    QLabel *m_lbTolerancia;
    QDoubleSpinBox *m_tolerancia;
    QToolButton *m_btAnteriorDif;
    QToolButton *m_btProximaDif;
    QPushButton *m_btDiferencas;
};
