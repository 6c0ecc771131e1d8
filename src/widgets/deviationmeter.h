#pragma once

#include "panel.h"

#include <QWidget>

/// A row's deviation as a bar around zero with the limits of its rule; empty when it has none.
class DeviationMeter : public QWidget
{
    Q_OBJECT

public:
    explicit DeviationMeter(QWidget *parent = nullptr);

    void setRow(const Row &row);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Row m_row;
};
