#pragma once

#include "plainlabel.h"
#include "verdict.h"

/// A mark beside a reading: the shape and the word of a verdict in its colour.
class MarkLabel : public PlainLabel
{
    Q_OBJECT

public:
    explicit MarkLabel(Verdict verdict, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Verdict m_verdict;
};

/// A mark that is not seen yet, by its control's name: "OK(1)" is read out as "OK".
MarkLabel *markNamed(const QString &name, Verdict verdict);
