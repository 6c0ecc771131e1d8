#include "deviationmeter.h"

#include "deviationbar.h"
#include "theme.h"

#include <QPainter>

static constexpr QSize kSize(101, 24);
static constexpr int kBarHeight = 10;

DeviationMeter::DeviationMeter(QWidget *parent) : QWidget(parent)
{
    setFixedSize(kSize);
}

void DeviationMeter::setRow(const Row &row)
{
    if (m_row == row)
        return;
    m_row = row;
    update();
}

void DeviationMeter::paintEvent(QPaintEvent *)
{
    if (!m_row.deviation)
        return;
    QPainter painter(this);
    const QRect area(0, (height() - kBarHeight) / 2, width(), kBarHeight);
    const Theme &theme = currentTheme();
    paintDeviation(painter, area, *m_row.deviation, m_row.rule,
                   {.bar = inkColour(m_row.verdict, theme), .line = theme.text, .behind = theme.surface});
}
